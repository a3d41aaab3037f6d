// The panel that counts games, of this run and of all runs.
#pragma once

#include "runtime/controls.h"
#include "runtime/platform.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// The text of the labels is the count. The all-runs column lives in a file of the current folder and
/// reaches it at each count, at once.
class ScoresBox : public UserControl
{
public:
    /// `programName` is the program's bare name, without folder and extension.
    ScoresBox(Platform& platform, const std::string& programName);

    /// Reads the file, or makes one with zero counts if it is missing or empty. Failures show zeros.
    void Start();

    bool WonSession() const { return won_; }
    bool DrawnSession() const { return drawn_; }
    bool LostSession() const { return lost_; }
    // Each counts one game, whatever the value.
    void SetWonSession(bool value);
    void SetDrawnSession(bool value);
    void SetLostSession(bool value);

    /// Fills the panel from a plain line: the date, then played, won, drawn and lost, parted by
    /// blanks. One that is none of these gives zeros and today's date.
    void ShowScores(std::string_view line);

    /// Raised by the Close button.
    std::function<void()> OnCloseButton;

    static constexpr std::size_t Rows = 5; ///< a head, then played, won, drawn, lost
    Frame Frame1;
    std::array<Label, Rows - 1> Titles;
    std::array<Label, Rows> ThisSession;
    std::array<Label, Rows> AllSessions;
    Label Label1;        ///< date of the last update
    PushButton Command1; ///< Close
    PushButton Command2; ///< Clear

protected:
    void Draw(Canvas& /*canvas*/) const override {}
    void Restyled() override;

private:
    enum Row : std::size_t { Head, Played, Won, Drawn, Lost };

    void PlaceParts();
    void Count(Row row);
    void SaveScores();
    void AskAndClear();
    void Write(const std::string& line);

    Platform& platform_;
    std::string file_;
    bool fileIsUnread_ = false; ///< at the start nothing could be read
    bool won_ = false;
    bool drawn_ = false;
    bool lost_ = false;
};

} // namespace tessarine
