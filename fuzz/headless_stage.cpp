// The storms and the long life on the platform in memory.
#include "support/storm.h"

namespace tessarine::test
{

std::unique_ptr<Stage> NewStage(unsigned seed)
{
    return std::make_unique<HeadlessStage>(seed);
}

std::string PlayHere(unsigned seed, const std::vector<Gesture>& gestures, StormCount& count)
{
    return PlayStorm(*NewStage(seed), seed, gestures, count);
}

} // namespace tessarine::test
