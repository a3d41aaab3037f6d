#include "desktop_stage.h"

#include "desktop/dress_style.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "runtime/controls.h"
#include "support/widget_of.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <array>
#include <fstream>

namespace tessarine::test
{
namespace
{

/// What a window manager may take over an answer.
constexpr int ManagersTime = 1600;

} // namespace

bool IsCompared(unsigned seed)
{
    return qgetenv("TWIN") != "no" && (seed % 2 == 0 || qgetenv("QT_QPA_PLATFORM") == "xcb");
}

Toolkit::Toolkit(unsigned seed)
{
    if (qApp != nullptr) {
        return;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static constexpr std::array scales = {"1", "1.25", "2", "1.5", "3", "2.5"};
    const unsigned which = IsCompared(seed) ? seed / 2 * 2 : seed;
    qputenv("QT_SCALE_FACTOR", scales[which % scales.size()]);
    qputenv("XDG_RUNTIME_DIR", QDir::tempPath().toUtf8());
    QLoggingCategory::setFilterRules(QStringLiteral("default.*=false")); // what a platform can't do
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new DressStyle);
    static int words = 1;
    static std::array<char, 2> word = {'t', 0};
    static std::array<char*, 2> all = {word.data(), nullptr};
    new QApplication(words, all.data()); // as long as the process
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

namespace
{

/// The files of an installed program go into the folder, which becomes the current one, before the form
/// is made.
std::string Furnished(const std::string& folder)
{
    QDir::setCurrent(QString::fromStdString(folder));
    constexpr std::string_view installed = "/app";
    for (const auto& [path, text] : HeadlessStage().world.platform.files) {
        if (path.starts_with(installed)) {
            std::ofstream(folder + path.substr(installed.size()), std::ios::binary) << text;
        }
    }
    return folder;
}

template <class Answer> Answer Next(std::deque<Answer>& answers)
{
    const Answer answer = answers.empty() ? Answer() : answers.front();
    answers.erase(answers.begin(), answers.begin() + (answers.empty() ? 0 : 1));
    return answer;
}

/// All that a reader finds, with what it is told of each thing.
QSet<QString> NamesOn(QAccessibleInterface* on)
{
    QSet<QString> names = {on->text(QAccessible::Name)};
    for (int child = 0; child < on->childCount(); ++child) {
        if (QAccessibleInterface* const one = on->child(child)) {
            static_cast<void>(one->rect().isValid() && one->state().invisible);
            names += NamesOn(one);
        }
    }
    return names;
}

} // namespace

DesktopHands::DesktopHands(DesktopPlatform& platform, Form1& main) : platform_(platform), main_(main)
{
    QAccessible::setActive(true);
    hasRefused_ = !qEnvironmentVariableIsEmpty("REFUSES"); // a window manager, from the start
    qApp->installEventFilter(this);
}

// --- mouse and keys ---

void DesktopHands::Mouse(Form& form, Point at, int button, QEvent::Type type, int shift)
{
    const QScopedValueRollback working(working_, working_ + 1);
    const bool isThere = platform_.WindowOf(form) != nullptr; // a press may be the end of a form
    QWindow* const window = platform_.WindowOf(isThere ? form : main_)->windowHandle();
    const QPointF place(at.x / TwipsPerPixel, at.y / TwipsPerPixel);
    const auto which = static_cast<Qt::MouseButton>(button); // the numbers are the same
    buttons_.setFlag(which, type == QEvent::MouseButtonPress);
    constexpr int apart = 1000; // no two presses make a double one
    static int time = 0;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), buttons_, which, type,
                        static_cast<Qt::KeyboardModifiers>(shift << 25), time += apart);
}

void DesktopHands::Press(Form& form, Point at, int button, int shift)
{
    ComeToFront(form);
    Mouse(form, at, button, QEvent::MouseButtonPress, shift);
}

void DesktopHands::Release(Form& form, Point at, int button)
{
    Mouse(form, at, button, QEvent::MouseButtonRelease);
}

void DesktopHands::Work(Control& control, int button, int detail)
{
    QWidget& widget = WidgetOf(platform_, control);
    QPoint at = widget.visibleRegion().boundingRect().center(); // a part may lie outside of the window
    if (auto* bar = dynamic_cast<ScrollBar*>(&control)) {
        auto* const tool = QAccessible::queryAccessibleInterface(&widget);
        tool->valueInterface()->setCurrentValue(bar->Min() + detail * (bar->Max() - bar->Min()) / 256);
        return;
    }
    if (auto* page = dynamic_cast<Browser*>(&control)) {
        const auto length = static_cast<std::size_t>(detail % 3);
        return page->UserFollows({page->Location().path, std::string(length, 'a')});
    }
    if (auto* list = qobject_cast<QAbstractItemView*>(&widget)) {
        const int entry = detail % (list->model()->rowCount() + 1);
        if (entry == 0) {
            return static_cast<ListBox&>(control).UserReleasesOnNothing(button);
        }
        const QModelIndex row = list->model()->index(entry - 1, 0);
        list->scrollTo(row);
        at = list->viewport()->mapTo(&widget, list->visualRect(row).center());
    }
    Form& form = *control.OwnerForm();
    const QPoint place = widget.mapTo(widget.window(), at);
    const Point onForm{place.x() * 1.0 * TwipsPerPixel, place.y() * 1.0 * TwipsPerPixel};
    Press(form, onForm, button, 0);
    Release(form, onForm, button);
}

void DesktopHands::Key(Form& form, int detail)
{
    static constexpr std::array keys = {Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Space,  Qt::Key_Down,
                                        Qt::Key_A,      Qt::Key_Left, Qt::Key_Backtab};
    const QScopedValueRollback working(working_, working_ + 1);
    const int key =
        detail % 2 == 0 ? Qt::Key_Escape : keys[static_cast<std::size_t>(detail) % keys.size()];
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        qt_handleKeyEvent(platform_.WindowOf(form)->windowHandle(), type, key, {},
                          key < 128 ? QString(QChar(key)).toLower() : QString());
    }
}

// --- tools ---

void DesktopHands::Activate(Control& control)
{
    const QPointer<QWidget> widget(&WidgetOf(platform_, control));
    auto* const tool = QAccessible::queryAccessibleInterface(widget);
    if (tool->actionInterface() != nullptr) {
        const QScopedValueRollback working(working_, working_ + 1);
        tool->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::sendPostedEvents(widget, QEvent::MetaCall); // where it is done in a moment
    }
    const auto isDown = [&widget] {
        const auto* const button = qobject_cast<QPushButton*>(widget.data());
        return button != nullptr && button->isDown();
    };
    while (isDown()) { // a button of the toolkit goes down for a while first
        Wait(0);
    }
}

void DesktopHands::AskForNames(const Forms& forms)
{
    for (const Form* form : forms.Loaded()) {
        if (FormWindow* const window = form->IsShown() ? platform_.WindowOf(*form) : nullptr) {
            const auto names = NamesOn(QAccessible::queryAccessibleInterface(window));
            ForEachShown(*form, [&](const Control& control) {
                const QString name = ToText(control.AccessibleName());
                const bool isTold = name.isEmpty() || names.contains(name);
                fault_ = isTold ? fault_ : "no reader finds " + control.AccessibleName();
            });
        }
    }
}

// --- windows ---

void DesktopHands::Resize(Form& form, Size size)
{
    const QScopedValueRollback working(working_, working_ + 1);
    platform_.WindowOf(form)->resize(ToPixels(size));
}

void DesktopHands::Refuse(Form& form)
{
    const QScopedValueRollback working(working_, working_ + 1);
    static constexpr std::array<Qt::WindowStates, 4> states = {Qt::WindowMaximized, Qt::WindowNoState,
                                                               Qt::WindowFullScreen, Qt::WindowNoState};
    hasRefused_ = true;
    platform_.WindowOf(form)->showMinimized();
    Wait(ManagersTime);
    FormWindow* const window = platform_.WindowOf(form);
    if (window == nullptr || !form.IsShown()) {
        return; // it went meanwhile
    }
    window->setWindowState(states.at(static_cast<std::size_t>(state_++) % states.size()));
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (QScreen& next = *screens[state_ / 2 % screens.size()]; &next != window->screen()) {
        window->windowHandle()->setScreen(&next);
        window->move(next.geometry().topLeft() + QPoint(20, 20));
    }
    Wait(ManagersTime);
}

void DesktopHands::Close(Form& form)
{
    const QScopedValueRollback working(working_, working_ + 1);
    platform_.WindowOf(form)->close();
}

// --- time ---

/// A day is short here. What the toolkit deletes later it deletes in a loop like this one.
void DesktopHands::Wait(int milliseconds)
{
    constexpr int shorter = 16;
    QEventLoop loop;
    QTimer::singleShot(std::max(1, milliseconds / shorter), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void DesktopHands::Settle()
{
    do {
        Wait(hasRefused_ ? ManagersTime : 0);
    } while (!IsAtRest() && main_.Captured() == nullptr);
    Wait(0); // and what has changed is painted
}

void DesktopHands::Meanwhile(int calls, std::function<void()> action)
{
    QTimer::singleShot(0, this, [this, calls, action = std::move(action)] {
        calls > 0 ? Meanwhile(calls - 1, action) : action();
    });
}

bool DesktopHands::eventFilter(QObject* watched, QEvent* event)
{
    if (Between) {
        Between();
    }
    auto* const window = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && window != nullptr && window->isWindow() && window->isModal()) {
        MeetSoon(window);
    }
    return false;
}

void DesktopHands::MeetSoon(const QPointer<QWidget>& window)
{
    QTimer::singleShot(0, this, [this, window] {
        if (!window || !window->isVisible()) {
            return;
        }
        const QScopedValueRollback working(working_, 0);
        auto* const own = dynamic_cast<FormWindow*>(window.data());
        own == nullptr ? AnswerBox(*window) : Meet(static_cast<Form&>(*own->TheControl()));
        MeetSoon(window);
    });
}

void DesktopHands::AnswerBox(QWidget& window)
{
    if (auto* const box = qobject_cast<QInputDialog*>(&window)) {
        box->setTextValue(ToText(Next(typedAnswers_)));
        box->accept();
    } else if (auto* const files = qobject_cast<QFileDialog*>(&window)) {
        const QString name = ToText(Next(chosenFiles_));
        files->findChild<QLineEdit*>()->setText(name);
        QMetaObject::invokeMethod(files, name.isEmpty() ? "reject" : "accept");
    } else if (auto* const message = qobject_cast<QMessageBox*>(&window)) {
        const bool asks = message->button(QMessageBox::Yes) != nullptr;
        const bool isYes = Next(plainAnswers_);
        message->button(!asks ? QMessageBox::Ok : isYes ? QMessageBox::Yes : QMessageBox::No)->click();
    }
}

std::string DesktopHands::Fault()
{
    AskForNames(main_.AllForms());
    if (QGuiApplication::overrideCursor() != nullptr) {
        return "it stays busy";
    }
    const auto fits = [this] { // when it is minimised it will hear of its size later
        const FormWindow& window = *platform_.WindowOf(main_);
        return window.isMinimized() || (main_.Width() == window.width() * TwipsPerPixel &&
                                        main_.Height() == window.height() * TwipsPerPixel);
    };
    if (!fits()) {
        Wait(ManagersTime);
    }
    return fits() ? fault_ : "the form has another size than its window";
}

// --- the stage ---

DesktopStage::DesktopStage(unsigned seed)
    : toolkit_(seed), form_(platform_, Furnished(folder_.path().toStdString()), "tessarine"),
      hands_(platform_, form_)
{
    form_.shared.MoveSteps = 2; // the storm has no time to look at them
    form_.Start();
    hands_.Wait(ManagersTime); // a window manager may have its own mind about the first size
    hands_.Settle();
}

std::size_t DesktopStage::Widgets() const
{
    return static_cast<std::size_t>(QApplication::allWidgets().size());
}

std::unique_ptr<Stage> NewStage(unsigned seed)
{
    return std::make_unique<DesktopStage>(seed);
}

} // namespace tessarine::test
