// A build without a library that plays sounds.
#include "desktop/wave_player.h"

namespace tessarine
{

std::unique_ptr<WavePlayer> OpenWavePlayer()
{
    return nullptr;
}

} // namespace tessarine
