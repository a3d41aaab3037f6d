// What every form shows and where, and what every command does.
#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace tessarine::test
{
namespace
{

/// The controls on a form: words, left, top, width and height, and a font or a text colour that is not
/// the usual one; in brackets what stands on a control. The cards have tests of their own.
void Look(const Container& on, const Dress& dress, std::vector<std::string>& look)
{
    for (const Control* control : on.Children()) {
        const auto* const box = dynamic_cast<const Container*>(control);
        if (control->Width() == 0 || (on.Children().size() > ItemCount && control->IsLight())) {
            continue;
        }
        std::ostringstream text;
        const Font& font = control->Font();
        std::string words = control->AccessibleName();
        std::erase(words, '\r');
        std::ranges::replace(words, '\n', ' ');
        words.erase(0, words.find_first_not_of(' '));
        words.erase(words.find_last_not_of(' ') + 1);
        text << (words.empty() ? "-" : words);
        const auto* const option = dynamic_cast<const OptionButton*>(control);
        if (option != nullptr && option->Caption() != words) {
            text << " = " << option->Caption();
        }
        if (const auto* const check = dynamic_cast<const CheckBox*>(control)) {
            text << " = " << check->Caption();
        }
        for (const Twips number :
             {control->Left(), control->Top(), control->Width(), control->Height()}) {
            text << ' ' << number;
        }
        if (font.name != "Arial" || font.size != 8.25) {
            text << ' ' << font.name << ' ' << font.size << (font.bold ? " bold" : "");
        }
        if (const auto* const bar = dynamic_cast<const ScrollBar*>(control)) {
            text << " by " << bar->SmallChange() << " or " << bar->LargeChange();
        }
        if (const auto* const image = dynamic_cast<const Image*>(control)) {
            text << (image->Visible() && image->Shown() == nullptr ? " blank" : "");
        }
        const auto* const label = dynamic_cast<const Label*>(control);
        text << (label != nullptr && !label->IsOpaque() ? " clear" : "");
        if (const Colour colour = control->ForeColor(); colour > 0) {
            text << " #" << std::hex << colour;
        }
        if (const Colour colour = control->BackColor(); colour == dress.Button()) {
            text << " b";
        } else if (colour != dress.Background()) {
            text << " on " << std::hex << colour;
        }
        if (!control->ToolTip().empty() && control->ToolTip() != words) {
            text << " ~ " << control->ToolTip();
        }
        text << (control->Visible() ? "" : " hidden");
        text << (control->IsLight() || !control->ToolTip().empty() ? "" : " untold");
        std::string line = text.str();
        std::ranges::replace(line, ';', ',');
        look.push_back(line);
        if (box != nullptr && !box->Children().empty()) {
            look.emplace_back("[");
            Look(*box, dress, look);
            look.emplace_back("]");
        }
    }
}

TEST(LookTest, EveryControlHasItsWordsAndItsPlace)
{
    std::istringstream expected(R"(
Tessarine 3960 7710 sizable with its boxes; Load Saved Game 30 30 360 360 b; Save Game 390 30 360 360 b; Scores 750 30
360 360 b; Options 1110 30 360 360 b; New Game 1470 30 360 360 b; Restore current game 1830 30 360 360
b; About 2190 30 360 360 b; Help 2550 30 360 360 b; Exit 2910 30 360 360 b; Undo 3270 30 360 360 b;
Table 30 450 3905 7115 untold; [; Turn the stock back 445 193.75 202.5 202.5 b; Turn the stock 647.5
193.75 202.5 202.5 b; Scores 450 690 3795 2985 hidden untold; [; tessarine Scores 60 60 3675 2865
untold; [; Played 90 600 1005 225 Arial 9 bold #ffffff on 0; Won 90 855 1005 255 Arial 9 bold #ffffff
on 0; Drawn 90 1140 1005 255 Arial 9 bold #ffffff on 0; Lost 90 1425 1005 255 Arial 9 bold #ffffff on
0; This Session 1215 300 1275 255 Arial 9 bold #ffffff on 0; Total 2565 300 1005 255 Arial 9 bold
#ffffff on 0; Played this session: 0 1215 600 900 255 Courier New 9; Played total: 0 2565 600 900 255
Courier New 9; Won this session: 0 1215 885 900 255 Courier New 9; Won total: 0 2565 885 900 255
Courier New 9; Drawn this session: 0 1215 1170 900 255 Courier New 9; Drawn total: 0 2565 1170 900 255
Courier New 9; Lost this session: 0 1215 1455 900 255 Courier New 9; Lost total: 0 2565 1455 900 255
Courier New 9; Last Update: 14Mar2008 90 1890 3465 345 Courier New 9 clear on 8000000f; Close 750 2340 1095
405 untold; Clear 1845 2340 1095 405 untold; ]; ]; ]; Tessarine Options 9120 4155 beside with its boxes; Colour Scheme
60 60 4335 3210 ~ The colours of the table, the buttons and this dialog; [; Background colour 150 270
2025 1635 on ffffff ~ Background colour of a new scheme: View shows it; [; Background colour: Red 1050
25 250 1126 by 1 or 1 on 8000000f ~ Red: 120; Background colour: Green 1395 25 250 1126 by 1 or 1 on
8000000f ~ Green: 170; Background colour: Blue 1725 25 250 1126 by 1 or 1 on 8000000f ~ Blue: 120; -
1065 1170 225 195 Arial 7 on 78; - 1395 1170 225 195 Arial 7 on aa00; - 1755 1170 225 195 Arial 7 on
780000; 120 1050 1380 270 210 Arial 7 #ff on ffffff; 170 1380 1380 285 210 Arial 7 #c000 on ffffff; 120
1725 1380 270 210 Arial 7 #ff0000 on ffffff; Selected 60 1380 645 165 Arial 7 on ffffff; - 788 1380 225
195 Arial 7; ]; Contrast 106 2010 2064 228 by 5 or 20 on 8000000f ~ Contrast: 100; View 60 2340 1005
375 b ~ Show the scheme of this background and contrast, in this dialog only; Replace 1110 2340 1005
375 b ~ Store the colours on show in place of the selected scheme; Delete 60 2715 1005 375 b ~ Remove
the selected scheme; Add 1110 2715 1005 375 b ~ Store the colours on show as a new scheme; Colour
schemes 2295 240 1920 2805 Courier New 8.25 ~ Pick a scheme, then press Apply; ]; Sound 2370 3300 2025
825 ~ Sounds of the game; [; Sound: yes = Yes 270 330 1425 285 ~ Play sounds; ]; Apply 210 3540 1005 375 b ~
Dress the table in the selected scheme and font; Exit 1215 3540 1005 375 b ~ Close the dialog, nothing
is taken back; Card Colour 4485 60 2265 4065 ~ The colours of the cards; [; Card colour 120 270 2025
1605 on ffffff ~ Colour of the cards or numbers selected below; [; Card colour: Red 1050 25 250 1126 by
1 or 1 on 8000000f ~ Red: 220; Card colour: Green 1395 25 250 1126 by 1 or 1 on 8000000f ~ Green: 220;
Card colour: Blue 1725 25 250 1126 by 1 or 1 on 8000000f ~ Blue: 220; - 1065 1170 225 195 Arial 7 on
dc; - 1395 1170 225 195 Arial 7 on dc00; - 1755 1170 225 195 Arial 7 on dc0000; 220 1050 1380 270 210
Arial 7 #ff on ffffff; 220 1380 1380 285 210 Arial 7 #c000 on ffffff; 220 1725 1380 270 210 Arial 7
#ff0000 on ffffff; Selected 60 1380 645 165 Arial 7 on ffffff; - 788 1380 225 195 Arial 7 on dcdcdc; ];
Numbers 120 1950 2025 1545 ~ Which cards take the colour; [; Colour 1, suit S = Colour 1 120 270 1800
210 on 0; Colour 2, suit H = Colour 2 120 510 1800 210 on 800000; Colour 3, suit D = Colour 3 120 750
1800 210 on 8000; Colour 4, suit C = Colour 4 120 990 1800 210 on 8080; Colour 5, suit O = Colour 5 120
1230 1800 210 on 80; ]; Reset 270 3570 1005 375 b ~ Give the cards five plain colours and the font
Arial, and apply that; ]; Font 6840 60 2235 4065 ~ The font of the numbers, with a sample; [; Fonts 180
300 1845 2370 Courier New 8.25 ~ Pick a font, then press Apply; Sample of the font 750 2880 645 585
arial 24 bold; Colour of the numbers = Colour 210 3630 1800 210 on ffffff; ]; Tessarine Help 7185 5625
sizable beside; Back 60 30 1095 375 b untold; Forward 1155 30 1095 375 b untold; Exit 2244 30 1095 375
b untold; Help page 60 480 7125 5145 on 8000000f untold; About Tessarine 6135 3120; Tessarine - March
2008 A variant of Halvard card game Uses a numbers deck instead of standard card deck 30 30 5505 2700
untold; - 5616 96 480 432 on 8000000f; Version 1.0 30 2760 5520 315 b; OK 5610 2745 450 330 Arial 7.5 b
untold; Tessarine 2535 1305 no close box with its boxes; Hello 840 300 540 336 Ariel 9 #1c1c1c; - 90 90 480 480 on
8000000f hidden; - 90 90 480 480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; - 90 90 480
480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; - 90 90
480 480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; -
90 90 480 480 on 8000000f hidden; - 90 90 480 480 on 8000000f hidden; Yes 0 756 885 350 Ariel 9 b
untold; No 885 756 885 350 Ariel 9 b untold; Cancel 1770 756 885 350 Ariel 9 b untold)");
    GameWorld world;
    world.platform.AnswerModal("Cancel");
    world.form.msgForm.MsgboxA("Hello", "vbyesnocancel");
    std::vector<std::string> look;
    for (Form* form : std::initializer_list<Form*>{&world.form, &world.form.form6, &world.form.form4,
                                                   &world.form.aboutForm, &world.form.msgForm}) {
        form->Show();
        std::ostringstream window;
        window << form->Caption() << ' ' << form->Width() << ' ' << form->Height()
               << (form->Sizable ? " sizable" : "") << (form->StandsBeside ? " beside" : "")
               << (form->HasCloseBox ? "" : " no close box")
               << (form->BackColor() == world.form.shared.Background() ? "" : " not dressed")
               << (form->ButtonColour == world.form.shared.Button() ? " with its boxes" : "");
        look.push_back(window.str());
        Look(*form, world.form.shared, look);
    }
    for (const std::string& shown : look) {
        std::string wanted;
        std::getline(expected, wanted, ';');
        std::ranges::replace(wanted, '\n', ' ');
        EXPECT_EQ(wanted.substr(1), shown);
    }
}

/// A number that is another when a point of the drawing is.
double Ink(const Picture& picture)
{
    double ink = 0;
    for (const Shape& shape : picture.shapes) {
        for (std::size_t i = 0; i < shape.points.size(); ++i) {
            ink += static_cast<double>(i + 1) * (shape.points[i].x + 3 * shape.points[i].y);
        }
    }
    return ink;
}

/// The icons of the row, from the left, and what a press does: sounds, boxes, forms.
TEST(LookTest, EveryCommandHasItsIconAndItsEffect)
{
    const std::vector<std::pair<BoxControl Form1::*, std::string>> commands = {
        {&Form1::cmdLoadGame, " _menu.wav open *.gam tessarine Game File /app/"},
        {&Form1::cmdSaveGame, "Information: Game saved to file:\r\n/app/savedgame;01.gam _menu.wav"},
        {&Form1::cmdscore, " _menu.wav scores"},
        {&Form1::cmdopts, "Tessarine Options _menu.wav"},
        {&Form1::cmdnewgame, "Question: Abandon current game? _menu.wav"},
        {&Form1::cmdreset, "Question: Restore current game? _menu.wav"},
        {&Form1::cmdabout, "About Tessarine _menu.wav"},
        {&Form1::cmdhelp, " _menu.wav Tessarine Help"},
        {&Form1::cmdexit, "Question: Exit? _menu.wav"},
        {&Form1::cmdundo, " _undo.wav"}};
    std::set<const Picture*> icons;
    double ink = 0; // of all drawings; who changes one looks at it, and notes the number here
    for (const auto& [button, effect] : commands) {
        GameWorld world({.columns = {{9}}, .stock = {38, 39}});
        world.RightClick(39);
        world.TakeSounds();
        std::string seen;
        world.platform.OnNextModal([&](Form& form) {
            const auto* const box = dynamic_cast<MsgForm*>(&form);
            seen += box == nullptr ? form.Caption() : Told(*box);
            seen += world.platform.busy ? ", busy" : "";
            for (const char* const harmless : {"No", "Ok", "OK", "Exit"}) {
                if (Control* answer = HeadlessPlatform::FindShown(form, harmless); answer != nullptr) {
                    return world.platform.Click(*answer);
                }
            }
        });
        const auto& icon = std::get<Canvas::Drawing>((world.form.*button).Drawing().Strokes().back());
        EXPECT_EQ(icon.upperLeft, (Point{50.25, 50.25})) << "a little left and above the middle";
        ASSERT_TRUE(!icon.picture->shapes.empty() && icons.insert(icon.picture).second) << effect;
        ink += Ink(*icon.picture);
        const Point at = (world.form.*button).PlaceOnForm();
        world.platform.Press(world.form, at.x + 60, at.y + 60);
        EXPECT_TRUE((world.form.*button).HasBorder()) << "it is down";
        world.platform.Release(world.form, at.x + 60, at.y + 60);
        for (const std::string& sound : world.TakeSounds()) {
            seen += ' ' + sound;
        }
        for (const FileDialogRequest& dialog : world.platform.fileDialogs) {
            seen += (dialog.save ? " save " : " open ") + dialog.types + ' ' + dialog.typesName + ' ' +
                    dialog.folder;
        }
        for (const Form* form : world.form.AllForms().Loaded()) {
            seen += form->IsShown() && form != &world.form ? ' ' + form->Caption() : "";
        }
        seen += world.form.Score1.Visible() ? " scores" : "";
        EXPECT_EQ(seen, effect);
    }
    const GameWorld world;
    ink += Ink(*world.form.aboutForm.Image1.Shown());
    for (const Image& icon : world.form.msgForm.icons) {
        ink += icon.Shown() == nullptr ? 0 : Ink(*icon.Shown());
    }
    EXPECT_NEAR(ink, 71089.4, 0.001);
}

} // namespace
} // namespace tessarine::test
