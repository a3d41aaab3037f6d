// What plays wave files on this system.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace tessarine
{

/// An open sound device. Used by one thread.
class WavePlayer
{
public:
    WavePlayer() = default;
    WavePlayer(const WavePlayer&) = delete;
    WavePlayer& operator=(const WavePlayer&) = delete;
    /// Stops what still sounds.
    virtual ~WavePlayer() = default;

    /// Begins a wave file beside those that sound already, and does not wait for its end. `ended` is
    /// called once, by any thread: when the file has been heard, when it can't be played, or at the
    /// latest while the player goes. It may be called before this returns. False: the device is out of
    /// reach, and `ended` will not be called.
    virtual bool Begin(const std::string& path, std::function<void()> ended) = 0;
};

using WavePlayerMaker = std::function<std::unique_ptr<WavePlayer>()>;

/// Opens the sound device, which may take a while; none where there is none. Each system has its own,
/// and the build chooses.
std::unique_ptr<WavePlayer> OpenWavePlayer();

} // namespace tessarine
