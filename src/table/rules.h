// What may go where.
#pragma once

#include "table/table.h"

namespace tessarine
{

/// Yes if the card heads a run that may be picked up: face-up cards of one suit, each a number lower,
/// to the end of its stack, and not on a finished pile.
Whole CanPickUp(const Table& table, int card);

/// Whether a card may lie on another card of a column: same suit, one lower.
bool FollowsInColumn(const Table& table, int card, int onto);
/// Whether a card is the next of the pile whose highest card is `top`: same suit, one higher.
bool FollowsOnPile(const Table& table, int card, int top);
/// Whether a card may go on a finished pile, which may be empty.
bool FitsOnPile(const Table& table, int card, int pile);

} // namespace tessarine
