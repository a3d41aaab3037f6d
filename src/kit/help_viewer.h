// The help viewer: a window beside the table that shows the help page.
#pragma once

#include "kit/dress.h"
#include "runtime/controls.h"
#include "runtime/form.h"

namespace tessarine
{

/// Its Tag is the path of the page. Every activation loads the page anew, from its top, and wears the
/// colours of that moment.
class Form4 : public Form
{
public:
    /// The dress must outlive the form.
    Form4(Forms& forms, const Dress& dress);

    PushButton Command1; ///< back
    PushButton Command2; ///< forward
    PushButton command3; ///< exit
    Browser WebBrowser1;

protected:
    void OnActivate() override;
    void OnResize() override;

private:
    void Command1_Click();
    void Command2_Click();
    void command3_Click();
    bool ShowsAnchor() const;

    const Dress& dress_;
};

} // namespace tessarine
