#include "store/game_commands.h"

#include "runtime/busy_pointer.h"
#include "runtime/files.h"
#include "table/automove.h"

namespace tessarine
{
namespace
{

constexpr std::string_view SavedGame = "savedgame.gam";

std::string TwoLines(std::string_view first, std::string_view second)
{
    std::string text(first);
    text.append(LineEnd).append(second);
    return text;
}

} // namespace

std::string GameCommands::InAppDir(std::string_view name) const
{
    return rooms_.table.shared().AppDir + std::string(name);
}

void GameCommands::cmdnewgame_MouseUp()
{
    rooms_.table.sound().PlayWav("_menu.wav");
    if (CheckDone(rooms_.table) != AllDone &&
        rooms_.messages.MsgboxA("Abandon current game?", "vbquestion+vbyesno") != AnswerYes) {
        return;
    }
    CountAndDeal(&ScoresBox::SetLostSession);
}

void GameCommands::cmdSaveGame_MouseUp()
{
    std::string target;
    const Trouble trouble = WhileBusy(platform(), [&]() -> Trouble {
        rooms_.table.sound().PlayWav("_menu.wav");
        target = NextFreeName(platform(), InAppDir(SavedGame));
        if (target.empty()) {
            return FileTrouble{rooms_.table.shared().AppDir,
                               "All 99 names are taken. Remove a game that you no longer need"};
        }
        return rooms_.snapshot.CopyTo(target);
    });
    if (trouble) {
        Complain("Game could not be saved:", *trouble);
    } else {
        rooms_.messages.MsgboxA(TwoLines("Game saved to file:", target), "vbok+vbinformation");
    }
}

void GameCommands::cmdLoadGame_MouseUp()
{
    rooms_.table.sound().PlayWav("_menu.wav");
    rooms_.chooser.title = "tessarine";
    rooms_.chooser.FileTypes = "*.gam";
    rooms_.chooser.FileTypesName = "tessarine Game File";
    rooms_.chooser.DefaultDir = rooms_.table.shared().AppDir;
    const std::string name = rooms_.chooser.GetFileName("OPEN");
    if (name.empty()) {
        return;
    }
    Trouble notTaken;
    const Trouble notLoaded = WhileBusy(platform(), [&] {
        Trouble trouble = rooms_.gameFile.LoadCardOrder(name);
        if (!trouble) {
            notTaken = rooms_.snapshot.Take();
        }
        return trouble;
    });
    if (notLoaded) {
        Complain("Game could not be loaded from file:", *notLoaded);
        return;
    }
    TellOfSnapshot(notTaken);
    rooms_.messages.MsgboxA(TwoLines("Game restored from file:", name), "vbok+vbinformation");
}

void GameCommands::cmdreset_MouseUp()
{
    rooms_.table.sound().PlayWav("_menu.wav");
    if (rooms_.messages.MsgboxA("Restore current game?", "vbquestion+vbyesno") != AnswerYes) {
        return;
    }
    const Trouble trouble = WhileBusy(platform(), [this] { return rooms_.snapshot.Restore(); });
    if (trouble) {
        Complain("Game could not be restored from file:", *trouble);
        return;
    }
    rooms_.messages.MsgboxA("Game restored", "vbok+vbinformation");
}

void GameCommands::GameWon()
{
    BringPilesForward();
    rooms_.messages.MsgboxA("Its all done!", "vbhappy+vbok");
    CountAndDeal(&ScoresBox::SetWonSession);
}

void GameCommands::BringPilesForward()
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        for (const std::string& entry : rooms_.table.Stacks[pile]) {
            rooms_.table.cardy[CardOfEntry(entry)].BringToFront();
        }
    }
}

void GameCommands::CountAndDeal(void (ScoresBox::*property)(bool))
{
    TellOfSnapshot(WhileBusy(platform(), [&] {
        (rooms_.scores.*property)(true);
        rooms_.deal.NewDeal();
        rooms_.scaling.ScaleTable(1.0F);
        rooms_.ring.NextStockCard();
        return rooms_.snapshot.Take();
    }));
}

void GameCommands::TakeSnapshot()
{
    TellOfSnapshot(rooms_.snapshot.Take());
}

void GameCommands::TellOfSnapshot(const Trouble& trouble)
{
    if (trouble) {
        Complain("The deal could not be written to file:", *trouble,
                 "The game goes on. Save and Restore will try to write it again.");
    }
}

void GameCommands::Complain(std::string_view what, const FileTrouble& trouble, std::string_view stands)
{
    rooms_.messages.MsgboxA(NoticeOf(what, trouble, stands), "vbcritical+vbok");
}

} // namespace tessarine
