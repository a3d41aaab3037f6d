#include "store/game_commands.h"

#include "runtime/files.h"
#include "table/automove.h"

namespace tessarine
{
namespace
{

constexpr std::string_view Snapshot = "tempgame.txt";
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
    platform().SetBusyPointer(true);
    rooms_.scores.SetLostSession(true);
    DealNextGame();
    platform().SetBusyPointer(false);
}

void GameCommands::cmdSaveGame_MouseUp()
{
    platform().SetBusyPointer(true);
    rooms_.table.sound().PlayWav("_menu.wav");
    const std::string target = NextFreeName(platform(), InAppDir(SavedGame));
    const bool saved = !target.empty() && rooms_.gameFile.Copy(InAppDir(Snapshot), target);
    platform().SetBusyPointer(false);
    if (saved) {
        rooms_.messages.MsgboxA(TwoLines("Game saved to file:", target), "vbok+vbinformation");
    } else if (target.empty()) {
        rooms_.gameFile.Complain(
            "All 99 names for saved games are taken in folder:", rooms_.table.shared().AppDir,
            "Nothing was written. Remove a game that you no longer need.");
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
    platform().SetBusyPointer(true);
    const bool loaded = rooms_.gameFile.LoadCardOrder(name);
    if (loaded) {
        rooms_.undo.Clear();
        rooms_.gameFile.SaveCardOrder(InAppDir(Snapshot));
    }
    platform().SetBusyPointer(false);
    if (loaded) {
        rooms_.messages.MsgboxA(TwoLines("Game restored from file:", name), "vbok+vbinformation");
    }
}

void GameCommands::cmdreset_MouseUp()
{
    rooms_.table.sound().PlayWav("_menu.wav");
    if (rooms_.messages.MsgboxA("Restore current game?", "vbquestion+vbyesno") != AnswerYes) {
        return;
    }
    platform().SetBusyPointer(true);
    const bool restored = rooms_.gameFile.LoadCardOrder(InAppDir(Snapshot));
    platform().SetBusyPointer(false);
    if (restored) {
        rooms_.undo.Clear();
        rooms_.messages.MsgboxA("Game restored", "vbok+vbinformation");
    }
}

void GameCommands::GameWon()
{
    BringPilesForward();
    rooms_.messages.MsgboxA("Its all done!", "vbhappy+vbok");
    platform().SetBusyPointer(true);
    rooms_.scores.SetWonSession(true);
    DealNextGame();
    platform().SetBusyPointer(false);
}

void GameCommands::BringPilesForward()
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        for (const std::string& entry : rooms_.table.Stacks[At(pile)]) {
            rooms_.table.cardy[At(CardOfEntry(entry))].BringToFront();
        }
    }
}

void GameCommands::DealNextGame()
{
    rooms_.deal.NewDeal();
    rooms_.scaling.ScaleTable(1.0F);
    rooms_.ring.NextStockCard();
    rooms_.gameFile.SaveCardOrder(InAppDir(Snapshot));
}

} // namespace tessarine
