// The table's one layout routine.
#pragma once

#include "kit/box_button.h"
#include "table/table.h"

#include <array>

namespace tessarine
{

class Scaling
{
public:
    /// `NextCard` are the two buttons beside the stock: backwards, forwards.
    Scaling(Table& table, std::array<BoxControl, 2>& NextCard) : table_(table), NextCard_(NextCard) {}

    /// Multiplies all sizes and places of the table by the factor, rounding each, and lays every item
    /// anew. A factor of 1 brings the table to its proper state. The window takes the width of the
    /// table if it can. A factor that is no size (not a number, zero, negative) counts as 1, and one
    /// that would make the cards absurdly small or large is held back.
    void ScaleTable(float factor);
    /// The factor nearest to this one that makes a table of the size designed as wide as the command
    /// row needs and no wider than the screen has room for.
    float FirstFactor(float wanted) const;

private:
    double UsableFactor(float factor) const;
    Twips WidthOfItems() const;
    void ScaleNumbers(double factor);
    void ShapeItems();
    void LayBases();
    void LayPiles();
    void LayStock();
    void FitWindow();
    void HideSpareItems();
    void ColourBlankItems();
    void PlaceStockButtons();
    void DrawPileFaces();

    Table& table_;
    std::array<BoxControl, 2>& NextCard_;
};

} // namespace tessarine
