// Loaded into the program from outside (LD_PRELOAD): an assistive tool that works it by the names of its
// buttons and tells on the standard output what comes up.
//   HAND="New Game|Options|row:linen|Delete"   what it presses, one after the other. A box of which the
// list knows nothing is answered with Yes or Ok; "row:" picks a row of a list, "file:" and "text:"
// answer a dialog, at "wait" all stays as it is. At the list's end the main window is closed.
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <unistd.h>
#include <vector>

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

using Action = std::function<void()>;

Action ClickOn(QAbstractItemView& list, const QModelIndex& row)
{
    return [&list, row] {
        list.scrollTo(row);
        const QPointF at = list.visualRect(row).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton, {}, {});
            QApplication::sendEvent(list.viewport(), &event);
        }
    };
}

/// How to do the wish in this window; none if it is not one for it.
Action WayTo(const QString& wish, QWidget& window)
{
    const QString value = wish.section(u':', 1);
    if (auto* const box = qobject_cast<QInputDialog*>(&window); box && wish.startsWith(u"text:")) {
        return [=] { box->setTextValue(value), box->accept(); };
    }
    if (auto* const box = qobject_cast<QFileDialog*>(&window); box && wish.startsWith(u"file:")) {
        return [=] {
            box->findChild<QLineEdit*>()->setText(value);
            QMetaObject::invokeMethod(box, "accept");
        };
    }
    if (wish.startsWith(u"row:")) {
        for (auto* list : window.findChildren<QAbstractItemView*>()) {
            const QModelIndex first = list->model()->index(0, 0);
            const auto rows = list->model()->match(first, Qt::DisplayRole, value, 1, Qt::MatchExactly);
            if (list->isVisible() && !rows.isEmpty()) {
                return ClickOn(*list, rows.first());
            }
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
/// time.
void TellWhetherOnScreen(const QWidget& window)
{
    const QRect place = window.frameGeometry();
    const QRect screen = window.screen()->geometry();
    if (!screen.contains(place) && place.width() <= screen.width()) {
        Tell("off the screen", QStringLiteral("%1 at %2, %3 of %4 by %5")
                                   .arg(window.windowTitle())
                                   .arg(place.x())
                                   .arg(place.y())
                                   .arg(place.width())
                                   .arg(place.height()));
    }
}

void TellOf(const QWidget& box)
{
    static const QWidget* last = nullptr;
    static QString lastText;
    QString text;
    for (const QAccessibleInterface* part :
         AllIn(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&box)))) {
        text +=
            part->role() == QAccessible::StaticText ? part->text(QAccessible::Name) + u' ' : QString();
    }
    if (last != &box || lastText != text) {
        Tell("box", box.windowTitle() + u' ' + text);
        TellWhetherOnScreen(box);
    }
    last = &box;
    lastText = text;
}

/// Whether nothing goes on in the loop that called: one that a command lets run in the middle of its
/// work is called from deeper in the stack than the loop itself.
bool IsIdle()
{
    static std::vector<const char*> shallowest; // by the level of the loop
    const auto level = static_cast<std::size_t>(QThread::currentThread()->loopLevel());
    const auto* const here = static_cast<const char*>(__builtin_frame_address(0));
    shallowest.resize(level + 1, nullptr);
    constexpr std::ptrdiff_t oneLoop = 500; // bytes within which its calls differ
    const bool isLoop = shallowest[level] - here < oneLoop;
    shallowest[level] = std::max(shallowest[level], here);
    return isLoop && level > 0;
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
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto main = std::ranges::find_if(all, [](const QWidget* one) {
        return one->isVisible() && one->windowTitle() == u"Tessarine" && !one->isModal();
    });
    QWidget* const window = box != nullptr ? box : main == all.end() ? nullptr : *main;
    const bool isInBox = QThread::currentThread()->loopLevel() > 1;
    if (!IsIdle() || (isInBox && box == nullptr) || window == nullptr || arrival.isAwaited) {
        return;
    }
    if (box != nullptr) {
        TellOf(*box);
    } else {
        TellWhetherOnScreen(*window);
    }
    const QStringList answers = {"Yes", "Ok", "OK", "Exit", "Cancel"};
    const QStringList wishes = Wishes().mid(0, 1) + (box != nullptr ? answers : QStringList());
    const auto wish =
        std::ranges::find_if(wishes, [&](const QString& one) { return WayTo(one, *window) != nullptr; });
    if (Wishes().value(0) == u"wait") {
        return; // until something from outside ends it
    }
    static int waited = 0; // what a press has brought up is there a moment later
    if (wish == wishes.end() && !Wishes().isEmpty() && ++waited < 500) {
        // later
    } else if (wish == wishes.end()) {
        Tell(Wishes().isEmpty() ? "done" : "cannot", Wishes().value(0));
        window->close();
    } else {
        if (*wish == Wishes().value(0)) {
            Tell("does", *wish);
            Wishes().removeFirst();
        }
        waited = 0;
        arrival.isAwaited = true;
        QCoreApplication::postEvent(&arrival, new QEvent(QEvent::User), Qt::LowEventPriority);
        WayTo(*wish, *window)();
    }
}

void Begin()
{
    alarm(30);
    QTimer::singleShot(0, qApp, &Step);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Begin)
