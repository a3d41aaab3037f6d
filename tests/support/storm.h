// A storm of gestures on a whole program, and what is looked at after each of them.
#pragma once

#include "headless/random_user.h"
#include "support/game_world.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessarine::test
{

/// A program on some platform, in the hands of a user.
class Stage
{
public:
    virtual ~Stage() = default;
    virtual Form1& form() = 0;
    virtual Hands& hands() = 0;
    virtual std::size_t Widgets() const { return 0; } ///< of the toolkit
};

class HeadlessStage : public Stage
{
public:
    explicit HeadlessStage(unsigned seed = 1) : world(seed) {}
    HeadlessStage(unsigned seed, Size screen) : world(screen, "1", seed) {}
    Form1& form() override { return world.form; }
    Hands& hands() override { return hands_; }

    GameWorld world;

private:
    HeadlessHands hands_{world.platform, world.form.shared.AppDir};
};

/// On the platform of the program that this is linked into.
std::unique_ptr<Stage> NewStage(unsigned seed);

struct StormCount {
    std::size_t gestures = 0;
    std::size_t events = 0; ///< of the platform
    std::size_t pixels = 0; ///< that were compared
    std::size_t owed = 0;   ///< gestures that must yet be reached
};

/// Some gestures land in the middle of what the program does; the forms that come up get those that
/// follow. The seed chooses the game: dealt, or near its end. `look`, if there is one, sees the table
/// at rest after so many gestures. Returns what is wrong; empty if all went well.
std::string PlayStorm(Stage& stage, unsigned seed, const std::vector<Gesture>& gestures,
                      StormCount& count, const std::function<std::string(std::size_t)>& look = nullptr);

/// A storm as the program that this is linked into plays it.
std::string PlayHere(unsigned seed, const std::vector<Gesture>& gestures, StormCount& count);

} // namespace tessarine::test
