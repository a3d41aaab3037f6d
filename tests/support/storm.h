// A storm of gestures on a whole headless program, and what is looked at after each of them.
#pragma once

#include "headless/random_user.h"

#include <string>
#include <vector>

namespace tessarine::test
{

struct StormReport {
    std::string fault; ///< empty if all went well
    std::size_t played = 0;
};

/// Some gestures land in the middle of what the program does; the forms that come up get those that
/// follow. The seed chooses the game: dealt, or near its end.
StormReport PlayStorm(unsigned seed, const std::vector<Gesture>& gestures);

} // namespace tessarine::test
