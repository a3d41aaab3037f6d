#include "store/scores.h"

#include "runtime/files.h"
#include "store/score_line.h"
#include "store/scramble.h"

namespace tessarine
{
namespace
{

struct Bounds {
    Twips left;
    Twips top;
    Twips width;
    Twips height;
};

void Place(Container& on, Control& control, const Bounds& bounds)
{
    control.SetBounds(bounds.left, bounds.top, bounds.width, bounds.height);
    on.Add(control);
}

/// A bare number tells a listener nothing: "Won this session: 3".
void NameCounter(Label& counter, const std::string& title, const std::string& column)
{
    counter.Describe = [&counter, name = title + column + ": "] { return name + counter.Caption(); };
}

void CountUp(Label& counter)
{
    counter.SetCaption(OneMore(counter.Caption()));
}

} // namespace

ScoresBox::ScoresBox(Platform& platform, const std::string& programName)
    : platform_(platform), file_(programName + ".sco")
{
    Frame1.SetCaption(programName + " Scores");
    PlaceParts();
    Command1.SetCaption("Close");
    Command1.MouseUp = [this](const MouseEvent&) {
        if (OnCloseButton) {
            OnCloseButton();
        }
    };
    Command2.SetCaption("Clear");
    Command2.MouseUp = [this](const MouseEvent&) { AskAndClear(); };
}

void ScoresBox::PlaceParts()
{
    const tessarine::Font head{"Arial", 9, true, false, false};
    const tessarine::Font counter{"Courier New", 9, false, false, false};
    Place(*this, Frame1, {60, 60, 3675, 2865});

    static constexpr std::array<const char*, Rows - 1> titles = {"Played ", "Won ", "Drawn ", "Lost "};
    static constexpr std::array<Twips, Rows - 1> titleTops = {600, 855, 1140, 1425};
    static constexpr std::array<Twips, Rows> rowTops = {300, 600, 885, 1170, 1455};
    for (std::size_t row = 0; row < titles.size(); ++row) {
        Titles[row].SetCaption(titles[row]);
        Place(Frame1, Titles[row], {90, titleTops[row], 1005, row == 0 ? 225.0 : 255.0});
    }
    for (std::size_t row = Head; row < Rows; ++row) {
        const bool isHead = row == Head;
        ThisSession[row].SetCaption(isHead ? " This Session" : "0");
        AllSessions[row].SetCaption(isHead ? " Total" : "0");
        if (!isHead) {
            NameCounter(ThisSession[row], titles[row - 1], "this session");
            NameCounter(AllSessions[row], titles[row - 1], "total");
        }
        Place(Frame1, ThisSession[row], {1215, rowTops[row], isHead ? 1275.0 : 900.0, 255});
        Place(Frame1, AllSessions[row], {2565, rowTops[row], isHead ? 1005.0 : 900.0, 255});
        for (Label* label : {&ThisSession[row], &AllSessions[row]}) {
            label->SetFont(counter);
        }
    }
    for (Label* label :
         {&Titles[0], &Titles[1], &Titles[2], &Titles[3], &ThisSession[Head], &AllSessions[Head]}) {
        label->SetFont(head);
        label->SetBackColor(Black);
        label->SetForeColor(White);
    }
    Label1.SetFont(counter);
    Label1.SetOpaque(false);
    Place(Frame1, Label1, {90, 1890, 3465, 345});
    Place(Frame1, Command1, {750, 2340, 1095, 405});
    Place(Frame1, Command2, {1845, 2340, 1095, 405});
}

/// The parts wear the panel's own colour.
void ScoresBox::Restyled()
{
    UserControl::Restyled();
    const Colour colour = BackColor();
    for (Control* part : std::initializer_list<Control*>{&Frame1, &Command1, &Command2}) {
        part->SetBackColor(colour);
    }
    for (std::size_t row = Played; row < Rows; ++row) {
        ThisSession[row].SetBackColor(colour);
        AllSessions[row].SetBackColor(colour);
    }
}

void ScoresBox::Start()
{
    const FileResult file = platform_.ReadFile(file_);
    fileIsUnread_ = !file; // one that is not there may be seen a moment later
    if (!file.text.empty()) {
        ShowScores(UnscrambleLine(SplitLines(file.text).front()));
        return;
    }
    const std::string line = ScoreLine::New(platform_.Now()).Text() + "0 0 ";
    Write(line);
    ShowScores(line);
}

void ScoresBox::SetWonSession(bool value)
{
    won_ = value;
    Count(Won);
}

void ScoresBox::SetDrawnSession(bool value)
{
    drawn_ = value;
    Count(Drawn);
}

void ScoresBox::SetLostSession(bool value)
{
    lost_ = value;
    Count(Lost);
}

void ScoresBox::Count(Row row)
{
    CountUp(ThisSession[Played]);
    CountUp(ThisSession[row]);
    CountUp(AllSessions[row]);
    CountUp(AllSessions[Played]);
    SaveScores();
}

/// A count that can't be written stays in the panel, and the next one writes it too.
void ScoresBox::SaveScores()
{
    ScoreLine line{ScoreDate(platform_.Now()), {}};
    for (std::size_t row = Played; row < Rows; ++row) {
        line.counts[row - Played] = AllSessions[row].Caption();
    }
    Write(line.Text());
}

/// A file that is there but can't be read, now or at the start, may hold counts that the panel does not
/// have: it is never replaced.
void ScoresBox::Write(const std::string& line)
{
    const FileFault fault = platform_.ReadFile(file_).fault;
    if (fault == FileFault::Missing || (fault == FileFault::None && !fileIsUnread_)) {
        fileIsUnread_ = false;
        static_cast<void>(ReplaceFile(platform_, file_, ScrambleLine(line).append(LineEnd)));
    }
}

void ScoresBox::ShowScores(std::string_view line)
{
    const ScoreLine scores = ScoreLine::Read(line).value_or(ScoreLine::New(platform_.Now()));
    for (std::size_t row = Played; row < Rows; ++row) {
        ThisSession[row].SetCaption("0");
        AllSessions[row].SetCaption(scores.counts[row - Played]);
    }
    Label1.SetCaption("Last Update: " + scores.date);
}

void ScoresBox::AskAndClear()
{
    if (!platform_.PlainMessage("Clear ALL scores", PlainButtons::YesNo)) {
        return;
    }
    fileIsUnread_ = false; // the user gives up whatever it holds
    const std::string line = ScoreLine::New(platform_.Now()).Text() + "0 ";
    Write(line);
    ShowScores(line);
}

} // namespace tessarine
