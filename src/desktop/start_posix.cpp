#include "desktop/start.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace tessarine
{

const bool SystemHasFileDialog = false;

bool MayHaveDesktop()
{
    constexpr std::array variables = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    return std::ranges::any_of(variables, [](const char* variable) {
        const char* const value = std::getenv(variable);
        return value != nullptr && *value != '\0';
    });
}

void SayWithoutDesktop(const char* sentence)
{
    std::fprintf(stderr, "%s\n", sentence);
}

} // namespace tessarine
