// The font of a control.
#pragma once

#include <string>

namespace tessarine
{

/// A screen font by name; the platform puts another in place of a name that it does not know.
struct Font {
    std::string name = "Arial";
    double size = 8.25; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const Font&) const = default;
};

} // namespace tessarine
