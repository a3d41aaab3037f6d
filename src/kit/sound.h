// The one sound call of the program.
#pragma once

#include "runtime/platform.h"
#include "runtime/units.h"

#include <string>
#include <string_view>

namespace tessarine
{

/// The program's truth constants, for settings.
inline constexpr Whole Yes = 1;
inline constexpr Whole No = 0;

class Sound
{
public:
    /// Plays files of `folder`, which ends in a separator, as long as `soundOn` is Yes. Both are read
    /// at each call and belong to whoever made them.
    Sound(Platform& platform, const std::string& folder, const Whole& soundOn)
        : platform_(platform), folder_(folder), soundOn_(soundOn)
    {
    }

    /// Plays a wave file by its bare name and returns at once. A file that isn't there, or a machine
    /// without sound, gives silence.
    void PlayWav(std::string_view name) const;

private:
    Platform& platform_;
    const std::string& folder_;
    const Whole& soundOn_;
};

} // namespace tessarine
