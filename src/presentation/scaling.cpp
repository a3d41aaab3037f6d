#include "presentation/scaling.h"

#include "presentation/fan.h"
#include "presentation/places.h"

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

/// Width of a card in twips for each point of its text.
constexpr double TwipsPerTextPoint = 32;

} // namespace

void Scaling::ScaleTable(float factor)
{
    ScaleNumbers(UsableFactor(factor));
    ShapeItems();
    LayBases();
    for (int column = 0; column < Columns; ++column) {
        LayColumn(table_, column);
    }
    LayPiles();
    LayStock();
    FitWindow();
    HideSpareItems();
    ColourBlankItems();
    PlaceStockButtons();
    DrawPileFaces();
}

double Scaling::UsableFactor(float factor) const
{
    if (!std::isfinite(factor) || factor <= 0) {
        return 1;
    }
    const double width = table_.shared().CardWidth;
    return std::clamp<double>(factor, places::SmallestCard / width, places::LargestCard / width);
}

/// What is left of the window is the same at every size.
float Scaling::FirstFactor(float wanted) const
{
    Form& form = table_.form();
    const auto toFill = [this](Twips clientWidth) {
        return (clientWidth + FrameWidth - places::WindowMargin - places::SurfaceMargin) /
               WidthOfItems();
    };
    const double largest = toFill(form.platform().LargestClientArea(form).width);
    const double smallest = toFill(places::RowRight + places::RowLeft);
    return static_cast<float>(std::min(largest, std::max(smallest, UsableFactor(wanted))));
}

/// Up to the right edge of the last pile.
Twips Scaling::WidthOfItems() const
{
    constexpr int lastPileBase = FirstPileBase + Piles - 1;
    return table_.SlotLeft[lastPileBase] + table_.shared().CardWidth;
}

/// Each number is rounded by itself, from its last rounded value.
void Scaling::ScaleNumbers(double factor)
{
    Module1& shared = table_.shared();
    for (Whole* length : {&shared.FanStep, &shared.CardWidth, &shared.CardHeight}) {
        *length = RoundHalfEven(*length * factor);
    }
    for (Whole& left : table_.StackLeft) {
        left = RoundHalfEven(left * factor);
    }
    for (Whole& top : table_.StackTop) {
        top = RoundHalfEven(top * factor);
    }
}

void Scaling::ShapeItems()
{
    const Module1& shared = table_.shared();
    const Whole points = RoundHalfEven(shared.CardWidth / TwipsPerTextPoint);
    for (int item = 0; item < ItemCount; ++item) {
        Label& label = table_.cardy[item];
        label.SetFontUnderline(table_.StackOf(item) >= FirstPile);
        label.SetWidth(shared.CardWidth);
        label.SetHeight(shared.CardHeight);
        label.SetFontSize(points);
        label.SetOpaque(true);
    }
}

void Scaling::LayBases()
{
    const auto layBase = [this](int stack) {
        const int slot = SlotOf(stack);
        table_.SlotLeft[slot] = table_.StackLeft[stack];
        table_.SlotTop[slot] = table_.StackTop[stack];
        table_.cardy[slot].Move(table_.StackLeft[stack], table_.StackTop[stack]);
    };
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        layBase(pile);
        table_.cardy[SlotOf(pile)].SetVisible(true);
    }
    // The two spare stacks behind the columns have bases too.
    for (int stack = 0; stack < StockStack; ++stack) {
        layBase(stack);
    }
}

void Scaling::LayPiles()
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        for (const std::string& entry : table_.Stacks[pile]) {
            Label& label = table_.cardy[CardOfEntry(entry)];
            label.Move(table_.StackLeft[pile], table_.StackTop[pile]);
            label.SetVisible(true);
            label.BringToFront();
        }
    }
}

/// Comes last: each face lets events run, and whoever looks at the table then, or opens a box over it,
/// finds it whole.
void Scaling::DrawPileFaces()
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        for (std::size_t n = 0; n < table_.Stacks[pile].Count(); ++n) {
            table_.ShowCardFace(CardOfEntry(table_.Stacks[pile].At(n)));
        }
    }
}

/// What shows of the stock goes on showing: order and visibility stay.
void Scaling::LayStock()
{
    const Whole left = table_.StackLeft[StockStack];
    const Whole top = table_.StackTop[StockStack];
    for (const std::string& entry : table_.Stacks[StockStack]) {
        if (entry != Marker) {
            table_.cardy[CardOfEntry(entry)].Move(left, top);
        }
    }
    Label& place = table_.cardy[StockItem];
    place.Move(left, top);
    place.SetCaption(std::string(Marker));
    place.SetBackColor(table_.shared().Button());
}

/// The height of the window is the user's and the surface follows it; the width follows the cards. A
/// window may refuse: the width that counts is the one it really has.
void Scaling::FitWindow()
{
    Form& form = table_.form();
    Module1& shared = table_.shared();
    const Twips width = WidthOfItems() + places::SurfaceMargin;
    table_.Picture2.SetWidth(width);
    shared.LastFormWidth = -1;
    const Twips height = form.OuterHeight() - table_.Picture2.Top() - places::BelowSurface;
    if (height >= 0) {
        table_.Picture2.SetHeight(height);
    }
    form.SetOuterWidth(width + places::WindowMargin);
    shared.LastFormWidth = RoundHalfEven(form.OuterWidth());
}

void Scaling::HideSpareItems()
{
    for (int item = StockItem; item < ItemCount; ++item) {
        if (IsSpare(item)) {
            table_.cardy[item].SetVisible(false);
        }
    }
}

void Scaling::ColourBlankItems()
{
    const Colour colour = table_.shared().Button();
    for (int item = 0; item < ItemCount; ++item) {
        if (!table_.IsFaceUp(item)) {
            table_.cardy[item].SetBackColor(colour);
        }
    }
}

/// Each half a card wide and square, side by side against the stock's right edge.
void Scaling::PlaceStockButtons()
{
    const Module1& shared = table_.shared();
    const Twips side = shared.CardWidth / 2.0;
    const Twips left = table_.StackLeft[StockStack] + shared.CardWidth;
    const Twips top = table_.StackTop[StockStack] + shared.CardHeight / 4.0;
    NextCard_[0].SetBounds(left, top, side, side);
    NextCard_[1].SetBounds(left + side, top, side, side);
}

} // namespace tessarine
