#include "desktop/desktop_platform.h"

#include "desktop/accessibility.h"
#include "desktop/dialogs.h"
#include "desktop/files.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QScreen>
#include <QTimerEvent>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <utility>

namespace tessarine
{
namespace
{

/// How long the program's last sound may go on after its windows are gone.
constexpr std::chrono::milliseconds LastSound{2500};

/// The window that a box of the system belongs to. Just after another box has closed none may be
/// active yet.
QWidget* OwnerOfBox()
{
    QWidget* const modal = QApplication::activeModalWidget();
    return modal == nullptr ? QApplication::activeWindow() : modal;
}

} // namespace

DesktopPlatform::DesktopPlatform(WavePlayerMaker openPlayer)
    : sounds_(std::move(openPlayer)), random_(std::random_device()())
{
    InstallAccessibility();
}

DesktopPlatform::~DesktopPlatform()
{
    windows_.clear();
    // No loop may come any more that would take them away.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// --- forms ---

void DesktopPlatform::EndWindow::operator()(FormWindow* window) const
{
    window->LetGoOfForm();
    window->Shut();
    if (QCoreApplication::closingDown()) {
        delete window;
    } else {
        window->deleteLater();
    }
}

FormWindow* DesktopPlatform::WindowOf(const Form& form) const
{
    const auto place = windows_.find(&form);
    return place == windows_.end() ? nullptr : place->second.get();
}

FormWindow& DesktopPlatform::MakeWindow(Form& form)
{
    if (FormWindow* known = WindowOf(form)) {
        return *known;
    }
    Window window(new FormWindow(form, desk_));
    window->Freeze(frozen_ != nullptr && frozen_->OwnerForm() == &form ? frozen_ : nullptr);
    return *(windows_[&form] = std::move(window));
}

void DesktopPlatform::ShowForm(Form& form)
{
    FormWindow& window = MakeWindow(form);
    // A modal form comes up when it is run, which follows: only then is its owner known.
    if (form.AllForms().Modal() != &form) {
        window.Open();
    }
}

void DesktopPlatform::HideForm(Form& form)
{
    if (FormWindow* window = WindowOf(form)) {
        window->Shut();
    }
}

void DesktopPlatform::RunModal(Form& form, Form* owner)
{
    if (form.IsShown()) {
        const QPointer<FormWindow> window(&MakeWindow(form));
        window->OpenBefore(owner == nullptr ? nullptr : WindowOf(*owner));
        while (window && window->isModal()) {
            waits_.WaitForOne(); // unlike a loop of the toolkit, this sees each event that may end it
        }
    }
}

void DesktopPlatform::DestroyForm(Form& form)
{
    windows_.erase(&form);
}

Size DesktopPlatform::FitWindow(Form& form, Size clientArea)
{
    FormWindow* const window = WindowOf(form);
    return window == nullptr ? ToTwips(ToPixels(clientArea)) : window->Fit(clientArea);
}

Size DesktopPlatform::LargestClientArea(const Form& form)
{
    const FormWindow* const window = WindowOf(form);
    const QScreen& on = window == nullptr ? FormWindow::HomeScreen() : *window->screen();
    return ToTwips(on.availableGeometry().size().shrunkBy(desk_.frame));
}

void DesktopPlatform::ChangesPending(Form& form)
{
    if (FormWindow* window = WindowOf(form)) {
        window->RefreshSoon();
    }
}

void DesktopPlatform::FreezeSurface(const Control* surface)
{
    frozen_ = surface;
    const Form* const owner = surface == nullptr ? nullptr : surface->OwnerForm();
    for (const auto& [form, window] : windows_) {
        window->Freeze(form == owner ? surface : nullptr);
    }
}

// --- events ---

void DesktopPlatform::RunPendingEvents()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void DesktopPlatform::WaitForEvent()
{
    waits_.WaitForOne();
}

void DesktopPlatform::StartTimer(Timer& timer, int milliseconds)
{
    StopTimer(timer);
    timers_.emplace(startTimer(milliseconds, Qt::PreciseTimer), &timer);
}

void DesktopPlatform::StopTimer(Timer& timer)
{
    const auto running = std::ranges::find(timers_, &timer, &decltype(timers_)::value_type::second);
    if (running != timers_.end()) {
        killTimer(running->first);
        timers_.erase(running);
    }
}

void DesktopPlatform::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    const auto running = timers_.find(event->timerId());
    if (running != timers_.end()) {
        Timer& timer = *running->second;
        timers_.erase(running);
        timer.Fire();
    }
}

/// The call may come out of the middle of a slide, with loops inside loops below it, any of which could
/// still touch a file or wait for a timer that never comes. So none of them gets the hand again: the
/// windows go at once, the last sound is heard out, and the process is over. Nothing needs cleaning up,
/// since every file is written whole and flushed when it is written.
void DesktopPlatform::EndProgram()
{
    timers_.clear(); // what still ticks finds nobody
    for (const auto& [form, window] : windows_) {
        window->LetGoOfForm();
    }
    for (const auto& [form, window] : windows_) {
        window->hide();
    }
    QGuiApplication::sync();
    sounds_.Finish(LastSound);
    std::_Exit(EXIT_SUCCESS);
}

// --- pointer ---

PixelPoint DesktopPlatform::Cursor()
{
    // During a gesture the place that belongs to its event is right on every window system; asking for
    // the place now is not.
    if (desk_.pointer) {
        return *desk_.pointer;
    }
    const QPoint place = QCursor::pos();
    return {place.x(), place.y()};
}

void DesktopPlatform::SetBusyPointer(bool busy)
{
    if (busy == busy_) {
        return;
    }
    busy_ = busy;
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

// --- clock and chance ---

DateTime DesktopPlatform::Now()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(),
            date.month(),
            date.day(),
            time.hour(),
            time.minute(),
            time.second(),
            ShortMonth(QLocale::system(), date.month())};
}

float DesktopPlatform::SecondsSinceMidnight()
{
    constexpr float millisecondsPerSecond = 1000;
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / millisecondsPerSecond;
}

void DesktopPlatform::SeedRandom(double seed)
{
    random_.seed(random_() ^ std::bit_cast<std::uint64_t>(seed));
}

double DesktopPlatform::RandomDraw()
{
    // The upper 53 bits, as many as a double holds.
    return static_cast<double>(random_() >> 11U) * 0x1.0p-53;
}

// --- fonts, boxes, sound ---

std::vector<std::string> DesktopPlatform::ScreenFonts()
{
    return FontNames();
}

Size DesktopPlatform::TextSize(const Font& font, std::string_view text)
{
    return tessarine::TextSize(font, text);
}

/// A box of the system takes the mouse from all forms: a release reaches the box, or nobody.
template <class Ask> auto DesktopPlatform::InBox(const Ask& ask)
{
    const OpenBox box(*this);
    for (const auto& [form, window] : windows_) {
        window->LoseMouse();
    }
    return ask();
}

bool DesktopPlatform::PlainMessage(const std::string& text, PlainButtons buttons)
{
    return InBox([&] { return dialogs::Message(OwnerOfBox(), text, buttons); });
}

std::string DesktopPlatform::AskForText(const std::string& prompt)
{
    return InBox([&] { return dialogs::Text(OwnerOfBox(), prompt); });
}

std::string DesktopPlatform::ChooseFile(const FileDialogRequest& request, Form* owner)
{
    QWidget* const window = owner == nullptr ? nullptr : WindowOf(*owner);
    return InBox([&] {
        return dialogs::File(window == nullptr ? QApplication::activeWindow() : window, request);
    });
}

void DesktopPlatform::Announce(const Form& form, const std::string& news)
{
    if (FormWindow* const window = WindowOf(form)) {
        announcer_.Say(*window, ToText(news));
    }
}

void DesktopPlatform::PlayWave(const std::string& path)
{
    sounds_.Play(path);
}

// --- files ---

FileResult DesktopPlatform::ReadFile(const std::string& path)
{
    return files::Read(path);
}

FileResult DesktopPlatform::PlaceToWrite(const std::string& path)
{
    return files::PlaceToWrite(path);
}

FileFault DesktopPlatform::WriteNewFile(const std::string& path, std::string_view bytes)
{
    return files::WriteNew(files::PathOf(path), bytes);
}

FileFault DesktopPlatform::RenameFile(const std::string& from, const std::string& to)
{
    return files::Rename(files::PathOf(from), files::PathOf(to));
}

void DesktopPlatform::RemoveFile(const std::string& path)
{
    files::Remove(path);
}

/// Two programs may share a folder.
std::string DesktopPlatform::OwnSuffix() const
{
    return '.' + std::to_string(QCoreApplication::applicationPid()) + ".part";
}

bool DesktopPlatform::IsPlainFile(const std::string& path)
{
    return files::IsPlain(path);
}

std::string DesktopPlatform::CurrentFolder()
{
    return files::CurrentFolder();
}

void DesktopPlatform::ChangeFolder(const std::string& folder)
{
    files::ChangeFolder(folder);
}

std::string_view DesktopPlatform::FolderSeparators() const
{
    return files::FolderSeparators();
}

} // namespace tessarine
