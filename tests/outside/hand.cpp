// Loaded into the program from outside (LD_PRELOAD): an assistive tool that works it by the names of its
// buttons and tells on the standard output what comes up.
//   HAND="New Game|Options|row:linen|Delete"   what it presses, one after the other. A box of which the
// list knows nothing is answered with Yes or Ok; "row:" picks a row of a list, "file:" and "text:"
// answer a dialog, from "room:50" on no file gets longer than 50 bytes, at "wait" all stays as it is. At
// the list's end the main window is closed.
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

QStringList& Wishes()
{
    static QStringList wishes = qEnvironmentVariable("HAND").split(u'|', Qt::SkipEmptyParts);
    return wishes;
}

void Tell(const char* what, const QString& text = {})
{
    dprintf(STDOUT_FILENO, "%s %s\n", what,
            qPrintable(QString(text).replace(u'\n', u' ').remove(u'\r')));
}

QList<QAccessibleInterface*> AllIn(QAccessibleInterface* on)
{
    QList<QAccessibleInterface*> all;
    for (int child = 0; on != nullptr && child < on->childCount(); ++child) {
        if (QAccessibleInterface* const one = on->child(child);
            one != nullptr && !one->state().invisible) {
            all << one << AllIn(one);
        }
    }
    return all;
}

QAccessibleInterface* Button(const QWidget& window, const QString& name)
{
    const auto all = AllIn(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&window)));
    const auto found = std::ranges::find_if(all, [&](QAccessibleInterface* one) {
        return one->role() == QAccessible::Button && one->text(QAccessible::Name) == name;
    });
    return found == all.end() ? nullptr : *found;
}

void ClickOn(QAbstractItemView& list, const QModelIndex& row)
{
    list.scrollTo(row);
    const QPointF at = list.visualRect(row).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton, {}, {});
        QApplication::sendEvent(list.viewport(), &event);
    }
}

/// No file gets longer than so many bytes from now on, as on a disk that is full then.
void LimitRoom(const QString& bytes)
{
    const rlimit room{bytes.toULong(), RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &room);
}

/// How to do the wish in this window; none if it is not one for it.
std::function<void()> WayTo(const QString& wish, QWidget& window)
{
    const QString value = wish.section(u':', 1);
    if (wish.startsWith(u"room:")) {
        return [=] { LimitRoom(value); };
    }
    auto* const field = window.findChild<QLineEdit*>();
    if (field != nullptr && (wish.startsWith(u"text:") || wish.startsWith(u"file:"))) {
        return [=, &window] { field->setText(value), QMetaObject::invokeMethod(&window, "accept"); };
    }
    const auto lists = window.findChildren<QAbstractItemView*>();
    for (auto list = lists.begin(); wish.startsWith(u"row:") && list != lists.end(); ++list) {
        const QAbstractItemModel& model = *(*list)->model();
        const auto rows = model.match(model.index(0, 0), Qt::DisplayRole, value, 1, Qt::MatchExactly);
        if ((*list)->isVisible() && !rows.isEmpty()) {
            return [row = rows.first(), &view = **list] { ClickOn(view, row); };
        }
    }
    QAccessibleInterface* const button = Button(window, wish);
    if (button != nullptr && button->object()->inherits("QAbstractButton")) {
        // The toolkit's own way would go down first and work a while later.
        return [=] { QMetaObject::invokeMethod(button->object(), "click"); };
    }
    if (button != nullptr) {
        return [=] { button->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); };
    }
    return {};
}

/// A window has settled when its frame and its place are known, which a window manager tells in its
/// time. Of one that is wider than the screen, what is to be pressed can be reached.
void TellWhetherOnScreen(const QWidget& window, const QString& wish)
{
    const QRect screen = window.screen()->geometry();
    const QAccessibleInterface* const button = Button(window, wish);
    QRect place = window.frameGeometry();
    if (button != nullptr && place.width() > screen.width()) {
        place = button->rect();
    }
    if (!screen.contains(place)) {
        Tell("off the screen", QStringLiteral("%1 with its %2").arg(window.windowTitle(), wish));
    }
}

void TellOf(const QWidget& box)
{
    static QString last;
    QString text = box.windowTitle() + u' ';
    for (const QAccessibleInterface* part :
         AllIn(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&box)))) {
        text +=
            part->role() == QAccessible::StaticText ? part->text(QAccessible::Name) + u' ' : QString();
    }
    if (std::exchange(last, text) != text) {
        Tell("box", text);
    }
}

/// Whether nothing goes on in the wait that called: one that a command lets run in the middle of its
/// work is called from deeper in the stack than that for the box itself.
bool IsIdle(const QWidget* box)
{
    static std::vector<std::pair<const QWidget*, const char*>> waits{{}}; // the shallowest, box on box
    const auto* const here = static_cast<const char*>(__builtin_frame_address(0));
    auto known = std::ranges::find(waits, box, &decltype(waits)::value_type::first);
    if (known == waits.end()) {
        known = waits.insert(known, {box, here});
    }
    waits.erase(known + 1, waits.end());
    known->second = std::max(known->second, here);
    constexpr std::ptrdiff_t oneWait = 500; // bytes within which its calls differ
    return known->second - here < oneWait;
}

/// What was pressed last may reach the program only in its next round of events: this comes behind it.
struct Arrival : QObject {
    bool isAwaited = false;
    bool event(QEvent* /*event*/) override { return !(isAwaited = false); }
} arrival;

void Step()
{
    QTimer::singleShot(2, qApp, &Step);
    QWidget* const box = QApplication::activeModalWidget();
    QWidget* window = box;
    for (QWidget* const one : QApplication::topLevelWidgets()) {
        if (box == nullptr && one->isVisible() && one->windowTitle() == u"Tessarine" &&
            !one->isModal()) {
            window = one;
        }
    }
    const bool isStarting = box == nullptr && QThread::currentThread()->loopLevel() == 0;
    if (window == nullptr || isStarting || arrival.isAwaited || !IsIdle(box)) {
        return;
    }
    QStringList wishes = Wishes().mid(0, 1);
    if (box != nullptr) {
        TellOf(*box);
        wishes += {"Yes", "Ok", "OK", "Exit", "Cancel"};
    }
    if (Wishes().value(0) == u"wait") {
        return; // until something from outside ends it
    }
    const auto wish =
        std::ranges::find_if(wishes, [&](const QString& one) { return WayTo(one, *window) != nullptr; });
    static int waited = 0; // what a press has brought up is there a moment later
    if (wish == wishes.end() && !Wishes().isEmpty() && ++waited < 500) {
        // later
    } else if (wish == wishes.end()) {
        Tell(Wishes().isEmpty() ? "done" : "cannot", Wishes().value(0));
        window->close();
    } else {
        const QString chosen = *wish;
        TellWhetherOnScreen(*window, chosen);
        if (chosen == Wishes().value(0)) {
            Tell("does", chosen);
            Wishes().removeFirst();
        }
        waited = 0;
        arrival.isAwaited = true;
        QCoreApplication::postEvent(&arrival, new QEvent(QEvent::User), Qt::LowEventPriority);
        WayTo(chosen, *window)();
    }
}

void Begin()
{
    if (Wishes().value(0).startsWith(u"room:")) {
        LimitRoom(Wishes().takeFirst().section(u':', 1)); // for the start, too
    }
    QTimer::singleShot(0, qApp, &Step);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Begin)
