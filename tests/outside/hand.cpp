// Loaded into the program from outside (LD_PRELOAD): an assistive tool that works it by the names of its
// buttons and tells on the standard output what comes up.
//   HAND="New Game|Options|row:linen|Delete"   what it presses, one after the other. A box of which the
// list knows nothing is answered with Yes or Ok; "row:" picks a row of a list, "file:" and "text:"
// answer a dialog. At the list's end the main window is closed.
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
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
    }
    last = &box;
    lastText = text;
}

int inside = 0; ///< presses whose work still goes on, in boxes that they have opened

void Step()
{
    QTimer::singleShot(2, qApp, &Step);
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto open = [](const QWidget* one) { return one->isVisible() && one->isWindow(); };
    const auto boxes =
        std::ranges::count_if(all, [&](const QWidget* one) { return open(one) && one->isModal(); });
    QWidget* const box = QApplication::activeModalWidget();
    const bool isIdle = box != nullptr || QThread::currentThread()->loopLevel() == 1;
    if (inside > boxes || !isIdle) {
        return;
    }
    const auto main = std::ranges::find_if(all, [&](const QWidget* one) {
        return open(one) && one->windowTitle() == QLatin1String("Tessarine") && !one->isModal();
    });
    QWidget* const window = box != nullptr ? box : main == all.end() ? nullptr : *main;
    if (window == nullptr) {
        return;
    }
    if (box != nullptr) {
        TellOf(*box);
    }
    ++inside;
    const QStringList answers = {"Yes", "Ok", "OK", "Exit", "Cancel"};
    const QStringList wishes = Wishes().mid(0, 1) + (box != nullptr ? answers : QStringList());
    const auto wish =
        std::ranges::find_if(wishes, [&](const QString& one) { return WayTo(one, *window) != nullptr; });
    if (wish == wishes.end()) {
        Tell(Wishes().isEmpty() ? "done" : "cannot", Wishes().value(0));
        window->close();
    } else {
        if (*wish == Wishes().value(0)) {
            Tell("does", *wish);
            Wishes().removeFirst();
        }
        WayTo(*wish, *window)();
    }
    --inside;
}

void Begin()
{
    alarm(30);
    QTimer::singleShot(0, qApp, &Step);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Begin)
