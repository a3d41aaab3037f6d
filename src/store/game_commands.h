// The commands that act on the game as a whole, and its end.
#pragma once

#include "kit/file_chooser.h"
#include "kit/message_box.h"
#include "presentation/scaling.h"
#include "store/game_file.h"
#include "store/scores.h"
#include "store/snapshot.h"
#include "table/deal.h"
#include "table/stock_ring.h"
#include "table/table.h"

namespace tessarine
{

class GameCommands
{
public:
    /// What the commands touch.
    struct Rooms {
        Table& table;
        Deal& deal;
        Scaling& scaling;
        StockRing& ring;
        GameFile& gameFile;
        Snapshot& snapshot;
        ScoresBox& scores;
        MsgForm& messages;
        FNDialog& chooser;
    };
    explicit GameCommands(const Rooms& rooms) : rooms_(rooms) {}

    // Presses of the buttons.
    void cmdnewgame_MouseUp();
    void cmdSaveGame_MouseUp();
    void cmdLoadGame_MouseUp();
    void cmdreset_MouseUp();

    /// All cards are on finished piles: tells it, counts it and deals the next game.
    void GameWon();
    /// A new deal is on the table: puts it on the disk, and tells if that fails.
    void TakeSnapshot();

private:
    static constexpr std::string_view GameGoesOn = "The game on the table goes on.";

    /// Counts the game that is over, by the property of the scores, and deals the next.
    void CountAndDeal(void (ScoresBox::*property)(bool));
    void TellOfSnapshot(const Trouble& trouble);
    void Complain(std::string_view what, const FileTrouble& trouble,
                  std::string_view stands = GameGoesOn);
    void BringPilesForward();
    Platform& platform() const { return rooms_.table.form().platform(); }
    std::string InAppDir(std::string_view name) const;

    Rooms rooms_;
};

} // namespace tessarine
