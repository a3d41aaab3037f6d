// An evening without end: the same game, move by move as a hand plays it in a real window, won so many
// times in one process. What is held at the end must be what was held after the tenth. On the platform
// in memory, or through the toolkit's windows.
//   long_life SCRIPT [GAMES]      SCRIPT has the deal and the moves: tests/x11/in_a_window.sh
#include "support/storm.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <malloc.h>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

constexpr int Warm = 10; // games until all is there that is made at its first use

std::string Between(const std::string& text, const std::string& begin, char end)
{
    const std::size_t from = text.find(begin) + begin.size();
    return text.substr(from, text.find(end, from) - from);
}

struct Held {
    std::size_t bytes = mallinfo2().uordblks;
    std::ptrdiff_t handles = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    std::size_t forms;
    std::size_t widgets;
};

class Evening
{
public:
    explicit Evening(const std::string& script) : steps_(Between(script, "steps='", '\''))
    {
        std::istringstream cards(Between(script, "cards=(", ')'));
        for (int card = 0; cards >> card;) {
            deal_ += EntryOfCard(card) + "\r\n";
        }
        std::ranges::replace(steps_, ';', '\n');
        hands_.Meet = [this](Form& box) {
            for (const char* const answer : {"Yes", "Ok"}) {
                if (const Control* const button = HeadlessPlatform::FindShown(box, answer)) {
                    return Press(*button);
                }
            }
        };
    }

    /// What is wrong with a game; empty if it is won.
    std::string Win(int game)
    {
        const std::string deal = form_.shared.AppDir + "tempgame.txt";
        form_.platform().RemoveFile(deal);
        form_.platform().WriteNewFile(deal, deal_);
        Press(form_.cmdreset);
        std::istringstream steps(steps_);
        for (std::string step; std::getline(steps, step);) {
            Do(std::istringstream(step));
        }
        const bool isWon = form_.Score1.ThisSession[2].Caption() == std::to_string(game);
        return isWon ? hands_.Fault() + FaultOfTable(form_) : "it is not won";
    }

    Held Now() const
    {
        return {.forms = form_.AllForms().Loaded().size(), .widgets = stage_->Widgets()};
    }
    bool IsAtRest() const { return hands_.IsAtRest(); }

private:
    void Press(const Control& control)
    {
        const Point at = control.PlaceOnForm();
        const Point middle{at.x + control.Width() / 2, at.y + control.Height() / 2};
        hands_.Press(*control.OwnerForm(), middle, LeftButton, 0);
        hands_.Release(*control.OwnerForm(), middle, LeftButton);
    }

    void Do(std::istringstream step)
    {
        std::string verb;
        std::array<double, 4> numbers{};
        step >> verb >> numbers[0] >> numbers[1] >> numbers[2] >> numbers[3];
        const auto place = [&](std::size_t first) {
            return Point{numbers.at(first) * TwipsPerPixel, numbers.at(first + 1) * TwipsPerPixel};
        };
        if (verb == "drag") {
            hands_.Press(form_, place(0), LeftButton, 0);
            hands_.Move(form_, place(2));
            hands_.Release(form_, place(2), LeftButton);
        }
        for (int times = verb == "press" ? static_cast<int>(numbers[3]) : 0; times > 0; --times) {
            const int button = numbers[2] == 1 ? LeftButton : RightButton;
            hands_.Press(form_, place(0), button, 0);
            hands_.Release(form_, place(0), button);
        }
        hands_.Settle();
    }

    std::unique_ptr<Stage> stage_ = NewStage(0);
    Form1& form_ = stage_->form();
    Hands& hands_ = stage_->hands();
    std::string deal_;
    std::string steps_;
};

} // namespace

int main(int count, char** words)
{
    std::ifstream file(words[1]);
    Evening evening(std::string(std::istreambuf_iterator<char>(file), {}));
    const int games = count > 2 ? std::atoi(words[2]) : 1000;
    Held before{};
    for (int game = 1; game <= games; ++game) {
        if (const std::string fault = evening.Win(game); !fault.empty()) {
            std::printf("game %d: %s\n", game, fault.c_str());
            return 1;
        }
        if (game == Warm) {
            before = evening.Now();
        }
    }
    const Held now = evening.Now();
    std::printf("%d games won; after %d and at the end: %zu and %zu bytes, %td and %td handles, %zu and "
                "%zu forms, %zu and %zu widgets\n",
                games, Warm, before.bytes, now.bytes, before.handles, now.handles, before.forms,
                now.forms, before.widgets, now.widgets);
    // A text or a list may have come by a little room, and the toolkit's caches fill for some hundred
    // games; a byte a game is a leak.
    const std::size_t room = now.widgets == 0 ? 1024 : 32768;
    return now.bytes <= before.bytes + room && now.handles == before.handles &&
                   now.forms == before.forms && now.widgets == before.widgets && evening.IsAtRest()
               ? 0
               : 1;
}
