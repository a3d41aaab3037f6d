// Wave files, played beside the game.
#pragma once

#include "desktop/wave_player.h"

#include <chrono>
#include <memory>
#include <string>

namespace tessarine
{

/// Hands wave files to the sound device, which is opened with the first of them, and anew when it has
/// gone since, by a thread that sleeps otherwise: opening may take long, and nobody waits for it.
/// Whatever fails is silence.
class Sounds
{
public:
    explicit Sounds(WavePlayerMaker openPlayer);
    ~Sounds();

    /// Returns at once.
    void Play(const std::string& path);
    /// Waits until what was begun has been heard to its end, but no longer than this.
    void Finish(std::chrono::milliseconds longest);

private:
    class Queue;
    WavePlayerMaker openPlayer_;
    std::unique_ptr<Queue> queue_; ///< none before the first sound
};

} // namespace tessarine
