// The busy pointer, over work that tells and asks nothing.
#pragma once

#include "runtime/platform.h"

namespace tessarine
{

/// Does the work under the busy pointer and gives its result. What there is to tell is told behind it,
/// with the pointer as the user knows it.
template <class Work> auto WhileBusy(Platform& platform, Work work)
{
    class BusyPointer
    {
    public:
        explicit BusyPointer(Platform& on) : platform_(on) { platform_.SetBusyPointer(true); }
        BusyPointer(const BusyPointer&) = delete;
        BusyPointer& operator=(const BusyPointer&) = delete;
        ~BusyPointer() { platform_.SetBusyPointer(false); }

    private:
        Platform& platform_;
    };
    const BusyPointer busy(platform);
    return work();
}

} // namespace tessarine
