// The deal on the table as the disk has it.
#pragma once

#include "store/file_trouble.h"
#include "store/game_file.h"
#include "table/table.h"

#include <string>

namespace tessarine
{

/// The one owner of "tempgame.txt", which Restore deals again and Save copies. A disk that would not
/// take the deal is asked again before either of them: the deal that was there before is another game.
class Snapshot
{
public:
    Snapshot(Table& table, GameFile& gameFile) : table_(table), gameFile_(gameFile) {}

    /// A new deal is on the table: puts it on the disk.
    Trouble Take();
    /// Copies the deal on the table to another file.
    Trouble CopyTo(const std::string& target);
    /// Deals it again from its beginning. With a trouble the table is as it was.
    Trouble Restore();

private:
    std::string Path() const;
    Platform& platform() const { return table_.form().platform(); }

    Table& table_;
    GameFile& gameFile_;
    bool wasTaken_ = false; ///< the last deal that came on the table reached the disk
};

} // namespace tessarine
