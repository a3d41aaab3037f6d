#include "support/game_world.h"

#include "runtime/files.h"

#include <stdexcept>
#include <utility>

namespace tessarine::test
{
namespace
{

constexpr Twips Grip = 60; ///< of a card, from its corner

/// Puts the files of an installed program in place before the form is made.
HeadlessPlatform& Prepared(HeadlessPlatform& platform, const std::string& scale = "1")
{
    std::string& scheme = platform.files["/app/all.col"] = "default.col\r\n";
    for (int slot = 0; slot < 13; ++slot) {
        scheme += slot == 4 ? " 90; 140; 90\r\n" : " 120; 170; 120\r\n";
    }
    platform.files["/app/tessarine.cfg"] =
        "stamp\r\n 1 16777215 1 \r\n " + scale + " \r\n 0 \r\n" +
        " 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\ndefault.col\r\narial\r\n";
    return platform;
}

} // namespace

std::string Told(const MsgForm& box)
{
    static constexpr std::array names = {"Question", "Exclamation", "Information",
                                         "Error",    "Critical",    "Happy"};
    std::string told;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Image& icon = box.icons.at(i);
        const bool isThere = icon.Visible() && icon.OwnerForm() == &box && icon.Left() == 90 &&
                             icon.Top() == 90 && icon.Width() == 480 && icon.Height() == 480;
        told += isThere ? names.at(i) + std::string(": ") : "";
    }
    return told + (box.Label1.OwnerForm() == &box ? box.Label1.Caption() : "");
}

void Answer(HeadlessPlatform& platform, const std::string& caption, std::vector<std::string>& told)
{
    platform.OnNextModal([&platform, caption, &told](Form& form) {
        told.push_back(Told(static_cast<MsgForm&>(form)));
        Control* const button = HeadlessPlatform::FindShown(form, caption);
        if (button == nullptr) {
            throw std::logic_error("no button " + caption + " on: " + told.back());
        }
        platform.Click(*button);
    });
}

GameWorld::GameWorld(std::uint64_t seed) : platform(seed), form(Prepared(platform), "/app", "tessarine")
{
    form.Start();
    platform.sounds.clear();
}

GameWorld::GameWorld(Size screen, const std::string& scale, std::uint64_t seed)
    : platform(seed), form((platform.screen = screen, Prepared(platform, scale)), "/app", "tessarine")
{
    form.Start();
}

GameWorld::GameWorld(const Position& position) : GameWorld()
{
    Arrange(position);
}

void Arrange(Form1& form, const Position& position)
{
    Table& table = form.table;
    for (TextList& stack : table.Stacks) {
        stack.Clear();
    }
    for (int card = 0; card < CardCount; ++card) {
        table.cardy[card].SetCaption({});
        table.cardy[card].SetVisible(false);
    }
    const auto lay = [&table](int stack, const std::vector<int>& cards, int faceDown) {
        for (const int card : cards) {
            table.LayOn(stack, card, 0, 0);
            table.cardy[card].SetVisible(true);
            if (--faceDown < 0) {
                table.ShowCardFace(card);
            }
        }
    };
    for (std::size_t column = 0; column < position.columns.size(); ++column) {
        lay(static_cast<int>(column), position.columns[column], position.faceDownInEachColumn);
    }
    for (std::size_t pile = 0; pile < position.piles.size(); ++pile) {
        lay(FirstPile + static_cast<int>(pile), position.piles[pile], 0);
    }
    table.Stacks[StockStack].Add(std::string(Marker));
    lay(StockStack, position.stock, 0);
    form.undo.Clear();
    form.scaling.ScaleTable(1.0F);
}

void GameWorld::Arrange(const Position& position)
{
    test::Arrange(form, position);
    platform.sounds.clear();
}

std::string GameWorld::Order() const
{
    return JoinLines({table.CardOrder.begin(), table.CardOrder.end()});
}

std::vector<int> GameWorld::Cards(int stack) const
{
    std::vector<int> cards;
    for (const std::string& entry : table.Stacks[stack]) {
        cards.push_back(entry == Marker ? -1 : CardOfEntry(entry));
    }
    return cards;
}

Point GameWorld::Corner(int item) const
{
    return table.cardy[item].PlaceOnForm();
}

Point GameWorld::Place(int item) const
{
    return {table.cardy[item].Left(), table.cardy[item].Top()};
}

void GameWorld::DragOnto(int item, int target)
{
    // A grip near the corner is on the card also where the next one of a run covers the rest.
    const Point from = Corner(item);
    const Point to = Corner(target);
    platform.Press(form, from.x + Grip, from.y + Grip);
    platform.MoveMouse(form, (from.x + to.x) / 2 + Grip, (from.y + to.y) / 2 + Grip);
    platform.MoveMouse(form, to.x + Grip, to.y + Grip);
    platform.Release(form, to.x + Grip, to.y + Grip);
}

void GameWorld::RightClick(int item)
{
    const Point corner = Corner(item);
    platform.Press(form, corner.x + Grip, corner.y + Grip, RightButton);
    platform.Release(form, corner.x + Grip, corner.y + Grip, RightButton);
}

std::vector<std::string> GameWorld::TakeSounds()
{
    constexpr std::string_view folder = "/app/";
    for (std::string& sound : platform.sounds) {
        sound.erase(0, sound.starts_with(folder) ? folder.size() : 0);
    }
    return std::exchange(platform.sounds, {});
}

} // namespace tessarine::test
