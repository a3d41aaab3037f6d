// Judges a table from outside: by the rules of the game and the proportions of the design alone.
#pragma once

#include "form1.h"

#include <string>
#include <vector>

namespace tessarine::test
{

/// What is wrong with the table between two events, a drag perhaps under way: a card that is lost or
/// doubled, against the rules, out of its place or order, of another size or look. Empty if nothing is.
std::string FaultOfTable(Form1& form);

/// The same in the middle of a move, a deal or a layout: each card is in one stack, or on its way.
std::string FaultOfStacks(Form1& form);

/// Follows the numbers of the layout from event to event: when they change they do so by one factor,
/// each rounded by itself, that a change of the window's width asked for.
class Proportions
{
public:
    explicit Proportions(Form1& form) : form_(form) { static_cast<void>(Fault()); }

    /// What is wrong now, be it in the middle of a move.
    std::string Fault();

private:
    std::vector<double> Numbers() const;

    Form1& form_;
    Twips width_ = 0;    ///< of the window at the last look
    double laidFor_ = 1; ///< the width of the last layout then
    std::vector<double> numbers_;
    std::vector<double> ratios_; ///< of widths since the numbers changed
};

} // namespace tessarine::test
