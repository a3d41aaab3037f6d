#include "form1.h"

#include "appearance/make_scheme.h"
#include "kit/icons.h"
#include "presentation/places.h"
#include "runtime/files.h"

#include <algorithm>

namespace tessarine
{

Form1::Form1(Platform& platform, const std::string& programPath, const std::string& programName)
    : OwnedForms(platform), Form(OwnedForms::list, GameTitle, places::DesignArea),
      sound(platform, shared.AppDir, shared.SoundOn), msgForm(list), form4(list, shared),
      aboutForm(list, shared), table(*this, shared, sound), Score1(platform, programName), hand(table),
      undo(table), deal(table, hand, undo), ring(table), drops(table, hand, ring, undo),
      automove(table, hand, drops, [this] { GameWon(); }),
      gestures({table, hand, ring, drops, undo, automove}), scaling(table, NextCard),
      resizing(table, scaling, door), configuration(platform, shared.AppDir, shared, msgForm),
      gameFile(table, deal, scaling, ring), snapshot(table, gameFile),
      gameCommands({table, deal, scaling, ring, gameFile, snapshot, Score1, msgForm, gf1}),
      schemeStore(shared, msgForm), form6(list, shared, schemeStore, msgForm, sound, Command2),
      programCommands({*this, form6, form4, aboutForm, msgForm, configuration, Score1, shared, sound})
{
    shared.AppDir = WithSeparator(platform, programPath);
    shared.AllColFile = shared.AppDir + "all.col";
    Sizable = true;
    TakesKeys = false; // the game is played with the mouse
    SetIcon(icons::Program());
    PlaceControls();
    ConnectButtons();
    gestures.Attach(door);
    DescribeItems(table);
}

void Form1::PlaceControls()
{
    PlaceCommandRow();
    Add(table.Picture2);
    table.Picture2.Move(places::SurfaceLeft, places::SurfaceTop);
    table.Picture2.Describe = [] { return std::string("Table"); };
    Score1.Describe = [] { return std::string("Scores"); };
    NextCard[0].SetCaption("<");
    NextCard[0].SetToolTip("Turn the stock back");
    NextCard[1].SetCaption(">");
    NextCard[1].SetToolTip("Turn the stock");
    for (BoxControl& button : NextCard) {
        button.Describe = [&button] { return button.ToolTip(); };
    }
    table.Picture2.Add(NextCard[0]);
    table.Picture2.Add(NextCard[1]);
    table.Picture2.Add(Score1);
    Score1.SetBounds(places::ScoresLeft, places::ScoresTop, places::ScoresWidth, places::ScoresHeight);
    Add(gf1);
    gf1.SetVisible(false);
    Add(Command2);
    Command2.SetCaption("Command2Trigger");
    Command2.SetVisible(false);
}

void Form1::PlaceCommandRow()
{
    struct Place {
        BoxControl& button;
        const char* toolTip;
        const Picture& icon;
    };
    const std::array<Place, 10> row = {{
        {cmdLoadGame, "Load Saved Game", icons::OpenFolder()},
        {cmdSaveGame, "Save Game", icons::FloppyDisk()},
        {cmdscore, "Scores", icons::ScoreSheet()},
        {cmdopts, "Options", icons::ColourStripes()},
        {cmdnewgame, "New Game", icons::SheetWithCheckMark()},
        {cmdreset, "Restore current game", icons::SheetWithTurningArrows()},
        {cmdabout, "About", icons::ExclamationInRing()},
        {cmdhelp, "Help", icons::QuestionMark()},
        {cmdexit, "Exit", icons::DoorWithArrow()},
        {cmdundo, "Undo", icons::ArrowPointingBack()},
    }};
    Twips left = places::RowLeft;
    for (const Place& place : row) {
        place.button.SetBounds(left, places::RowTop, places::RowButton, places::RowButton);
        place.button.SetToolTip(place.toolTip);
        place.button.SetPicture(place.icon);
        Add(place.button);
        left += places::RowButton;
    }
}

void Form1::ConnectButtons()
{
    // A release of any mouse button, wherever the pointer is, presses the button.
    const auto onPress = [this](Control& button, auto action) {
        button.MouseUp = [this, action](const MouseEvent&) { door.Pass(action); };
    };
    onPress(cmdLoadGame, [this] { gameCommands.cmdLoadGame_MouseUp(); });
    onPress(cmdSaveGame, [this] { gameCommands.cmdSaveGame_MouseUp(); });
    onPress(cmdscore, [this] { programCommands.cmdscore_MouseUp(); });
    onPress(cmdopts, [this] { programCommands.cmdopts_MouseUp(); });
    onPress(cmdnewgame, [this] { gameCommands.cmdnewgame_MouseUp(); });
    onPress(cmdreset, [this] { gameCommands.cmdreset_MouseUp(); });
    onPress(cmdabout, [this] { programCommands.cmdabout_MouseUp(); });
    onPress(cmdhelp, [this] { programCommands.cmdhelp_MouseUp(); });
    onPress(cmdexit, [this] { programCommands.cmdexit_MouseUp(); });
    onPress(cmdundo, [this] { undo.cmdundo_MouseUp(); });
    onPress(NextCard[0], [this] { ring.NextCard_MouseUp(0); });
    onPress(NextCard[1], [this] { ring.NextCard_MouseUp(1); });
    // The options dialog may apply in the middle of a layout. The one inside is whole before the other
    // goes on, with the same numbers.
    Command2.MouseUp = [this](const MouseEvent&) { door.Enter([this] { Command2_Click(); }); };
    // The panel's own buttons act by themselves, and a question may follow.
    for (PushButton* button : {&Score1.Command1, &Score1.Command2}) {
        onPress(*button, [press = button->MouseUp] { press({}); });
    }
    Score1.OnCloseButton = [this] { Score1.SetVisible(false); };
}

void Form1::Start()
{
    Score1.Start();
    Load();
    Show();
    news.Tell();
}

/// The last move is told before the message that it has won.
void Form1::GameWon()
{
    news.Tell();
    gameCommands.GameWon();
}

/// The order matters: the configuration names the scheme, the first item takes a colour of the scheme,
/// and the places of the stacks come from the first deal, before any scaling.
void Form1::Form_Load()
{
    Score1.SetVisible(false);
    shared.LastFormWidth = RoundHalfEven(OuterWidth());
    DressMessageBox();
    form6.FillSchemeList();
    configuration.ReadcfgFile();
    FillBuiltInScheme(shared);
    schemeStore.ReadScheme(shared.SchemeFile);
    ApplyScheme(shared, Wearers());
    table.CreateCards();
    deal.NewDeal();
    TakePlacesOfStacks();
    SetClientArea({Width(), std::min(Height(), platform().LargestClientArea(*this).height)});
    scaling.ScaleTable(scaling.FirstFactor(shared.CardScale));
    ring.NextStockCard();
    gameCommands.TakeSnapshot();
}

void Form1::DressMessageBox()
{
    msgForm.SetFont({"Ariel", 9, false, false, false});
    msgForm.SetForeColor(PaletteColour(0));
    msgForm.SetCaption(GameTitle);
}

/// The only time that places come from the items; from here on scaling keeps them.
void Form1::TakePlacesOfStacks()
{
    for (int stack = 0; stack < StockStack; ++stack) {
        const Label& base = table.cardy[SlotOf(stack)];
        table.StackLeft[stack] = RoundHalfEven(base.Left());
        table.StackTop[stack] = RoundHalfEven(base.Top());
    }
    const auto takeSlot = [this](int stack) {
        table.StackLeft[stack] = table.SlotLeft[SlotOf(stack)];
        table.StackTop[stack] = table.SlotTop[SlotOf(stack)];
    };
    takeSlot(StockStack);
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        takeSlot(pile);
    }
}

void Form1::Command2_Click()
{
    schemeStore.ReadScheme(shared.SchemeFile);
    ApplyScheme(shared, Wearers());
    scaling.ScaleTable(1.0F);
}

SchemeWearers Form1::Wearers()
{
    return {{&Score1, this, &table.Picture2, &table.cardy[0]},
            {&cmdnewgame, &cmdreset, &cmdundo, &cmdLoadGame, &cmdSaveGame, &cmdabout, &cmdexit, &cmdopts,
             &cmdscore, &cmdhelp, &NextCard[0], &NextCard[1]},
            msgForm,
            *this};
}

} // namespace tessarine
