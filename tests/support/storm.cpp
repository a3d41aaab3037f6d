#include "support/storm.h"

#include "support/game_world.h"

#include <cmath>

namespace tessarine::test
{
namespace
{

/// Each suit is done up to somewhere; the rest stands in a column or lies in the stock.
GameWorld::Position NearTheEnd(std::mt19937 random)
{
    using Lists = std::vector<std::vector<int>>;
    GameWorld::Position position{.columns = Lists(4), .piles = Lists(5)};
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
    Storm(unsigned seed, const std::vector<Gesture>& gestures) : gestures_(gestures), world_(seed)
    {
        if (seed % 3 == 0) {
            world_.Arrange(NearTheEnd(std::mt19937(seed)));
            world_.form.ring.NextStockCard();
        }
        user_.Favourite = [this](unsigned any) -> Control& { // what lies open
            const int stack = any % 9 < 8 ? static_cast<int>(any % 9) : StockStack;
            const int card = world_.table.TopCard(stack);
            return world_.table.cardy[card >= 0 ? card : stack + 60];
        };
        MeetNextModal();
    }

    StormReport Run()
    {
        while (GoesOn()) {
            PlayNext();
            world_.platform.Advance(0);
            LookAround();
        }
        if (!world_.platform.ended) {
            world_.platform.meanwhile.clear();
            world_.form.FeedMouseLost();
            world_.platform.Advance(300);
            LookAround();
            Expect(!world_.platform.HasWork(), "a timer runs with nothing to do");
        }
        return {fault_, next_};
    }

private:
    void Expect(bool holds, const std::string& what)
    {
        fault_ = holds || !fault_.empty() ? fault_ : what;
    }
    void ExpectNone(const std::string& fault) { Expect(fault.empty(), fault); }
    bool GoesOn() const { return next_ < gestures_.size() && fault_.empty() && !world_.platform.ended; }

    void MeetNextModal()
    {
        world_.platform.OnNextModal([this](Form& form) {
            MeetNextModal();
            while (form.IsShown() && GoesOn()) {
                PlayNext();
            }
            form.FeedClose();
            form.Hide();
        });
    }

    void PlayNext()
    {
        const Gesture& gesture = gestures_[next_++];
        if (!gesture.LandsInside()) {
            return Play(gesture, false);
        }
        auto& meanwhile = world_.platform.meanwhile;
        meanwhile.resize(meanwhile.size() + gesture.down % 16U, [] {});
        meanwhile.emplace_back([this, gesture] { Play(gesture, true); });
    }

    void Play(const Gesture& gesture, bool inside)
    {
        const std::string before = Entries();
        const bool isShut = !world_.form.door.IsOpen();
        ExpectNone(proportions_.Fault());
        const Whole width = world_.form.shared.CardWidth;
        user_.Do(gesture);
        refused_ = refused_ || !world_.platform.refusesSize.empty();
        ExpectNone(proportions_.Fault());
        Expect(!isShut || world_.form.shared.CardWidth == width, "a rescale in the middle of a move");
        Expect(!inside || Entries() == before, "a gesture in the middle of another changed the game");
        ExpectNone(inside ? FaultOfStacks(world_.form) : world_.Fault());
        for (const Label& item : world_.table.cardy) {
            Expect(item.Visible() || item.AccessibleName().empty(), "a hidden item has a name");
        }
    }

    std::string Entries()
    {
        std::string entries;
        for (const TextList& stack : world_.table.Stacks) {
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
        HeadlessPlatform& platform = world_.platform;
        Form1& form = world_.form;
        if (platform.ended) {
            return;
        }
        Expect(form.door.IsOpen() && !platform.busy && platform.frozen == nullptr, "it stays shut");
        Expect(platform.files["/app/tempgame.txt"] == world_.Order(), "the deal is not on the disk");
        for (const std::string& text : platform.plainMessages) {
            Expect(text.find("not in stack") == std::string::npos &&
                       text.find("call") == std::string::npos,
                   text);
        }
        platform.plainMessages.clear();
        platform.sounds.clear();
        for (const BoxControl* button : {&form.cmdundo, &form.cmdnewgame, &form.NextCard[1]}) {
            Expect(!button->HasBorder() || form.Captured() == button, "a button stays pressed");
        }
        if (!platform.HasWork()) {
            const double height = form.OuterHeight() - 450 - 550;
            Expect(height < 0 || world_.table.Picture2.Height() == height, "the surface's height");
            Expect(refused_ || std::abs(form.OuterWidth() - world_.table.Picture2.Width() - 175) < 15,
                   "the window does not fit the table");
        }
    }

    const std::vector<Gesture>& gestures_;
    std::size_t next_ = 0;
    bool refused_ = false;
    std::string fault_;
    GameWorld world_;
    HeadlessHands hands_{world_.platform};
    RandomUser user_{world_.form, hands_};
    Proportions proportions_{world_.form};
};

} // namespace

StormReport PlayStorm(unsigned seed, const std::vector<Gesture>& gestures)
{
    return Storm(seed, gestures).Run();
}

} // namespace tessarine::test
