// Takes back moves from the stock.
#pragma once

#include "table/table.h"

#include <vector>

namespace tessarine
{

/// The history of cards that left the stock since anything else was moved.
class Undo
{
public:
    explicit Undo(Table& table) : table_(table) {}

    /// Notes that a card is leaving the stock for a column or a pile.
    void Record(int destination, int card) { UndoList.push_back({destination, card}); }
    void Clear() { UndoList.clear(); }
    std::size_t Count() const { return UndoList.size(); }

    /// Takes back the newest move, if there is one.
    void cmdundo_MouseUp();

private:
    struct StockMove {
        int destination = 0;
        int card = 0;
    };

    void UndoMove();

    Table& table_;
    std::vector<StockMove> UndoList; ///< the newest last
};

} // namespace tessarine
