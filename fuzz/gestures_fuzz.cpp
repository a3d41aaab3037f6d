// Any row of gestures, some of them in the middle of others, leaves the table in order.
#include "choices.h"
#include "support/game_world.h"
#include "support/random_play.h"

#include <cstdio>
#include <cstdlib>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

void PlayOrDisturb(GameWorld& world, Choices& choices)
{
    switch (choices(8)) {
    case 0: // a gesture in the middle of the next move
        world.platform.meanwhile.emplace_back([&world, &choices] { PlayOneGesture(world, choices); });
        break;
    case 1: {
        const Twips width = 1000 + choices(12000);
        world.form.FeedResize({width, 3000.0 + choices(8000)});
        world.platform.Advance(choices(150));
        break;
    }
    case 2:
        world.form.scaling.ScaleTable(static_cast<float>(choices(300)) / 100);
        break;
    default:
        PlayOneGesture(world, choices);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Choices choices(bytes, size);
    GameWorld world(static_cast<std::uint64_t>(choices(65536)));
    for (int gesture = 0; gesture < 300 && choices.AreLeft(); ++gesture) {
        PlayOrDisturb(world, choices);
        if (world.form.hand.Dragging()) {
            continue; // the nested gesture took the place of a release
        }
        if (const std::string fault = world.Fault(); !fault.empty()) {
            std::fprintf(stderr, "gesture %d: %s\n", gesture, fault.c_str());
            std::abort();
        }
    }
    return 0;
}
