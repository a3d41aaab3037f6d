// Takes back moves from the stock.
#pragma once

#include "table/table.h"

namespace tessarine
{

/// The history of cards that left the stock since anything else was moved.
class Undo
{
public:
    explicit Undo(Table& table) : table_(table) {}

    /// Notes that a card is leaving the stock for a column or a pile.
    void Record(int source, int destination, int card);
    void Clear() { UndoList.Clear(); }
    std::size_t Count() const { return UndoList.Count(); }

    /// The press of the button: takes back the newest move, if there is one.
    void Pressed();

private:
    void UndoMove();

    Table& table_;
    /// Records of three numbers and two commas, such as " 10, 3, 27", the newest last.
    TextList UndoList;
};

} // namespace tessarine
