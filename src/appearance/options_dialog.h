// The options dialog: colour schemes, card colours, the font of the cards, and the sound.
#pragma once

#include "appearance/colour_picker.h"
#include "appearance/scheme_commands.h"
#include "appearance/scheme_store.h"
#include "kit/box_button.h"
#include "kit/message_box.h"
#include "kit/sound.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "table/module1.h"

#include <array>

namespace tessarine
{

/// Works straight on the shared variables, with no buffer and no cancel. What is tried out paints only
/// this form; card colours and the sound switch are taken over at once; Apply stores the names of
/// scheme and font and repaints the table.
class Form6 : public Form
{
public:
    /// A press of `command2` makes the table wear the active scheme. It must outlive the form.
    Form6(Forms& forms, Module1& module, SchemeStore& store, MsgForm& messageBox, const Sound& sound,
          PushButton& command2);

    /// Fills the list of schemes from the file; without the file it stays as it is. The font list
    /// fills itself when it is first looked at.
    void FillSchemeList() { commands_.FillList(); }

    static constexpr std::size_t NumColCount = 6;
    /// The option whose colour is that of the numbers; those before it are the suits'.
    static constexpr std::size_t NumbersOption = 5;

    Frame Frame5; ///< colour scheme
    ColPik ColPik1;
    ScrollBar ContrastV{ScrollBar::Direction::Across}; ///< hundredths; silent while its Tag is "X"
    ListBox List1{TextList::Order::Sorted};
    BoxControl showsch;
    BoxControl repsch;
    BoxControl delsch;
    BoxControl addsch;
    Frame Frame1; ///< sound
    CheckBox Check1;
    BoxControl command3; ///< Apply
    BoxControl command4; ///< Exit
    Frame Frame3;        ///< card colour
    ColPik ColPik2;
    Frame Frame7; ///< numbers
    std::array<OptionButton, NumColCount> NumCol;
    BoxControl cmdreset;
    Frame Frame6; ///< font
    ListBox List2{TextList::Order::Sorted};
    Label Label1; ///< sample of the font

protected:
    void OnActivate() override;

private:
    void PlaceControls();
    void PlaceSchemeGroup();
    void PlaceSoundGroup();
    void PlaceCardColourGroup();
    void PlaceFontGroup();
    void NameControls();
    void ConnectSchemeGroup();
    void ConnectOthers();

    void PaintOptions();
    void ShowNumColours();
    void ResetContrastQuietly();
    void SelectCardFont();

    void List1_MouseUp();
    void ContrastV_Change();
    void showsch_MouseUp();
    void ColPik1_SelColor(Colour colour);
    void ColPik2_SelColor(Colour colour);
    void NumCol_MouseUp(std::size_t option);
    void List2_MouseUp();
    void Check1_MouseUp();
    void cmdreset_MouseUp();
    void command3_MouseUp(); ///< Apply
    void command4_MouseUp(); ///< Exit

    Module1& module_;
    SchemeStore& store_;
    MsgForm& messageBox_;
    const Sound& sound_;
    PushButton& command2_;
    SchemeCommands commands_;
};

} // namespace tessarine
