#include "support/storm.h"

#include "runtime/files.h"

#include <cmath>

namespace tessarine::test
{
namespace
{

/// Each suit is done up to somewhere; the rest stands in a column or lies in the stock.
Position NearTheEnd(std::mt19937 random)
{
    using Lists = std::vector<std::vector<int>>;
    Position position{.columns = Lists(4), .piles = Lists(5)};
    for (std::size_t suit = 0; suit < 5; ++suit) {
        const int first = static_cast<int>(suit) * 10;
        const int done = first + 10 - static_cast<int>(std::min(random() % 7, random() % 7));
        for (int card = first; card < done; ++card) {
            position.piles[suit].push_back(card);
        }
        auto& rest = suit < 4 ? position.columns[suit] : position.stock;
        for (int card = first + 9; card >= done; --card) {
            rest.push_back(card);
        }
    }
    return position;
}

class Storm
{
public:
    Storm(Stage& stage, unsigned seed, const std::vector<Gesture>& gestures, StormCount& count,
          const std::function<std::string(std::size_t)>& look)
        : gestures_(gestures), count_(count), look_(look), form_(stage.form()), hands_(stage.hands())
    {
        if (seed % 3 == 0) {
            Arrange(form_, NearTheEnd(std::mt19937(seed)));
            form_.ring.NextStockCard();
        }
        user_.Favourite = [this](unsigned any) -> Control& { // what lies open
            const int stack = any % 9 < 8 ? static_cast<int>(any % 9) : StockStack;
            const int card = form_.table.TopCard(stack);
            return form_.table.cardy[card >= 0 ? card : stack + 60];
        };
        hands_.Meet = [this](Form& form) {
            if (GoesOn()) {
                PlayNext();
                return form.IsShown() ? Look() : void();
            }
            form.FeedClose();
            form.Hide();
        };
        hands_.Between = [this] {
            ++count_.events;
            ExpectNone(proportions_.Fault());
        };
    }

    std::string Run()
    {
        while (GoesOn()) {
            PlayNext();
            hands_.Wait(0);
            LookAround();
            Look();
        }
        if (!hands_.HasEnded()) {
            form_.FeedMouseLost();
            hands_.Settle();
            LookAround();
            Expect(hands_.IsAtRest(), "a timer runs with nothing to do");
        }
        return fault_;
    }

private:
    void Expect(bool holds, const std::string& what)
    {
        fault_ = holds || !fault_.empty() ? fault_ : what;
    }
    void ExpectNone(const std::string& fault) { Expect(fault.empty(), fault); }
    bool GoesOn() const { return next_ < gestures_.size() && fault_.empty() && !hands_.HasEnded(); }

    void Look()
    {
        if (look_ && GoesOn()) {
            hands_.Settle();
            ExpectNone(look_(next_));
        }
    }

    void PlayNext()
    {
        const Gesture& gesture = gestures_[next_++];
        ++count_.gestures;
        if (!gesture.LandsInside()) {
            return Play(gesture, false);
        }
        hands_.Meanwhile(gesture.down % 16, [this, gesture] { Play(gesture, hands_.IsInside()); });
    }

    void Play(const Gesture& gesture, bool inside)
    {
        const std::string before = Entries();
        const bool isShut = !form_.door.IsOpen();
        ExpectNone(proportions_.Fault());
        const Whole width = form_.shared.CardWidth;
        user_.Do(gesture);
        ExpectNone(proportions_.Fault());
        Expect(!isShut || form_.shared.CardWidth == width, "a rescale in the middle of a move");
        Expect(!inside || Entries() == before, "a gesture in the middle of another changed the game");
        ExpectNone(inside ? FaultOfStacks(form_) : FaultOfTable(form_));
        for (const Label& item : form_.table.cardy) {
            Expect(item.Visible() || item.AccessibleName().empty(), "a hidden item has a name");
        }
    }

    std::string Entries()
    {
        std::string entries;
        for (const TextList& stack : form_.table.Stacks) {
            for (const std::string& entry : stack) {
                entries += entry;
            }
            entries += '|';
        }
        return entries;
    }

    /// Between two gestures, with no modal form open.
    void LookAround()
    {
        if (hands_.HasEnded()) {
            return;
        }
        Expect(form_.door.IsOpen(), "it stays shut");
        ExpectNone(hands_.Fault());
        const auto& order = form_.table.CardOrder;
        const std::string deal = form_.platform().ReadFile(form_.shared.AppDir + "tempgame.txt").text;
        Expect(deal == JoinLines({order.begin(), order.end()}), "the deal is not on the disk");
        for (const BoxControl* button : {&form_.cmdundo, &form_.cmdnewgame, &form_.NextCard[1]}) {
            Expect(!button->HasBorder() || form_.Captured() == button, "a button stays pressed");
        }
        if (hands_.IsAtRest()) {
            const Twips height = form_.OuterHeight() - 450 - 550;
            const Twips beside = form_.OuterWidth() - form_.table.Picture2.Width() - 175;
            Expect(height < 0 || form_.table.Picture2.Height() == height, "the surface's height");
            Expect(hands_.HasRefused() || std::abs(beside) < 15, "the window does not fit the table");
        }
    }

    const std::vector<Gesture>& gestures_;
    StormCount& count_;
    const std::function<std::string(std::size_t)>& look_;
    Form1& form_;
    Hands& hands_;
    std::size_t next_ = 0;
    std::string fault_;
    RandomUser user_{form_, hands_};
    Proportions proportions_{form_};
};

} // namespace

std::string PlayStorm(Stage& stage, unsigned seed, const std::vector<Gesture>& gestures,
                      StormCount& count, const std::function<std::string(std::size_t)>& look)
{
    return Storm(stage, seed, gestures, count, look).Run();
}

} // namespace tessarine::test
