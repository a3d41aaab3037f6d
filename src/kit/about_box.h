// The About box: name, version and a short description of the program.
#pragma once

#include "kit/box_button.h"
#include "kit/dress.h"
#include "runtime/controls.h"
#include "runtime/form.h"

namespace tessarine
{

/// Closed by its button, by a press of any mouse button on its text, and by its window. It wears the
/// colours of the moment at each activation.
class AboutForm : public Form
{
public:
    /// The dress must outlive the form.
    AboutForm(Forms& forms, const Dress& dress);

    TextBox AboutText;
    Image Image1;
    Label Label1;
    BoxControl aboutok;

protected:
    void OnActivate() override;
    void OnClose() override { Unload(); }

private:
    const Dress& dress_;
};

} // namespace tessarine
