#include "kit/message_box.h"

#include "kit/icons.h"
#include "runtime/letters.h"
#include "runtime/platform.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <vector>

namespace tessarine
{
namespace
{

struct Answer {
    const char* caption;
    Whole result;
};
constexpr Whole AnswerCancel = 2;
constexpr Answer OkButton{"Ok", AnswerOk};
constexpr Answer NormalButton{"Ok", 0};
constexpr Answer CancelButton{"Cancel", AnswerCancel};
constexpr Answer AbortButton{"Abort", 3};
constexpr Answer RetryButton{"Retry", 4};
constexpr Answer IgnoreButton{"Ignore", 5};
constexpr Answer YesButton{"Yes", AnswerYes};
constexpr Answer NoButton{"No", AnswerNo};

struct ButtonKeyword {
    std::string_view word;
    std::vector<Answer> answers;
};

const std::vector<ButtonKeyword>& ButtonKeywords()
{
    static const std::vector<ButtonKeyword> keywords = {
        {"vbok", {OkButton}},
        {"vbokonly", {OkButton}},
        {"vbnormal", {NormalButton}},
        {"vbcancel", {CancelButton}},
        {"vbabort", {AbortButton}},
        {"vbretry", {RetryButton}},
        {"vbignore", {IgnoreButton}},
        {"vbyes", {YesButton}},
        {"vbno", {NoButton}},
        {"vbokcancel", {OkButton, CancelButton}},
        {"vbyesno", {YesButton, NoButton}},
        {"vbyesnocancel", {YesButton, NoButton, CancelButton}},
        {"vbretrycancel", {RetryButton, CancelButton}},
        {"vbabortretryignore", {AbortButton, RetryButton, IgnoreButton}},
    };
    return keywords;
}

/// The keywords of the icons, by index. No word finds the one without.
constexpr std::array<std::string_view, MsgForm::IconCount> IconKeywords = {
    "vbquestion", "vbexclamation", "vbinformation", "vberror", "vbcritical", "vbhappy",
    "vbtrash",    "vbprint",       "vblighton",     "",        "vbcustom",
};

/// The pictures that the form holds; the last two places have none.
std::array<const Picture*, MsgForm::IconCount - 2> Pictures()
{
    namespace all = tessarine::icons;
    return {&all::Question(), &all::Exclamation(), &all::Information(), &all::Error(),  &all::Critical(),
            &all::Happy(),    &all::Trash(),       &all::Print(),       &all::LightOn()};
}

constexpr Point LabelPlace{840, 300};
constexpr Point IconPlace{90, 90};
constexpr Twips IconSide = 480;
constexpr Size AnswerSize{885, 350};
constexpr Twips BelowText = 120; ///< the label is so much higher than its text
constexpr Twips AboveButtons = 120;
constexpr Twips BelowButtons = 600; ///< with the frame of the window

} // namespace

MsgForm::MsgForm(Forms& forms) : Form(forms, {}, {3 * AnswerSize.width, 2 * AnswerSize.height})
{
    // Every message gives the form a size of its own.
    HasCloseBox = false;
    SetIcon(icons::Program());

    Label1.Move(LabelPlace.x, LabelPlace.y);
    Add(Label1);

    for (Image& icon : icons) {
        icon.SetBounds(IconPlace.x, IconPlace.y, IconSide, IconSide);
        icon.SetVisible(false);
        Add(icon);
    }
    std::size_t index = 0;
    for (const Picture* picture : Pictures()) {
        icons[index++].Show(*picture);
    }

    for (BoxControl& button : cmd) {
        button.SetBounds(0, 0, AnswerSize.width, AnswerSize.height);
        button.MouseUp = [this, &button](const MouseEvent&) {
            AnswerCode = WholeAtStart(button.Tag);
            Hide();
        };
        Add(button);
    }
}

Whole MsgForm::MsgboxA(const std::string& s, std::string_view typ, Colour BGCol, Colour cmdcol)
{
    if (BGCol != -1) {
        SetBackColor(BGCol);
    }
    if (cmdcol != -1) {
        ButtonColour = cmdcol;
    }
    DressControls();
    Label1.SetCaption(s);
    ReadStyle(typ);
    LayoutBox(HighestButton);
    CancelControl = HarmlessButton();
    FirstControl = CancelControl;
    // A box whose window is torn down with the program answers nothing, not what the last one did.
    AnswerCode = 0;
    ShowModal(AllForms().Active());
    platform().RunPendingEvents();
    return AnswerCode;
}

void MsgForm::DressControls()
{
    Label1.SetBackColor(BackColor());
    Label1.SetForeColor(ForeColor());
    Label1.SetFont(Font());
    for (BoxControl& button : cmd) {
        button.SetBackColor(ButtonColour);
        button.SetFont(Font());
    }
}

void MsgForm::ReadStyle(std::string_view typ)
{
    for (Image& icon : icons) {
        icon.SetVisible(false);
    }
    HighestButton = -1;
    const std::string style = LowerCase(typ);
    std::size_t start = 0;
    while (start <= style.size()) {
        const std::size_t end = std::min(style.find('+', start), style.size());
        ActOn(TrimBlanks(std::string_view(style).substr(start, end - start)));
        start = end + 1;
    }
    if (HighestButton < 0) {
        AddButton(OkButton.caption, OkButton.result);
    }
}

void MsgForm::ActOn(const std::string& keyword)
{
    if (keyword.empty()) {
        return;
    }
    if (const auto icon = std::ranges::find(IconKeywords, keyword); icon != IconKeywords.end()) {
        icons[static_cast<std::size_t>(icon - IconKeywords.begin())].SetVisible(true);
        return;
    }
    const auto& keywords = ButtonKeywords();
    const auto found = std::ranges::find(keywords, keyword, &ButtonKeyword::word);
    if (found == keywords.end()) {
        return;
    }
    for (const Answer& answer : found->answers) {
        AddButton(answer.caption, answer.result);
    }
}

void MsgForm::AddButton(const std::string& caption, Whole result)
{
    if (HighestButton + 1 == std::ssize(cmd)) {
        return; // there is no place for a fourth
    }
    ++HighestButton;
    BoxControl& button = cmd[static_cast<std::size_t>(HighestButton)];
    button.SetCaption(caption);
    button.Tag = std::to_string(result);
}

void MsgForm::LayoutBox(Whole highest)
{
    const Size text = platform().TextSize(Font(), Label1.Caption());
    const Size button{cmd.front().Width(), cmd.front().Height()};
    const Twips width = std::max(2 * Label1.Left() + text.width, 3 * button.width);
    Label1.SetWidth(text.width);
    Label1.SetHeight(text.height + BelowText);
    const Twips top = Label1.Top() + Label1.Height() + AboveButtons;
    const Twips height = top + button.height + BelowButtons;
    SetClientArea({width - FrameWidth, height - FrameHeight});

    Twips left = (width - (highest + 1) * button.width) / 2;
    Whole index = 0;
    for (BoxControl& box : cmd) {
        box.SetVisible(index++ <= highest);
        box.Move(left, top);
        left += button.width;
    }
}

Control* MsgForm::HarmlessButton()
{
    if (HighestButton == 0 && WholeAtStart(cmd.front().Tag) <= AnswerOk) {
        return &cmd.front();
    }
    Control* found = nullptr;
    for (Whole index = 0; index <= HighestButton; ++index) {
        BoxControl& button = cmd[static_cast<std::size_t>(index)];
        const Whole result = WholeAtStart(button.Tag);
        if (result == AnswerCancel || (result == AnswerNo && found == nullptr)) {
            found = &button;
        }
    }
    return found;
}

} // namespace tessarine
