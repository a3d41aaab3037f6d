// A whole program on the headless platform, with hands to play it.
#pragma once

#include "form1.h"
#include "headless/headless_platform.h"
#include "support/table_check.h"

#include <string>
#include <vector>

namespace tessarine::test
{

/// Starts with a configuration and a scheme in place and the sound on, so that no box comes up.
class GameWorld
{
public:
    explicit GameWorld(std::uint64_t seed = 1);
    struct Position;
    explicit GameWorld(const Position& position);
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
    std::string Order() const;               ///< of the deal, as a game file has it
    std::vector<int> Cards(int stack) const; ///< -1 for the marker
    Point Corner(int item) const;            ///< on the form
    Point Place(int item) const;             ///< on the table's surface
    /// A left drag that takes the item by its middle and lets it go with its corner at a point of the
    /// table's surface, in a few steps.
    void DragToPoint(int item, Twips left, Twips top);
    /// A left drag onto the place of another item.
    void DragOnto(int item, int target);
    void RightClick(int item);
    /// A left press on the item, and a move of the mouse by so much.
    void Grab(int item, Twips right, Twips down);
    void Press(Control& button) { platform.Click(button); }
    void ForgetSounds() { platform.sounds.clear(); }
    /// By their bare names, if they lie beside the program.
    std::vector<std::string> TakeSounds();

    /// What is wrong with the table between two events; empty if nothing is.
    std::string Fault() { return FaultOfTable(form); }
};

/// The icon and the text of a message box.
std::string Told(const MsgForm& box);
/// The user presses the button with this caption on the next message box; what that told is noted.
void Answer(HeadlessPlatform& platform, const std::string& caption, std::vector<std::string>& told);

/// The cards by suit letter and number.
inline constexpr int S0 = 0, S1 = 1, S2 = 2, S3 = 3, S4 = 4, S5 = 5, S6 = 6, S7 = 7, S8 = 8, S9 = 9,
                     H0 = 10, H1 = 11, H2 = 12, H3 = 13, H4 = 14, H5 = 15, H6 = 16, H7 = 17, H8 = 18,
                     H9 = 19, D0 = 20, D1 = 21, D2 = 22, D3 = 23, D4 = 24, D5 = 25, D6 = 26, D7 = 27,
                     D8 = 28, D9 = 29, C0 = 30, C1 = 31, C2 = 32, C3 = 33, C4 = 34, C5 = 35, C6 = 36,
                     C7 = 37, C8 = 38, C9 = 39, O0 = 40, O1 = 41, O2 = 42, O3 = 43, O4 = 44, O5 = 45,
                     O6 = 46, O7 = 47, O8 = 48, O9 = 49;

} // namespace tessarine::test
