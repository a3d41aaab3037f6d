// The vertical fan of a column.
#pragma once

#include "table/table.h"

namespace tessarine
{

/// Lays the cards of a column from its place downwards, each in front of the one before: a third of
/// FanStep below a face-down card, all of it below a face-up one.
void LayColumn(Table& table, int column);

} // namespace tessarine
