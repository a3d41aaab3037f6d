#include "kit/box_button.h"

#include "runtime/button_look.h"
#include "runtime/contrast.h"
#include "runtime/form.h"
#include "runtime/platform.h"

namespace tessarine
{

BoxControl::BoxControl()
{
    SetForeColor(ButtonText);
}

void BoxControl::SetCaption(const std::string& caption)
{
    if (Assign(caption_, caption)) {
        Redraw();
    }
}

void BoxControl::SetPicture(const Picture& picture)
{
    if (Assign<const Picture*>(picture_, &picture)) {
        Redraw();
    }
}

void BoxControl::MousePressed(const MouseEvent& event)
{
    SetBorder(true);
    UserControl::MousePressed(event);
}

void BoxControl::MouseReleased(const MouseEvent& event)
{
    SetBorder(false);
    UserControl::MouseReleased(event);
}

void BoxControl::MouseTaken()
{
    SetBorder(false);
    UserControl::MouseTaken();
}

void BoxControl::Draw(Canvas& canvas) const
{
    const Form* form = OwnerForm();
    DrawBox(canvas,
            {{Width(), Height()},
             BackColor(),
             TextColour(BackColor(), ForeColor()),
             form == nullptr ? std::string() : caption_,
             Font(),
             picture_,
             HasBorder()},
            [form](const tessarine::Font& font, std::string_view text) {
                return form->platform().TextSize(font, text);
            });
}

} // namespace tessarine
