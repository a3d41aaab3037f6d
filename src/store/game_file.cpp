#include "store/game_file.h"

#include "runtime/files.h"

#include <array>

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
    std::array<bool, CardCount> seen{};
    for (std::size_t n = 0; n < CardCount; ++n) {
        const std::string where = "Line " + std::to_string(n + 1);
        if (!IsCard(lines[n])) {
            return where + " is no card from 00 to 49";
        }
        bool& known = seen[At(CardOfEntry(lines[n]))];
        if (known) {
            return where + " holds a card a second time";
        }
        known = true;
    }
    return {};
}

bool GameFile::SaveCardOrder(const std::string& path)
{
    const std::vector<std::string> lines(table_.CardOrder.begin(), table_.CardOrder.end());
    if (ReplaceFile(table_.form().platform(), path, JoinLines(lines)) == FileFault::None) {
        return true;
    }
    Complain("The deal could not be written to file:", path,
             "The game goes on, but Restore and Save do not know it.");
    return false;
}

bool GameFile::LoadCardOrder(const std::string& path)
{
    const FileResult file = table_.form().platform().ReadFile(path);
    if (!file) {
        Complain("Game file could not be read:", path, "The game on the table goes on.");
        return false;
    }
    const std::vector<std::string> lines = SplitLines(file.text);
    if (const std::string fault = FaultOfGame(lines); !fault.empty()) {
        Complain("This is no game file:", path, fault + ". The game on the table goes on.");
        return false;
    }
    const InputHold hold(table_.form());
    table_.CardOrder.Clear();
    for (std::size_t n = 0; n < CardCount; ++n) {
        table_.CardOrder.Add(lines[n]);
    }
    deal_.DealCards(Replay::PresentOrder);
    scaling_.ScaleTable(1.0F);
    ring_.NextStockCard();
    return true;
}

bool GameFile::Copy(const std::string& from, const std::string& to)
{
    if (CopyFile(table_.form().platform(), from, to) == FileFault::None) {
        return true;
    }
    Complain("Game could not be saved to file:", to, "Nothing was written. The game goes on.");
    return false;
}

void GameFile::Complain(std::string_view what, const std::string& path, std::string_view stands)
{
    std::string text(what);
    text.append(LineEnd).append(path).append(LineEnd).append(stands);
    messages_.MsgboxA(text, "vbcritical+vbok");
}

} // namespace tessarine
