#include "kit/help_viewer.h"

#include "kit/icons.h"

namespace tessarine
{
namespace
{

constexpr Size HelpArea{7185, 5625};
constexpr Twips ButtonTop = 30;
constexpr Size ButtonSize{1095, 375};
// What the page leaves of the window, its frame counted in.
constexpr Twips BesidePage = 120;
constexpr Twips BelowPage = 480;

} // namespace

Form4::Form4(Forms& forms, const Dress& dress) : Form(forms, "Tessarine Help", HelpArea), dress_(dress)
{
    Sizable = true;
    StandsBeside = true;
    SetIcon(icons::Program());

    const auto addButton = [this](PushButton& button, const char* caption, Twips left) {
        button.SetCaption(caption);
        button.SetBounds(left, ButtonTop, ButtonSize.width, ButtonSize.height);
        Add(button);
    };
    addButton(Command1, "Back", 60);
    addButton(Command2, "Forward", 1155);
    addButton(command3, "Exit", 2244);
    WebBrowser1.SetBounds(60, 480, 7125, 5145);
    Add(WebBrowser1);

    Command1.MouseUp = [this](const MouseEvent&) { Command1_Click(); };
    Command2.MouseUp = [this](const MouseEvent&) { Command2_Click(); };
    command3.MouseUp = [this](const MouseEvent&) { command3_Click(); };
    WebBrowser1.Describe = [] { return std::string("Help page"); };
    CancelControl = &command3;
    FirstControl = &WebBrowser1; // the page can be scrolled at once
}

void Form4::OnActivate()
{
    WebBrowser1.Navigate(Tag);
    SetBackColor(dress_.Background());
    for (PushButton* button : {&Command1, &Command2, &command3}) {
        button->SetBackColor(dress_.Button());
    }
}

void Form4::OnResize()
{
    const Twips width = OuterWidth() - BesidePage;
    const Twips height = OuterHeight() - BelowPage - WebBrowser1.Top();
    if (width >= 0) {
        WebBrowser1.SetWidth(width);
    }
    if (height >= 0) {
        WebBrowser1.SetHeight(height);
    }
}

// The history is of use only among the anchors of the page; a step past its end does nothing.
void Form4::Command1_Click()
{
    if (ShowsAnchor()) {
        WebBrowser1.GoBack();
    }
}

void Form4::Command2_Click()
{
    if (ShowsAnchor()) {
        WebBrowser1.GoForward();
    }
}

void Form4::command3_Click()
{
    Hide();
}

bool Form4::ShowsAnchor() const
{
    return WebBrowser1.LocationURL().find('#') != std::string::npos;
}

} // namespace tessarine
