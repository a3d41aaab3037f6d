// The message box: questions and notices of the game, in the colours of the scheme.
#pragma once

#include "kit/box_button.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <array>
#include <string>
#include <string_view>

namespace tessarine
{

/// Answers of MsgboxA.
inline constexpr Whole AnswerOk = 1;
inline constexpr Whole AnswerYes = 6;
inline constexpr Whole AnswerNo = 7;

class MsgForm : public Form
{
public:
    explicit MsgForm(Forms& forms);

    /// Settings of the form, handed on to its label and buttons at every call. The background is the
    /// form's BackColor, the text colour its ForeColor, the font its Font, and that of the buttons its
    /// ButtonColour.

    /// Shows the message with the icon and the buttons that the style names (keywords joined by "+",
    /// such as "vbquestion+vbyesno") and returns the number of the button pressed. A colour of -1
    /// leaves the one that the form has; another stays for later calls. Lines of the message are
    /// parted by CR LF. Pending events have run when it returns.
    Whole MsgboxA(const std::string& s, std::string_view typ = {}, Colour BGCol = -1,
                  Colour cmdcol = -1);

    static constexpr std::size_t IconCount = 11;
    Label Label1;
    std::array<BoxControl, 3> cmd;
    std::array<Image, IconCount> icons;

private:
    void DressControls();
    void ReadStyle(std::string_view typ);
    void ActOn(const std::string& keyword);
    void AddButton(const std::string& caption, Whole result);
    void LayoutBox(Whole highest);
    /// The button that Escape presses: the one that changes nothing. None if every answer does.
    Control* HarmlessButton();

    Whole HighestButton = -1;
    Whole AnswerCode = 0;
};

} // namespace tessarine
