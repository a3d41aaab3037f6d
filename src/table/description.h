// What a listener is told of the table.
#pragma once

#include "table/table.h"

#include <string>

namespace tessarine
{

/// "7 of H, column 3"; empty for what does not show. Any state of the table has an answer, a half dealt
/// one too.
std::string Description(const Table& table, int item);

/// Gives every item its description.
void DescribeItems(Table& table);

} // namespace tessarine
