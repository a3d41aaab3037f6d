// The storm of gestures, led by what reaches new code.
#include "support/storm.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace tessarine;
using namespace tessarine::test;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    if (size < sizeof(Gesture) + 1) {
        return 0;
    }
    std::vector<Gesture> gestures((size - 1) / sizeof(Gesture));
    std::memcpy(gestures.data(), bytes + 1, gestures.size() * sizeof(Gesture));
    const StormReport report = PlayStorm(bytes[0], gestures);
    if (!report.fault.empty()) {
        std::fprintf(stderr, "%s\n", report.fault.c_str());
        std::abort();
    }
    return 0;
}
