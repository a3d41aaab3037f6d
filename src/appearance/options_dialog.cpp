#include "appearance/options_dialog.h"

#include "appearance/make_scheme.h"
#include "appearance/scheme_file.h"

#include <utility>

namespace tessarine
{
namespace
{

constexpr Size ClientArea{9120, 4155};
constexpr const char* ListFont = "Courier New";
constexpr const char* Silent = "X";

void Put(Container& on, Control& control, Twips left, Twips top, Twips width, Twips height)
{
    control.SetBounds(left, top, width, height);
    on.Add(control);
}

void PlaceButton(Container& on, BoxControl& button, const char* caption, Twips left, Twips top)
{
    Put(on, button, left, top, 1005, 375);
    button.SetBackColor(ButtonFace);
    button.SetCaption(caption);
}

void TellContrast(ScrollBar& slider)
{
    slider.SetToolTip("Contrast: " + std::to_string(slider.Value()));
}

void SetToolTips(Form6& form)
{
    const std::initializer_list<std::pair<Control*, const char*>> tips = {
        {&form.Frame5, "The colours of the table, the buttons and this dialog"},
        {&form.ColPik1, "Background colour of a new scheme: View shows it"},
        {&form.List1, "Pick a scheme, then press Apply"},
        {&form.showsch, "Show the scheme of this background and contrast, in this dialog only"},
        {&form.repsch, "Store the colours on show in place of the selected scheme"},
        {&form.delsch, "Remove the selected scheme"},
        {&form.addsch, "Store the colours on show as a new scheme"},
        {&form.Frame1, "Sounds of the game"},
        {&form.Check1, "Play sounds"},
        {&form.command3, "Dress the table in the selected scheme and font"},
        {&form.command4, "Close the dialog; nothing is taken back"},
        {&form.Frame3, "The colours of the cards"},
        {&form.ColPik2, "Colour of the cards or numbers selected below"},
        {&form.Frame7, "Which cards take the colour"},
        {&form.cmdreset, "Give the cards five plain colours and the font Arial, and apply that"},
        {&form.Frame6, "The font of the numbers, with a sample"},
        {&form.List2, "Pick a font, then press Apply"},
    };
    for (const auto& [control, tip] : tips) {
        control->SetToolTip(tip);
    }
    for (OptionButton& option : form.NumCol) {
        option.SetToolTip(option.AccessibleName());
    }
    TellContrast(form.ContrastV);
}

} // namespace

Form6::Form6(Forms& forms, Module1& module, SchemeStore& store, MsgForm& messageBox, const Sound& sound,
             PushButton& command2)
    : Form(forms, "Tessarine Options", ClientArea), module_(module), store_(store),
      messageBox_(messageBox), sound_(sound), command2_(command2),
      commands_(forms.platform(), module, store, List1)
{
    StandsBeside = true; // what Apply does is to be seen
    PlaceControls();
    NameControls();
    List2.FillWhenAsked([this] { return platform().ScreenFonts(); });
    // The pickers took their first colour while they were placed, with nobody listening.
    ConnectSchemeGroup();
    ConnectOthers();
    SetToolTips(*this);
    CancelControl = &command4;
    FirstControl = &List1;
}

void Form6::PlaceControls()
{
    PlaceSchemeGroup();
    PlaceSoundGroup();
    PlaceButton(*this, command3, "Apply", 210, 3540);
    PlaceButton(*this, command4, "Exit", 1215, 3540);
    PlaceCardColourGroup();
    PlaceFontGroup();
}

void Form6::PlaceSchemeGroup()
{
    Put(*this, Frame5, 60, 60, 4335, 3210);
    Frame5.SetCaption("Colour Scheme");
    Put(Frame5, ColPik1, 150, 270, 2025, 1635);
    Put(Frame5, ContrastV, 106, 2010, 2064, 228);
    ContrastV.SetRange(-100, 300, 5, 20);
    ContrastV.SetValue(PlainContrast);
    PlaceButton(Frame5, showsch, "View", 60, 2340);
    PlaceButton(Frame5, repsch, "Replace", 1110, 2340);
    PlaceButton(Frame5, delsch, "Delete", 60, 2715);
    PlaceButton(Frame5, addsch, "Add", 1110, 2715);
    Put(Frame5, List1, 2295, 240, 1920, 2805);
    List1.SetFontName(ListFont);
}

void Form6::PlaceSoundGroup()
{
    Put(*this, Frame1, 2370, 3300, 2025, 825);
    Frame1.SetCaption("Sound");
    Put(Frame1, Check1, 270, 330, 1425, 285);
    Check1.SetCaption("Yes");
}

void Form6::PlaceCardColourGroup()
{
    Put(*this, Frame3, 4485, 60, 2265, 4065);
    Frame3.SetCaption("Card Colour");
    Put(Frame3, ColPik2, 120, 270, 2025, 1605);
    Put(Frame3, Frame7, 120, 1950, 2025, 1545);
    Frame7.SetCaption("Numbers");
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        Put(Frame7, NumCol[suit], 120, 270 + 240 * static_cast<Twips>(suit), 1800, 210);
        NumCol[suit].SetCaption("Colour " + std::to_string(suit + 1));
    }
    PlaceButton(Frame3, cmdreset, "Reset", 270, 3570);
}

void Form6::PlaceFontGroup()
{
    Put(*this, Frame6, 6840, 60, 2235, 4065);
    Frame6.SetCaption("Font");
    Put(Frame6, List2, 180, 300, 1845, 2370);
    List2.SetFontName(ListFont);
    Put(Frame6, Label1, 750, 2880, 645, 585);
    Label1.SetFont({.name = "Arial", .size = 24, .bold = true});
    Label1.SetAlign(Alignment::Centre);
    Label1.SetBorder(true);
    Label1.SetCaption("1");
    Put(Frame6, NumCol[NumbersOption], 210, 3630, 1800, 210);
    NumCol[NumbersOption].SetCaption("Colour");
}

void Form6::NameControls()
{
    const auto name = [](Control& control, std::string text) {
        control.Describe = [text = std::move(text)] { return text; };
    };
    name(ColPik1, "Background colour");
    name(ColPik2, "Card colour");
    name(ContrastV, "Contrast");
    name(List1, "Colour schemes");
    name(List2, "Fonts");
    name(Label1, "Sample of the font");
    name(Check1, "Sound: yes");
    static constexpr std::array<char, Suits> letters = {'S', 'H', 'D', 'C', 'O'};
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        name(NumCol[suit], NumCol[suit].Caption() + ", suit " + letters[suit]);
    }
    name(NumCol[NumbersOption], "Colour of the numbers");
}

void Form6::ConnectSchemeGroup()
{
    ColPik1.SelColor = [this](Colour colour) { ColPik1_SelColor(colour); };
    ContrastV.OnChange = [this] { ContrastV_Change(); };
    List1.MouseUp = [this](const MouseEvent&) { List1_MouseUp(); };
    showsch.MouseUp = [this](const MouseEvent&) { showsch_MouseUp(); };
    repsch.MouseUp = [this](const MouseEvent&) { commands_.repsch_MouseUp(); };
    delsch.MouseUp = [this](const MouseEvent&) { commands_.delsch_MouseUp(); };
    addsch.MouseUp = [this](const MouseEvent&) { commands_.addsch_MouseUp(); };
}

void Form6::ConnectOthers()
{
    ColPik2.SelColor = [this](Colour colour) { ColPik2_SelColor(colour); };
    for (std::size_t option = 0; option < NumColCount; ++option) {
        NumCol[option].MouseUp = [this, option](const MouseEvent&) { NumCol_MouseUp(option); };
    }
    List2.MouseUp = [this](const MouseEvent&) { List2_MouseUp(); };
    Check1.MouseUp = [this](const MouseEvent&) { Check1_MouseUp(); };
    cmdreset.MouseUp = [this](const MouseEvent&) { cmdreset_MouseUp(); };
    command3.MouseUp = [this](const MouseEvent&) { command3_MouseUp(); };
    command4.MouseUp = [this](const MouseEvent&) { command4_MouseUp(); };
}

void Form6::OnActivate()
{
    ResetContrastQuietly();
    ColPik1.SetSchemeColor(module_.Background());
    ColPik2.SetSchemeColor(module_.PanelColor);
    PaintOptions();
    ShowNumColours();
    Label1.SetFontName(module_.CardFont);
    SelectCardFont();
    Check1.SetValue(module_.SoundOn == Yes);
}

void Form6::ResetContrastQuietly()
{
    ContrastV.Tag = Silent;
    ContrastV.SetValue(PlainContrast);
    ContrastV.Tag.clear();
}

void Form6::SelectCardFont()
{
    if (const auto found = List2.Items().Find(module_.CardFont)) {
        List2.Select(found);
        List2.SetTopIndex(*found);
    }
}

void Form6::PaintOptions()
{
    for (Control* surface : std::initializer_list<Control*>{
             this, &List1, &List2, &Label1, &Check1, &Frame1, &Frame3, &Frame5, &Frame6, &Frame7}) {
        surface->SetBackColor(module_.Background());
    }
    for (Control* button : {&cmdreset, &addsch, &delsch, &showsch, &repsch, &command3, &command4}) {
        button->SetBackColor(module_.Button());
    }
    ButtonColour = module_.Button();
}

void Form6::ShowNumColours()
{
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        NumCol[suit].SetEnabled(true);
        NumCol[suit].SetBackColor(module_.SuitColor[suit]);
    }
    NumCol[NumbersOption].SetBackColor(module_.CardTextColor);
    Label1.SetForeColor(PaletteColour(0));
}

/// With the slider away from the plain contrast, putting it back runs the other preview in here, which
/// makes the colours anew from the background just read.
void Form6::List1_MouseUp()
{
    const Colour background = store_.PreviewScheme(List1.SelectedText().append(SchemeSuffix));
    ColPik1.SetSchemeColor(background);
    ContrastV.SetValue(PlainContrast);
    PaintOptions();
}

void Form6::ContrastV_Change()
{
    TellContrast(ContrastV);
    if (ContrastV.Tag != Silent) {
        showsch_MouseUp();
    }
}

void Form6::showsch_MouseUp()
{
    MakeScheme(module_, ColPik1.SchemeColor(), ContrastV.Value());
    PaintOptions();
}

/// No repaint: the dialog shows the colour at the next preview.
void Form6::ColPik1_SelColor(Colour colour)
{
    module_.SchemeColors[BackgroundSlot] = colour;
}

void Form6::ColPik2_SelColor(Colour colour)
{
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        if (NumCol[suit].Enabled() && NumCol[suit].Value()) {
            NumCol[suit].SetBackColor(colour);
            module_.SuitColor[suit] = colour;
        }
    }
    if (NumCol[NumbersOption].Enabled() && NumCol[NumbersOption].Value()) {
        NumCol[NumbersOption].SetBackColor(colour);
        module_.CardTextColor = colour;
    }
}

void Form6::NumCol_MouseUp(std::size_t option)
{
    ColPik2.SetSchemeColor(NumCol[option].BackColor());
    ShowNumColours();
}

void Form6::List2_MouseUp()
{
    Label1.SetFontItalic(false);
    Label1.SetFontBold(false);
    if (List2.Selected()) {
        Label1.SetFontName(List2.SelectedText());
    }
}

void Form6::Check1_MouseUp()
{
    if (Check1.Value()) {
        module_.SoundOn = Yes;
        sound_.PlayWav("_soundonoff.wav");
    } else {
        module_.SoundOn = No;
    }
}

void Form6::command3_MouseUp()
{
    if (const std::string scheme = List1.SelectedText(); !scheme.empty()) {
        module_.SchemeFile = scheme + std::string(SchemeSuffix);
    }
    module_.CardFont = Label1.Font().name;
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        module_.SuitColor[suit] = NumCol[suit].BackColor();
    }
    module_.CardTextColor = NumCol[NumbersOption].BackColor();
    module_.SoundOn = Check1.Value() ? Yes : No;
    command2_.SetValue(true);
}

void Form6::command4_MouseUp()
{
    Hide();
}

void Form6::cmdreset_MouseUp()
{
    if (messageBox_.MsgboxA("Reset Card Colours and Font?", "vbyesno+vbinformation", -1, -1) !=
        AnswerYes) {
        return;
    }
    for (std::size_t suit = 0; suit < NumbersOption; ++suit) {
        module_.SuitColor[suit] = PaletteColour(static_cast<int>(suit));
        NumCol[suit].SetBackColor(module_.SuitColor[suit]);
    }
    NumCol[NumbersOption].SetBackColor(PaletteColour(15));
    Label1.SetFontName("Arial");
    command3_MouseUp();
    ShowNumColours();
}

} // namespace tessarine
