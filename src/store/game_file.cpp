#include "store/game_file.h"

#include "runtime/files.h"
#include "runtime/numbered.h"

namespace tessarine
{
namespace
{

bool IsCard(const std::string& line)
{
    return line.size() == 2 && line[0] >= '0' && line[0] <= '4' && line[1] >= '0' && line[1] <= '9';
}

} // namespace

std::string FaultOfGame(const std::vector<std::string>& lines)
{
    if (lines.size() < CardCount) {
        return "It has fewer than 50 lines";
    }
    Numbered<bool, CardCount> seen;
    for (std::size_t n = 0; n < CardCount; ++n) {
        const std::string where = "Line " + std::to_string(n + 1);
        if (!IsCard(lines[n])) {
            return where + " is no card from 00 to 49";
        }
        bool& known = seen[CardOfEntry(lines[n])];
        if (known) {
            return where + " holds a card a second time";
        }
        known = true;
    }
    return {};
}

std::string GameFile::Text() const
{
    return JoinLines({table_.CardOrder.begin(), table_.CardOrder.end()});
}

Trouble GameFile::SaveCardOrder(const std::string& path)
{
    return TroubleWith(path, ReplaceFile(platform(), path, Text()));
}

Trouble GameFile::LoadCardOrder(const std::string& path)
{
    const FileResult file = platform().ReadFile(path);
    if (!file) {
        return TroubleWith(path, file.fault);
    }
    const std::vector<std::string> lines = SplitLines(file.text);
    if (const std::string fault = FaultOfGame(lines); !fault.empty()) {
        return FileTrouble{path, "It is no game file. " + fault};
    }
    table_.CardOrder.Clear();
    for (std::size_t n = 0; n < CardCount; ++n) {
        table_.CardOrder.Add(lines[n]);
    }
    deal_.DealCards(Replay::PresentOrder);
    scaling_.ScaleTable(1.0F);
    ring_.NextStockCard();
    return std::nullopt;
}

} // namespace tessarine
