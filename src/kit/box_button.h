// The program's own push button: a raised box that wears the colours of the scheme.
#pragma once

#include "runtime/controls.h"

#include <string>

namespace tessarine
{

/// A press of the button is its MouseUp, with any mouse button, wherever the pointer has gone since.
class BoxControl : public UserControl
{
public:
    BoxControl();

    bool TakesFocus() const override { return true; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    const Picture* Shown() const { return picture_; }
    /// The picture must outlive the button.
    void SetPicture(const Picture& picture);

    void MousePressed(const MouseEvent& event) override;
    void MouseReleased(const MouseEvent& event) override;
    void MouseTaken() override;

protected:
    void Draw(Canvas& canvas) const override;
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
    const Picture* picture_ = nullptr;
};

} // namespace tessarine
