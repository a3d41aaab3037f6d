// The main window: builds the rooms of the program and ties them together.
#pragma once

#include "appearance/apply_scheme.h"
#include "appearance/options_dialog.h"
#include "appearance/scheme_store.h"
#include "kit/about_box.h"
#include "kit/box_button.h"
#include "kit/file_chooser.h"
#include "kit/help_viewer.h"
#include "kit/message_box.h"
#include "kit/sound.h"
#include "presentation/resizing.h"
#include "presentation/scaling.h"
#include "runtime/door.h"
#include "runtime/form.h"
#include "store/configuration.h"
#include "store/game_commands.h"
#include "store/game_file.h"
#include "store/program_commands.h"
#include "store/scores.h"
#include "store/snapshot.h"
#include "table/automove.h"
#include "table/deal.h"
#include "table/description.h"
#include "table/drops.h"
#include "table/gestures.h"
#include "table/hand.h"
#include "table/module1.h"
#include "table/stock_ring.h"
#include "table/table.h"
#include "table/undo.h"

#include <array>
#include <string>

namespace tessarine
{

/// Holds the program's list of forms, which its first form needs at its own making.
struct OwnedForms {
    explicit OwnedForms(Platform& platform) : list(platform) {}
    Forms list;
};

class Form1 : private OwnedForms, public Form
{
public:
    /// `programPath` is the folder of the program, where its files lie; `programName` its bare name,
    /// which names the scores file in the current folder.
    Form1(Platform& platform, const std::string& programPath, const std::string& programName);

    /// Takes the program from nothing to a dealt table on the screen. The caller then lets events run
    /// until the platform's EndProgram.
    void Start();

    Module1 shared;
    Sound sound;
    MsgForm msgForm;
    Form4 form4;
    AboutForm aboutForm;

    // The command row, from the left.
    BoxControl cmdLoadGame;
    BoxControl cmdSaveGame;
    BoxControl cmdscore;
    BoxControl cmdopts;
    BoxControl cmdnewgame;
    BoxControl cmdreset;
    BoxControl cmdabout;
    BoxControl cmdhelp;
    BoxControl cmdexit;
    BoxControl cmdundo;

    Table table;                        ///< with the surface Picture2 and the items cardy
    std::array<BoxControl, 2> NextCard; ///< beside the stock: backwards, forwards
    ScoresBox Score1;
    FNDialog gf1;
    PushButton Command2; ///< out of the user's reach: the options dialog presses it

    News news{table};
    Door door{list, [this] { news.Tell(); }};
    Hand hand;
    Undo undo;
    Deal deal;
    StockRing ring;
    Drops drops;
    Automove automove;
    Gestures gestures;
    Scaling scaling;
    Resizing resizing;
    Configuration configuration;
    GameFile gameFile;
    Snapshot snapshot;
    GameCommands gameCommands;
    SchemeStore schemeStore;
    Form6 form6;
    ProgramCommands programCommands;

protected:
    void OnLoad() override { Form_Load(); }
    void OnResize() override { resizing.Form_Resize(); }
    void OnClose() override { Form_QueryUnload(); }
    void OnUnload() override { Form_QueryUnload(); }
    bool IsBusy() const override { return !door.IsOpen(); }

private:
    void PlaceControls();
    void PlaceCommandRow();
    void ConnectButtons();
    void Form_Load();
    /// Whatever asks for the close: the program ends at once.
    void Form_QueryUnload() { platform().EndProgram(); }
    void DressMessageBox();
    void GameWon();
    void TakePlacesOfStacks();
    /// The table wears the active scheme.
    void Command2_Click();
    SchemeWearers Wearers();
};

} // namespace tessarine
