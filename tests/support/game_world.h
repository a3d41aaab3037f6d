// A whole program on the headless platform, with hands to play it.
#pragma once

#include "form1.h"
#include "headless/headless_platform.h"
#include "support/table_check.h"

#include <string>
#include <vector>

namespace tessarine::test
{

struct Position {
    std::vector<std::vector<int>> columns = {};
    std::vector<int> stock = {};
    std::vector<std::vector<int>> piles = {};
    int faceDownInEachColumn = 0;
};
/// Empties the table but for these columns and this stock, all cards face-up in the order given
/// (a stock's first entry is the front of the ring's list, behind the marker). Cards named in no
/// list are nowhere.
void Arrange(Form1& form, const Position& position);

/// Starts with a configuration and a scheme in place and the sound on, so that no box comes up.
class GameWorld
{
public:
    explicit GameWorld(std::uint64_t seed = 1);
    using Position = tessarine::test::Position;
    explicit GameWorld(const Position& position);
    /// On a screen of this size, with this scale of the table stored.
    GameWorld(Size screen, const std::string& scale, std::uint64_t seed = 1);

    HeadlessPlatform platform;
    Form1 form;
    Table& table = form.table;

    void Arrange(const Position& position);
    std::string Order() const;               ///< of the deal, as a game file has it
    std::vector<int> Cards(int stack) const; ///< -1 for the marker
    Point Corner(int item) const;            ///< on the form
    Point Place(int item) const;             ///< on the table's surface
    /// A left drag onto the place of another item, in a few steps.
    void DragOnto(int item, int target);
    void RightClick(int item);
    void Press(Control& button) { platform.Click(button); }
    /// By their bare names, if they lie beside the program.
    std::vector<std::string> TakeSounds();

    /// What is wrong with the table between two events; empty if nothing is.
    std::string Fault() { return FaultOfTable(form); }
};

/// The icon and the text of a message box.
std::string Told(const MsgForm& box);
/// The user presses the button with this caption on the next message box; what that told is noted.
void Answer(HeadlessPlatform& platform, const std::string& caption, std::vector<std::string>& told);

} // namespace tessarine::test
