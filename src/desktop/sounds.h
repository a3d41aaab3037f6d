// Wave files, played beside the game.
#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace tessarine
{

/// Plays wave files, several at once if need be. The sound device is opened at the first of them, by a
/// thread that sleeps otherwise: opening may take long, and nobody waits for it. Whatever fails is
/// silence.
class Sounds
{
public:
    Sounds();
    ~Sounds();

    /// Returns at once.
    void Play(const std::string& path);
    /// Waits until what was begun has been heard to its end, but no longer than this.
    void Finish(std::chrono::milliseconds longest);

private:
    class Player;
    std::unique_ptr<Player> player_; ///< none before the first sound
};

} // namespace tessarine
