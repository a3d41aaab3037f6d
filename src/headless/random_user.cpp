#include "headless/random_user.h"

#include "runtime/controls.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <utility>

namespace tessarine
{
namespace
{

struct Share {
    GestureKind kind;
    unsigned parts; ///< of 64
};
using Kind = GestureKind;
constexpr std::array<Share, 16> Shares = {{{Kind::Drag, 14},
                                           {Kind::RightClick, 10},
                                           {Kind::Click, 10},
                                           {Kind::Press, 4},
                                           {Kind::Move, 4},
                                           {Kind::Release, 4},
                                           {Kind::Tool, 2},
                                           {Kind::Resize, 2},
                                           {Kind::Refuse, 1},
                                           {Kind::Wait, 3},
                                           {Kind::Close, 1},
                                           {Kind::Front, 2},
                                           {Kind::Key, 2},
                                           {Kind::Ask, 2},
                                           {Kind::Answer, 2},
                                           {Kind::Lost, 1}}};

constexpr std::array Buttons = {LeftButton, RightButton, MiddleButton};

Twips ToPixel(Twips place)
{
    return std::floor(place / TwipsPerPixel) * TwipsPerPixel;
}

/// A point of the control, or a little beside it, where a pointer can be.
Point PointOn(const Control& control, const Gesture& gesture)
{
    const Point corner = control.PlaceOnForm();
    return {ToPixel(corner.x + control.Width() * (gesture.across / 60000.0 - 0.04)),
            ToPixel(corner.y + control.Height() * (gesture.down / 60000.0 - 0.04))};
}

Size SizeOf(const Gesture& gesture)
{
    constexpr int pixels = 1024;
    return {1.0 * TwipsPerPixel * (1 + gesture.across % pixels),
            1.0 * TwipsPerPixel * (1 + gesture.down % pixels)};
}

/// One of the toolkit's own widgets, which gets the mouse before the form does.
bool IsToolkits(const Control* control)
{
    return control != nullptr && control->Kind() >= ControlKind::PushButton;
}

} // namespace

GestureKind KindOf(const Gesture& gesture)
{
    unsigned place = gesture.kind % 64U;
    for (const Share& share : Shares) {
        if (place < share.parts) {
            return share.kind;
        }
        place -= share.parts;
    }
    return Kind::Move;
}

void Hands::Answer(int detail)
{
    static constexpr std::array names = {"New", "new", "default", " ;.col", "\xC3\xA4"};
    static constexpr std::array files = {"tessarine.cfg", "tempgame.txt", "all.col", ""};
    const auto any = static_cast<std::size_t>(detail);
    plainAnswers_ = {detail % 2 == 0, detail % 3 == 0};
    typedAnswers_ = {names[any % names.size()]};
    chosenFiles_ = {files[any % files.size()]};
}

// --- the headless hands ---

void HeadlessHands::MeetNext()
{
    platform_.OnNextModal([this](Form& form) {
        MeetNext();
        while (form.IsShown()) {
            Meet(form);
        }
    });
}

void HeadlessHands::Press(Form& form, Point at, int button, int shift)
{
    platform_.Press(form, at.x, at.y, button, shift);
}

void HeadlessHands::Release(Form& form, Point at, int button)
{
    platform_.Release(form, at.x, at.y, button);
}

void HeadlessHands::Work(Control& control, int button, int detail)
{
    const auto choice = static_cast<std::size_t>(detail);
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        const std::size_t entry = choice % (list->Items().Count() + 1);
        entry == 0 ? list->UserReleasesOnNothing(button) : list->UserPicks(entry - 1, button);
    } else if (auto* bar = dynamic_cast<ScrollBar*>(&control)) {
        bar->UserSets(bar->Min() + detail * (bar->Max() - bar->Min()) / 256);
    } else if (auto* page = dynamic_cast<Browser*>(&control)) {
        page->UserFollows({page->Location().path, std::string(choice % 3, 'a')});
    } else {
        platform_.Click(control, button);
    }
}

void HeadlessHands::AskForNames(const Forms& forms)
{
    for (const Form* form : forms.Loaded()) {
        ForEachShown(*form, [](const Control& control) { static_cast<void>(control.AccessibleName()); });
    }
}

void HeadlessHands::Refuse(Form& form)
{
    hasRefused_ = true;
    if (platform_.refusesSize.erase(&form) == 0) {
        platform_.refusesSize.insert(&form);
    }
}

void HeadlessHands::Key(Form& form, int detail)
{
    form.FeedKey(detail % 2 == 0 ? DialogKey::Escape : DialogKey::Enter);
}

void HeadlessHands::Settle()
{
    constexpr int longest = 300;
    platform_.meanwhile.clear();
    platform_.Advance(longest);
}

void HeadlessHands::Answer(int detail)
{
    Hands::Answer(detail);
    platform_.plainAnswers = plainAnswers_;
    platform_.typedAnswers = typedAnswers_;
    const std::string& name = chosenFiles_.front();
    platform_.chosenFiles = {name.empty() ? name : folder_ + name};
}

void HeadlessHands::Meanwhile(int calls, std::function<void()> action)
{
    auto& meanwhile = platform_.meanwhile;
    meanwhile.resize(meanwhile.size() + static_cast<std::size_t>(calls), [] {});
    meanwhile.push_back(std::move(action));
}

std::string HeadlessHands::Fault()
{
    platform_.sounds.clear();
    platform_.modalCaptions.clear();
    for (const std::string& text : std::exchange(platform_.plainMessages, {})) {
        if (text.find("not in stack") != std::string::npos || text.find("call") != std::string::npos) {
            return text;
        }
    }
    return platform_.busy || platform_.frozen != nullptr ? "it stays busy" : "";
}

// --- the user ---

/// The form that holds the mouse; else the form that takes input, as a rule, or any that shows.
Form& RandomUser::Target(const Gesture& gesture) const
{
    const Forms& forms = main_.AllForms();
    std::vector<Form*> shown;
    std::ranges::copy_if(forms.Loaded(), std::back_inserter(shown), &Form::IsShown);
    if (down_ != 0 && std::ranges::find(shown, holder_) != shown.end()) {
        return *holder_;
    }
    if (gesture.window % 4 != 0 || shown.empty()) {
        Form* const modal = forms.Modal();
        return modal != nullptr && modal->IsShown() ? *modal : main_;
    }
    // cppcheck-suppress returnReference ; the list is of pointers
    return *shown[gesture.window / 4U % shown.size()];
}

Control& RandomUser::Aim(Form& form, unsigned which) const
{
    if (&form == &main_ && which % 2 == 0 && Favourite) {
        return Favourite(which / 2);
    }
    std::vector<Control*> shown{&form};
    ForEachShown(form, [&shown](Control& control) { shown.push_back(&control); });
    // cppcheck-suppress returnReference ; the list is of pointers
    return *shown[which % shown.size()];
}

void RandomUser::LetGo(Form& form, Point at)
{
    for (const int button : Buttons) {
        if ((std::exchange(down_, down_ & ~button) & button) != 0) {
            hands_.Release(form, at, button);
        }
    }
}

/// Where the pointer presses it has moved to first. A second button comes to one that holds something.
/// The toolkit's widgets take a press and its release as one.
void RandomUser::Press(Form& form, Point at, int button, int shift)
{
    hands_.Move(form, at);
    if ((down_ & button) != 0 || form.Captured() == nullptr) {
        LetGo(form, at);
    }
    if (form.Captured() != nullptr || !IsToolkits(form.FrontMostAt(at.x, at.y))) {
        down_ |= button;
        holder_ = &form;
        hands_.Press(form, at, button, shift);
    }
}

void RandomUser::Release(Form& form, Point at, int button, int detail)
{
    hands_.Move(form, at);
    Control* const control = form.FrontMostAt(at.x, at.y);
    if (form.Captured() == nullptr && IsToolkits(control)) {
        LetGo(form, at); // which may hide it
        if (form.IsShown() && form.FrontMostAt(at.x, at.y) == control) {
            hands_.Work(*control, button, detail);
        }
    } else if ((std::exchange(down_, down_ & ~button) & button) != 0) {
        hands_.Release(form, at, button);
    }
}

void RandomUser::Drag(Form& form, const Control& control, Point at, const Gesture& gesture)
{
    const Point from = control.PlaceOnForm();
    const Point onto = Aim(form, gesture.detail).PlaceOnForm();
    const Point to{ToPixel(onto.x + at.x - from.x), ToPixel(onto.y + at.y - from.y)};
    Press(form, at, LeftButton, 0);
    hands_.Move(form, {ToPixel((at.x + to.x) / 2), ToPixel((at.y + to.y) / 2)});
    hands_.Move(form, to);
    Release(form, to, LeftButton, gesture.detail);
}

void RandomUser::Do(const Gesture& gesture)
{
    Form& form = Target(gesture);
    Control& control = Aim(form, gesture.control);
    const Point at = PointOn(control, gesture);
    const int button = Buttons[gesture.detail % Buttons.size()];
    if (std::exchange(modal_, form.AllForms().Modal()) != form.AllForms().Modal()) {
        LetGo(form, at); // nobody goes on holding the mouse where a box comes up
    }
    const auto click = [&](int which) {
        Press(form, at, which, 0);
        if (form.IsShown()) {
            Release(form, at, which, gesture.detail);
        }
    };
    switch (KindOf(gesture)) {
    case Kind::Drag:
        Drag(form, control, at, gesture);
        break;
    case Kind::RightClick:
        click(RightButton);
        break;
    case Kind::Click:
        click(LeftButton);
        break;
    case Kind::Press:
        Press(form, at, button, gesture.detail < 200 ? 0 : gesture.detail % 8);
        break;
    case Kind::Move:
        hands_.Move(form, at);
        break;
    case Kind::Release:
        Release(form, at, button, gesture.detail);
        break;
    case Kind::Tool: // a tool can press what the keyboard could
        if (control.TakesFocus()) {
            hands_.Activate(control);
        }
        break;
    case Kind::Resize:
        if (form.Sizable) {
            hands_.Resize(form, SizeOf(gesture));
        }
        break;
    case Kind::Refuse:
        hands_.Refuse(form);
        break;
    case Kind::Wait:
        hands_.Wait(gesture.detail);
        break;
    case Kind::Close: // of the main form it is the end, and rare
        if (&form != &main_ || gesture.detail % 64 == 0) {
            hands_.Close(form);
        }
        break;
    case Kind::Front:
        hands_.ComeToFront(form);
        break;
    case Kind::Key:
        hands_.Key(form, gesture.detail);
        break;
    case Kind::Ask:
        hands_.AskForNames(form.AllForms());
        break;
    case Kind::Answer:
        hands_.Answer(gesture.detail);
        break;
    case Kind::Lost:
        form.FeedMouseLost();
        break;
    }
}

std::vector<Gesture> RandomGestures(unsigned seed, std::size_t count)
{
    std::mt19937_64 random(seed);
    std::vector<Gesture> gestures(count);
    std::ranges::generate(gestures, [&random] { return std::bit_cast<Gesture>(random()); });
    return gestures;
}

} // namespace tessarine
