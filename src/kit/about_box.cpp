#include "kit/about_box.h"

#include "kit/icons.h"

namespace tessarine
{
namespace
{

constexpr Size AboutArea{6135, 3120};
constexpr const char* Description = "Tessarine - March 2008\r\n"
                                    "A variant of Halvard card game\r\n"
                                    "Uses a numbers deck instead of standard card deck";

} // namespace

AboutForm::AboutForm(Forms& forms, const Dress& dress)
    : Form(forms, "About Tessarine", AboutArea), dress_(dress)
{
    SetIcon(icons::Program());

    AboutText.SetBounds(30, 30, 5505, 2700);
    AboutText.SetText(Description);
    AboutText.MouseDown = [this](const MouseEvent&) { Unload(); };
    Add(AboutText);

    Image1.SetBounds(5616, 96, 480, 432);
    Image1.Show(icons::Program());
    Add(Image1);

    Label1.SetBounds(30, 2760, 5520, 315);
    Label1.SetCaption("Version 1.0");
    Label1.SetAlign(Alignment::Centre);
    Add(Label1);

    aboutok.SetBounds(5610, 2745, 450, 330);
    aboutok.SetCaption("OK");
    aboutok.SetFontSize(7.5);
    aboutok.SetForeColor(Black);
    aboutok.MouseUp = [this](const MouseEvent&) { Hide(); };
    Add(aboutok);
    CancelControl = &aboutok;
}

void AboutForm::OnActivate()
{
    SetBackColor(dress_.Background());
    AboutText.SetBackColor(dress_.Background());
    aboutok.SetBackColor(dress_.Button());
    Label1.SetBackColor(dress_.Button());
}

} // namespace tessarine
