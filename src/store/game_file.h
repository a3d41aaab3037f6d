// A game on disk: the 50 cards in dealing order and nothing else.
#pragma once

#include "presentation/scaling.h"
#include "store/file_trouble.h"
#include "table/deal.h"
#include "table/stock_ring.h"
#include "table/table.h"

#include <string>
#include <vector>

namespace tessarine
{

/// What is wrong with a text as a game file, in plain words; empty if it is one. LF alone ends a line
/// too, and lines after the fiftieth don't count.
std::string FaultOfGame(const std::vector<std::string>& lines);

class GameFile
{
public:
    GameFile(Table& table, Deal& deal, Scaling& scaling, StockRing& ring)
        : table_(table), deal_(deal), scaling_(scaling), ring_(ring)
    {
    }

    /// The present deal as a file holds it.
    std::string Text() const;
    /// Writes the present deal.
    Trouble SaveCardOrder(const std::string& path);
    /// Deals the game of a file from its beginning. With a trouble, that it is no game file among them,
    /// nothing has changed.
    Trouble LoadCardOrder(const std::string& path);

private:
    Platform& platform() const { return table_.form().platform(); }

    Table& table_;
    Deal& deal_;
    Scaling& scaling_;
    StockRing& ring_;
};

} // namespace tessarine
