#include "support/table_check.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>
#include <utility>

namespace tessarine::test
{
namespace
{

constexpr int Stock = 10, StockPlace = 50, FirstFinished = 15;
constexpr double MinCard = 8 * 15, MaxCard = 1000 * 15;

double Rounded(double value)
{
    return std::nearbyint(value); // an exact half to the even neighbour
}

int CardOf(const std::string& entry)
{
    return entry == "..." ? 0 : std::stoi(entry);
}

class TableCheck
{
public:
    explicit TableCheck(Form1& form) : form_(form), table_(form.table), now_(form.shared)
    {
        for (const int card : form_.hand.DragCards()) {
            inHand_.set(static_cast<std::size_t>(card));
        }
    }

    std::string FaultOfStacks()
    {
        for (const TextList& stack : table_.Stacks) {
            for (const std::string& entry : stack) {
                const auto card = static_cast<std::size_t>(CardOf(entry));
                Expect(entry == "..." || !seen_[card], "a card is there twice", CardOf(entry));
                seen_[card] = seen_[card] || entry != "...";
            }
        }
        Expect((seen_ | inHand_).all(), "a card is lost", -1);
        return fault_;
    }

    std::string Fault()
    {
        FaultOfStacks();
        NoteOrder();
        Expect(form_.hand.Dragging() || inHand_.none(), "cards are in the hand, and no drag", -1);
        for (int stack = 0; stack < 20; ++stack) {
            CheckStack(stack);
        }
        CheckItems();
        CheckSurface();
        CheckHand();
        return fault_;
    }

private:
    void Expect(bool holds, const char* what, int item)
    {
        if (!holds && fault_.empty()) {
            fault_ = what + (item < 0 ? std::string() : ": " + std::to_string(item));
        }
    }

    void ExpectBounds(const Control& control, const std::array<double, 4>& bounds, const char* what)
    {
        const std::array<double, 4> are{control.Left(), control.Top(), control.Width(),
                                        control.Height()};
        Expect(are == bounds, what, -1);
    }

    const Label& Item(int item) const { return table_.cardy[item]; }
    bool IsUp(int card) const { return !Item(card).Caption().empty(); }
    bool IsFree(int item) const { return item >= 50 || !inHand_[static_cast<std::size_t>(item)]; }
    int& Depth(int item) { return depth_[static_cast<std::size_t>(item)]; }

    /// How far in front each item lies; hidden ones do not count.
    void NoteOrder()
    {
        int place = 0;
        for (const Control* child : table_.Picture2.Children()) {
            if (child->Kind() == ControlKind::Label) {
                Depth(static_cast<int>(static_cast<const Label*>(child) - &Item(0))) = ++place;
            }
        }
    }

    void CheckStack(int stack)
    {
        const bool isColumn = stack < 8;
        const bool isPile = stack >= FirstFinished;
        const double left = table_.StackLeft[stack];
        double top = table_.StackTop[stack];
        double step = Rounded(now_.FanStep / 3.0);
        int before = -1;
        int markers = 0;
        std::size_t left_in = table_.Stacks[stack].Count();
        Expect(isColumn || isPile || stack == Stock || left_in == 0, "a spare stack holds something",
               stack);
        for (const std::string& entry : table_.Stacks[stack]) {
            --left_in;
            if (entry == "...") {
                ++markers;
                continue;
            }
            const int card = CardOf(entry);
            Expect(table_.CardStack[card] == stack, "a card counts to another stack", card);
            Expect(!IsUp(card) || Item(card).Caption() == std::to_string(card % 10), "another face",
                   card);
            Expect(Item(card).Font().underline == isPile, "the line under a number", card);
            Expect(Item(card).Visible() || stack == Stock, "a card does not show", card);
            Expect(IsUp(card) || (isColumn && left_in > 0), "a card is face-down", card);
            Expect(!IsFree(card) || (Item(card).Left() == left && Item(card).Top() == top),
                   "a card is out of its place", card);
            if (isPile) {
                Expect(before < 0 ? card % 10 == 0 : card == before + 1 && card % 10 > 0,
                       "a finished pile out of order", card);
            } else if (isColumn && before >= 0 && IsUp(before)) {
                Expect(IsUp(card) && card == before - 1 && before % 10 > 0, "a run is broken", card);
            }
            if (stack != Stock) {
                const int behind = before >= 0 ? before : stack + (isPile ? 40 : 60);
                Expect(Depth(behind) < Depth(card) || !IsFree(behind), "a card lies behind", card);
            }
            step = IsUp(card) ? now_.FanStep : step;
            top += isColumn ? step : 0;
            before = card;
        }
        Expect(markers == (stack == Stock ? 1 : 0), "markers in a stack", stack);
    }

    void CheckItems()
    {
        const std::string& entry = table_.Stacks[Stock].Back();
        const int shown = entry == "..." ? StockPlace : CardOf(entry);
        Expect(Item(shown).Visible(), "the stock does not show", shown);
        const double points = Rounded(now_.CardWidth / 32.0);
        for (int item = 0; item < 70; ++item) {
            const Label& label = Item(item);
            Expect(label.Width() == now_.CardWidth && label.Height() == now_.CardHeight, "another size",
                   item);
            const bool isText =
                label.Font().size == points && label.Font().bold && label.Align() == Alignment::Centre;
            Expect(isText && label.IsOpaque(), "another look", item);
            const bool isBlank = item == StockPlace || label.Caption().empty();
            Expect(!isBlank || label.BackColor() == Item(60).BackColor(), "another colour", item);
            const bool isPileBase = item >= 55 && item < 60;
            const bool isBase = isPileBase || (item >= 60 && item < 68);
            Expect(item <= 50 || label.Visible() == isBase, "a base or a spare item shows or not", item);
            if (isBase || item == StockPlace) {
                const int stack = item >= 60 ? item - 60 : item - 40;
                Expect(label.Left() == table_.StackLeft[stack] && label.Top() == table_.StackTop[stack],
                       "a base is out of its place", item);
                Expect(item == StockPlace || table_.SlotLeft[item] == label.Left(), "a slot", item);
            }
            if (item != shown &&
                (item == StockPlace || (item < 50 && table_.CardStack[item] == Stock))) {
                Expect(!label.Visible() || !IsFree(shown) || Depth(item) < Depth(shown),
                       "what shows at the stock is not the last of the ring", item);
            }
        }
    }

    void CheckSurface()
    {
        double row = 30;
        for (const Control* button : form_.Children()) {
            if (dynamic_cast<const BoxControl*>(button) != nullptr) {
                ExpectBounds(*button, {row, 30, 360, 360}, "a button of the row is out of its place");
                row += 360;
            }
        }
        ExpectBounds(form_.Score1, {450, 690, 3795, 2985}, "the scores are out of their place");
        ExpectBounds(table_.Picture2,
                     {30, 450, table_.StackLeft[19] + now_.CardWidth + 100.0, table_.Picture2.Height()},
                     "the surface is out of its place");
        const double side = now_.CardWidth / 2.0;
        const double left = table_.StackLeft[Stock] + now_.CardWidth;
        const double top = table_.StackTop[Stock] + now_.CardHeight / 4.0;
        ExpectBounds(form_.NextCard[0], {left, top, side, side}, "< is out of its place");
        ExpectBounds(form_.NextCard[1], {left + side, top, side, side}, "> is out of its place");
    }

    /// The cards of a drag keep their places to one another, in front of all others.
    void CheckHand()
    {
        const Label* before = nullptr;
        int depth = 70 - static_cast<int>(inHand_.count());
        for (const int card : form_.hand.DragCards()) {
            Expect(before == nullptr || (Item(card).Left() == before->Left() &&
                                         Item(card).Top() == before->Top() + now_.FanStep),
                   "the cards in the hand fall apart", card);
            Expect(Depth(card) == ++depth, "a card in the hand lies behind", card);
            before = &Item(card);
        }
    }

    Form1& form_;
    Table& table_;
    const Module1& now_;
    std::array<int, 70> depth_{};
    std::bitset<50> inHand_;
    std::bitset<50> seen_;
    std::string fault_;
};

} // namespace

std::string FaultOfTable(Form1& form)
{
    return TableCheck(form).Fault();
}

std::string FaultOfStacks(Form1& form)
{
    return TableCheck(form).FaultOfStacks();
}

std::vector<double> Proportions::Numbers() const
{
    std::vector<double> numbers{1.0 * form_.shared.CardWidth, 1.0 * form_.shared.CardHeight,
                                1.0 * form_.shared.FanStep};
    for (const auto* places : {&form_.table.StackLeft, &form_.table.StackTop}) {
        numbers.insert(numbers.end(), places->begin(), places->end());
    }
    return numbers;
}

std::string Proportions::Fault()
{
    const std::vector<double> before = std::exchange(numbers_, Numbers());
    const double laidFor = std::exchange(laidFor_, form_.shared.LastFormWidth);
    const bool isResized = std::exchange(width_, form_.OuterWidth()) != width_;
    if (numbers_ == before || before.empty()) {
        ratios_.insert(ratios_.end(), isResized ? 1 : 0, width_ / laidFor);
        return {};
    }
    double least = 0;
    double most = 1e9;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] > 0) {
            least = std::max(least, (numbers_[i] - 0.5) / before[i] * (1 - 1e-6));
            most = std::min(most, (numbers_[i] + 0.5) / before[i] * (1 + 1e-6));
        }
    }
    const bool isAsked = std::ranges::any_of(std::exchange(ratios_, {}), [&](double ratio) {
        ratio = std::clamp(ratio, MinCard / before[0], MaxCard / before[0]);
        return ratio > least && ratio < most;
    });
    return isAsked ? "" : "the layout took a size that nobody asked for";
}

} // namespace tessarine::test
