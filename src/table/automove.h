// Cards that follow onto a finished pile by themselves, and the end of the game.
#pragma once

#include "table/drops.h"
#include "table/table.h"

#include <functional>
#include <utility>

namespace tessarine
{

/// What CheckDone says of a finished game; of any other it says 0.
inline constexpr Whole AllDone = 99;

/// Whether all cards are on finished piles; a finished game is heard.
Whole CheckDone(const Table& table);

class Automove
{
public:
    /// `gameWon` is called once for each game, at its end; it deals the next.
    Automove(Table& table, Hand& hand, Drops& drops, std::function<void()> gameWon)
        : table_(table), hand_(hand), drops_(drops), gameWon_(std::move(gameWon))
    {
    }

    /// After a card left the column `source` for the finished pile `target`: as long as the card now
    /// exposed there is the next of the pile, it follows. Ends with the end test.
    void AutoMove(int source, int target);

    void EndTest();

private:
    bool NextCardFollows(int source, int target) const;
    void InnerFault(const std::string& text);

    Table& table_;
    Hand& hand_;
    Drops& drops_;
    std::function<void()> gameWon_;
};

} // namespace tessarine
