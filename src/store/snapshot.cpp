#include "store/snapshot.h"

#include "kit/file_chooser.h"
#include "runtime/files.h"

namespace tessarine
{

std::string Snapshot::Path() const
{
    return table_.shared().AppDir + "tempgame.txt";
}

Trouble Snapshot::Take()
{
    Trouble trouble = gameFile_.SaveCardOrder(Path());
    wasTaken_ = !trouble;
    return trouble;
}

/// Whatever has become of the file meanwhile, what is saved is the game that the user sees.
Trouble Snapshot::CopyTo(const std::string& target)
{
    const std::string deal = gameFile_.Text();
    if (platform().ReadFile(Path()).text != deal) {
        if (Trouble trouble = Take()) {
            return trouble;
        }
    }
    return TroubleWith(target, ReplaceFile(platform(), target, deal));
}

Trouble Snapshot::Restore()
{
    if (!wasTaken_ || !FileExists(platform(), Path())) {
        if (Trouble trouble = Take()) {
            return trouble;
        }
    }
    return gameFile_.LoadCardOrder(Path());
}

} // namespace tessarine
