// Any bytes where the program reads a text.
//   readers_fuzz READER FOLDER... [-runs=...]   READER is one of those named at the end
#include "appearance/scheme_file.h"
#include "store/configuration.h"
#include "store/game_file.h"
#include "store/score_line.h"
#include "store/scramble.h"
#include "support/game_world.h"
#include "support/storm.h"

#include "runtime/files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

void Must(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// What was once read and written stays as it is.
void Configurations(const std::string& text)
{
    if (const auto settings = ReadSettings(text)) {
        const std::string saved = SettingsText(*settings, {});
        Must(SettingsText(ReadSettings(saved).value(), {}) == saved);
    }
}

void Games(const std::string& text)
{
    std::vector<std::string> lines = SplitLines(text);
    if (FaultOfGame(lines).empty()) {
        lines.resize(50);
        std::ranges::sort(lines);
        Must(lines.front() == "00" && lines.back() == "49" &&
             std::ranges::adjacent_find(lines) == lines.end());
    }
}

void Scores(const std::string& text)
{
    Must(UnscrambleLine(ScrambleLine(text)) == text);
    for (const std::string& line : {text, UnscrambleLine(text)}) {
        if (const auto scores = ScoreLine::Read(line)) {
            Must(ScoreLine::Read(scores->Text())->counts == scores->counts);
            for (const std::string& count : scores->counts) {
                Must(NumberAtStart(OneMore(count)) >= NumberAtStart(count));
            }
        }
    }
}

/// A name that is listed can be taken out, and an entry that is put in is read as it was.
void Schemes(const std::string& text)
{
    const auto names = SchemeNames(text);
    if (!names.empty()) {
        const std::string line = names.back() + ".col";
        Dress dress;
        ReadEntry(text, line, SlotSource::Derived, dress);
        ReadEntry(text, line, SlotSource::File, dress);
        const std::string without = WithEntryReplaced(text, line, "").value_or("");
        Dress again;
        Must(!ReadEntry(without, line, SlotSource::File, again));
        Must(ReadEntry(WithEntryAdded(without, EntryText(line, dress)), line, SlotSource::File, again));
        Must(std::equal(dress.SchemeColors.begin(), dress.SchemeColors.begin() + 13,
                        again.SchemeColors.begin()));
    }
}

void Numbers(const std::string& text)
{
    const double number = NumberAtStart(text);
    const auto shorter = static_cast<float>(number);
    Must(!std::isnan(number) && WholeAtStart(NumberText(WholeAtStart(text))) == WholeAtStart(text));
    Must(!std::isfinite(shorter) || static_cast<float>(NumberAtStart(DecimalText(shorter))) == shorter);
}

/// A program starts with the text in one of its files, tells what is due, and plays on.
void Files(const std::string& text)
{
    static constexpr std::array files = {"/app/tessarine.cfg", "/app/all.col", "/app/tempgame.txt",
                                         "/run/tessarine.sco"};
    if (text.empty()) {
        return;
    }
    const std::string path = files[static_cast<unsigned char>(text[0]) % files.size()];
    static const GameWorld installed;
    HeadlessPlatform platform;
    platform.files = installed.platform.files;
    platform.files[path] = text.substr(1);
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    // The start has written a new snapshot: put the bytes back for the commands that read them.
    platform.files[path] = text.substr(1);
    platform.AnswerModal("Yes");
    platform.Click(form.cmdreset);
    platform.Click(form.cmdopts);
    form.form6.FillSchemeList();
    form.Score1.SetWonSession(true);
    platform.AnswerModal("Yes");
    platform.Click(form.cmdnewgame);
    Must(FaultOfTable(form).empty());
}

/// The storm of gestures, led by what reaches new code.
void Storms(const std::string& text)
{
    std::vector<Gesture> gestures(text.size() / sizeof(Gesture));
    std::memcpy(gestures.data(), text.data(), gestures.size() * sizeof(Gesture));
    const auto seed = static_cast<unsigned>(text.size());
    HeadlessStage stage(seed);
    StormCount count;
    Must(PlayStorm(stage, seed, gestures, count).empty());
}

using Reader = void (*)(const std::string&);
const std::map<std::string, Reader> Readers = {{"configurations", Configurations},
                                               {"files", Files},
                                               {"games", Games},
                                               {"gestures", Storms},
                                               {"numbers", Numbers},
                                               {"schemes", Schemes},
                                               {"scores", Scores}};
Reader chosen = nullptr;

} // namespace

/// Takes the reader's name from the words of the command.
extern "C" int LLVMFuzzerInitialize(int* count, char*** words)
{
    chosen = *count > 1 ? Readers.at((*words)[1]) : nullptr;
    std::rotate(*words + 1, *words + 2, *words + *count);
    --*count;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    chosen(std::string(bytes, bytes + size));
    return 0;
}
