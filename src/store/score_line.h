// The line of the scores file, before it is scrambled.
#pragma once

#include "runtime/platform.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine
{

/// A date and four counts, parted by blanks; none of them holds one.
struct ScoreLine {
    std::string date;                  ///< of the last update
    std::array<std::string, 4> counts; ///< of all runs: played, won, drawn, lost

    /// No game yet.
    static ScoreLine New(const DateTime& now);
    /// None if the text has too few fields; more than enough don't count.
    static std::optional<ScoreLine> Read(std::string_view text);
    std::string Text() const;
};

/// Day, month and year with nothing between them: "14Mar2008". Holds no blank, whatever the month is
/// called.
std::string ScoreDate(const DateTime& now);

/// The text of the next count; what is no number counts as 0.
std::string OneMore(std::string_view count);

} // namespace tessarine
