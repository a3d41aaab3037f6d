#include "kit/sound.h"

namespace tessarine
{

void Sound::PlayWav(std::string_view name) const
{
    if (soundOn_ == Yes) {
        platform_.PlayWave(folder_ + std::string(name));
    }
}

} // namespace tessarine
