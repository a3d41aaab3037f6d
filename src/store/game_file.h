// A game on disk: the 50 cards in dealing order and nothing else.
#pragma once

#include "kit/message_box.h"
#include "presentation/scaling.h"
#include "table/deal.h"
#include "table/stock_ring.h"
#include "table/table.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// What is wrong with a text as a game file, in plain words; empty if it is one. LF alone ends a line
/// too, and lines after the fiftieth don't count.
std::string FaultOfGame(const std::vector<std::string>& lines);

class GameFile
{
public:
    GameFile(Table& table, Deal& deal, Scaling& scaling, StockRing& ring, MsgForm& messages)
        : table_(table), deal_(deal), scaling_(scaling), ring_(ring), messages_(messages)
    {
    }

    /// Writes the present deal. False, and a message, if it can't be written.
    bool SaveCardOrder(const std::string& path);
    /// Deals the game of a file from its beginning. False, and a message, if the file can't be read
    /// or is no game file; then nothing has changed.
    bool LoadCardOrder(const std::string& path);
    /// Copies a game file. False, and a message, if that fails.
    bool Copy(const std::string& from, const std::string& to);

    /// A notice that something about a file went wrong: what, the file, and what now stands.
    void Complain(std::string_view what, const std::string& path, std::string_view stands);

private:
    Table& table_;
    Deal& deal_;
    Scaling& scaling_;
    StockRing& ring_;
    MsgForm& messages_;
};

} // namespace tessarine
