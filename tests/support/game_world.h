// A whole program on the headless platform, with hands to play it.
#pragma once

#include "form1.h"
#include "headless/headless_platform.h"

#include <string>
#include <vector>

namespace tessarine::test
{

/// Starts with a configuration and a scheme in place and the sound on, so that no box comes up.
class GameWorld
{
public:
    explicit GameWorld(std::uint64_t seed = 1);
    /// On a screen of this size, with this scale of the table stored.
    GameWorld(Size screen, const std::string& scale);

    HeadlessPlatform platform;
    Form1 form;
    Table& table = form.table;

    /// Empties the table but for these columns and this stock, all cards face-up in the order given
    /// (a stock's first entry is the front of the ring's list, behind the marker). Cards named in no
    /// list are nowhere.
    struct Position {
        std::vector<std::vector<int>> columns = {};
        std::vector<int> stock = {};
        std::vector<std::vector<int>> piles = {};
        int faceDownInEachColumn = 0;
    };
    void Arrange(const Position& position);
    /// Deals these cards from a game file, as the restore command does.
    void DealFrom(const std::vector<int>& order);

    std::vector<int> Cards(int stack) const; ///< -1 for the marker
    Point Corner(int item) const;            ///< on the form
    /// A left drag that takes the item by its middle and lets it go with its corner at a point of the
    /// table's surface, in a few steps.
    void DragToPoint(int item, Twips left, Twips top);
    /// A left drag onto the place of another item.
    void DragOnto(int item, int target);
    void RightClick(int item);
    void Press(Control& button) { platform.Click(button); }
    void ForgetSounds() { platform.sounds.clear(); }
    /// By their bare names, if they lie beside the program.
    std::vector<std::string> TakeSounds();

    /// What is wrong with the state of the table between two events; empty if nothing is.
    std::string Fault() const;

private:
    std::string FaultOfColumn(int column) const;
    std::string FaultOfPile(int pile) const;
};

/// Card indices by suit letter and number: Card('H', 7) is 17.
int Card(char suit, int number);

} // namespace tessarine::test
