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

/// Tells a listener what happens on the table, as descriptions of what is now elsewhere or shows anew:
/// whoever has heard all of it knows how the table stands.
class News
{
public:
    explicit News(const Table& table) : table_(table) {}

    /// Announces what has changed since the last call: cards that were moved, then cards and places that
    /// came to light. After a deal that is all that shows, column by column.
    void Tell();

private:
    bool WasDealt() const;

    const Table& table_;
    Numbered<std::string, ItemCount> told_; ///< of each item its last description
};

} // namespace tessarine
