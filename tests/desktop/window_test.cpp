// Windows and boxes: where they stand, whose they are, what the keyboard does.
#include "desktop/placing.h"
#include "desktop/size_talk.h"
#include "desktop/text.h"
#include "kit/message_box.h"
#include "stage.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

namespace tessarine
{
namespace
{

class WindowTest : public DesktopTest
{
protected:
    WindowTest()
    {
        form.CancelControl = &second;
        form.Add(list);
        list.SetBounds(0, 900, 1500, 1500);
        for (BoxControl* button : {&first, &second}) {
            button->SetBounds(button == &first ? 0 : 1500, 0, 900, 350);
            button->MouseUp = [this, button](const MouseEvent&) {
                pressed = button;
                form.Hide();
            };
            form.Add(*button);
        }
    }
    const Control* AnswerTo(const std::vector<Qt::Key>& keys)
    {
        WhenModal([this, keys] {
            for (const Qt::Key key : keys) {
                Type(form, key);
            }
        });
        form.ShowModal(nullptr);
        return std::exchange(pressed, nullptr);
    }

    ListBox list;
    BoxControl first;
    BoxControl second;
    const Control* pressed = nullptr;
};

TEST_F(WindowTest, TheKeyboardWorksADialog)
{
    first.SetVisible(false); // its widget is made last
    EXPECT_EQ(AnswerTo({Qt::Key_Escape}), &second) << "past a list that has the keyboard";
    EXPECT_EQ(AnswerTo({Qt::Key_Tab, Qt::Key_Space}), &second);
    first.SetVisible(true);
    EXPECT_EQ(AnswerTo({Qt::Key_Tab, Qt::Key_Enter}), &first);
    for (Control* each : std::initializer_list<Control*>{&list, &first}) {
        each == &list ? list.SetEnabled(false) : first.SetVisible(false);
        form.Unload();
        EXPECT_EQ(AnswerTo({Qt::Key_Return}), each == &list ? &first : &second);
    }
    first.SetVisible(true);
    form.Show();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QCoreApplication::sendEvent(&Native(first), &held);
    form.Unload();
    form.TakesKeys = false;
    form.Show();
    for (const auto key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return}) {
        Type(form, key);
    }
    EXPECT_EQ(pressed, nullptr) << "by a key that is held, and where no keys are taken";

    MsgForm box(forms);
    for (const auto& [style, answer] : std::vector<std::pair<const char*, Whole>>{
             {"vbyesno", AnswerNo}, {"vbokcancel", 2}, {"vbyesno", AnswerNo}, {"vbyesno+vbcancel", 2}}) {
        WhenModal([&] { Type(box, Qt::Key_Return); });
        EXPECT_EQ(box.MsgboxA("Exit?", style), answer) << "what changes nothing: " << style;
    }
}

TEST_F(WindowTest, AWindowHasTheTitleTheIconAndTheButtonsOfItsFrame)
{
    const Picture icon{2,
                       {{Shape::Kind::Polygon, {{0, 0}, {2, 0}, {2, 2}, {0, 2}}, White, {}, 1, 0, 0}}};
    form.SetIcon(icon);
    for (const bool has : {false, true}) {
        form.HasCloseBox = has;
        form.Sizable = has;
        form.Show();
        QWidget& window = *platform.WindowOf(form);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window.windowIcon().isNull(); }));
        EXPECT_EQ(window.windowTitle(), QStringLiteral("test"));
        EXPECT_EQ(window.windowIcon().pixmap(128).toImage().pixelColor(127, 127), QColor(Qt::white));
        EXPECT_EQ(window.windowFlags().testFlag(Qt::WindowCloseButtonHint), has);
        EXPECT_EQ(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint), has);
        EXPECT_EQ(window.minimumSize() == window.maximumSize(), !has);
        window.resize(500, 400);
        EXPECT_EQ(form.Width(), has ? 7500 : 6000);
        window.showMinimized();
        form.Show();
        EXPECT_FALSE(window.isMinimized());
        window.close();
        EXPECT_EQ(form.IsShown() || window.isVisible(), !has);
        form.Unload();
    }
}

TEST_F(WindowTest, APressTellsItsKeysAndOneWhoseReleaseWasLostIsOver)
{
    std::vector<int> heard;
    first.MouseDown = [&](const MouseEvent& event) {
        heard.push_back(event.shift);
        QCursor::setPos(3, 3); // it has gone on since
        EXPECT_EQ(platform.Cursor().x, platform.WindowOf(form)->mapToGlobal(QPoint(5, 5)).x());
    };
    first.MouseUp = [&](const MouseEvent&) { heard.push_back(-1); };
    form.Show();
    for (const auto key : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        QTest::mouseClick(platform.WindowOf(form)->windowHandle(), Qt::LeftButton, key, {5, 5});
    }
    EXPECT_EQ(platform.Cursor().x, 3);
    first.MouseDown = {};
    form.FeedMouseDown({LeftButton, 0, 75, 75}); // and its release never comes
    Click(second);
    EXPECT_EQ(heard, (std::vector{1, -1, 2, -1, 4, -1, -1}));
    EXPECT_EQ(pressed, &second);
}

TEST_F(WindowTest, StandsOnTheScreenWithThePointerAndABoxByItsOwner)
{
    Form box(forms, "box", {3000, 900});
    QCursor::setPos(1000, 300);
    Show({});
    QCursor::setPos(100, 300);
    const QWidget& owner = *platform.WindowOf(form);
    const QRect screen(800, 0, 900, 700);
    EXPECT_TRUE(screen.contains(owner.frameGeometry()));
    for (const bool beside : {false, true}) {
        box.StandsBeside = beside;
        WhenModal([&] {
            const QRect frame = platform.WindowOf(box)->frameGeometry();
            EXPECT_TRUE(screen.contains(frame) && frame.height() > 60) << "with a frame";
            const QPoint off = frame.center() - owner.frameGeometry().center();
            EXPECT_EQ(off.manhattanLength() <= 2, !beside);
            EXPECT_EQ(frame.intersects(owner.frameGeometry()), !beside);
            EXPECT_EQ(platform.WindowOf(box)->windowHandle()->transientParent(), owner.windowHandle());
            box.Hide();
        });
        box.ShowModal(&form);
        platform.WindowOf(form)->move(1100, 90);
    }
}

TEST(PlacingTest, AWindowIsWhollyOnTheScreenOfItsOwner)
{
    const QRect screen(0, 0, 1600, 1000);
    const QRect second(1600, 200, 1000, 800);
    const QSize box(400, 138);
    EXPECT_EQ(placing::Centred(box, second, second), QPoint(1900, 531));
    EXPECT_EQ(placing::Centred(box, {1500, 100, 266, 539}, screen), QPoint(1200, 300));
    EXPECT_EQ(placing::Centred(box, {1500, 950, 266, 539}, second), QPoint(1600, 862));
    EXPECT_EQ(placing::Centred({1100, 900}, second, second), QPoint(1550, 200)); // its middle and top
    EXPECT_EQ(placing::Beside(box, {900, 100, 300, 500}, screen), QPoint(1200, 100));
    EXPECT_EQ(placing::Beside(box, {901, 900, 300, 500}, screen), QPoint(501, 862));
    EXPECT_EQ(placing::Beside(box, {300, 0, 1000, 900}, screen), QPoint(600, 381));
}

TEST_F(WindowTest, AWaitEndsWithTheEventThatItHandledAndInsideOneOthersSleep)
{
    QTimer far; // ends a wait that sleeps on
    far.start(5000);
    int sleeps = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &far,
                     [&] { ++sleeps; });
    for (const int milliseconds : {0, 100, 200}) {
        bool over = milliseconds == 0;
        const auto work = [&] {
            QEventLoop loop;
            QTimer::singleShot(milliseconds, &loop, [&] {
                over = true;
                loop.quit();
            });
            while (!over) {
                milliseconds == 100 ? static_cast<void>(loop.exec()) : platform.WaitForEvent();
            }
        };
        QElapsedTimer clock;
        clock.start();
        QMetaObject::invokeMethod(qApp, work, Qt::QueuedConnection);
        platform.WaitForEvent();
        EXPECT_LT(clock.elapsed(), 2000);
    }
    EXPECT_LT(sleeps, 50) << "a loop inside a wait keeps a core busy";
}

TEST_F(WindowTest, OnlyAWindowThatGetsItsOldSizeBackHoldsIt)
{
    form.Sizable = true;
    form.Show();
    for (const Twips width : {4500, 6000, 4500, 5250}) { // to and fro is no refusal
        form.SetClientArea({width, 3750});
        EXPECT_EQ(form.Width(), width);
    }
    const QSize tile(800, 600);
    const QSize wanted(780, 600);
    SizeTalk sizes;
    sizes.Asked(tile, wanted);
    // Accepted, taken back, an echo of what was asked, and by a person another size and the old one.
    const std::vector<std::pair<QSize, bool>> answers = {
        {wanted, false}, {tile, true}, {wanted, true}, {{1000, 600}, false}, {tile, false}};
    for (const auto& [size, holdsTile] : answers) {
        sizes.Got(size);
        EXPECT_EQ(sizes.IsHeld(tile), holdsTile) << size.width();
        EXPECT_FALSE(sizes.IsHeld(wanted));
    }
}

TEST_F(WindowTest, ABoxOfTheSystemWearsTheColoursOfItsFormAndReturnsWhatWasAnswered)
{
    form.SetBackColor(Rgb(30, 60, 30));
    form.ButtonColour = Rgb(200, 180, 20);
    Show({&surface});
    const auto inBox = [this](auto ask, auto user) {
        platform.WindowOf(form)->activateWindow();
        Events();
        form.FeedMouseDown({LeftButton, 0, 100, 600});
        EXPECT_NE(form.Captured(), nullptr);
        WhenModal([&] {
            EXPECT_EQ(form.Captured(), nullptr) << "the box has the mouse";
            QWidget& box = *QApplication::activeModalWidget();
            EXPECT_EQ(box.palette().color(QPalette::Window), QColor(30, 60, 30));
            EXPECT_EQ(box.palette().color(QPalette::Button), QColor(200, 180, 20));
            user(box);
        });
        return ask();
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y}) {
        const auto answer = [&](QWidget& box) {
            auto& message = dynamic_cast<QMessageBox&>(box);
            EXPECT_EQ(message.text(), QStringLiteral("<b>?"));
            EXPECT_EQ(message.textFormat(), Qt::PlainText);
            QWidget* const yes = message.button(QMessageBox::Yes);
            EXPECT_LT(yes->x(), message.button(QMessageBox::No)->x());
            key == Qt::Key_Y ? QTest::mouseClick(yes, Qt::LeftButton) : QTest::keyClick(&box, key);
        };
        EXPECT_EQ(inBox([this] { return platform.PlainMessage("<b>?", PlainButtons::YesNo); }, answer),
                  key == Qt::Key_Y);
    }
    for (const bool accepted : {true, false}) {
        const auto type = [&](QWidget& box) {
            auto& input = dynamic_cast<QInputDialog&>(box);
            EXPECT_EQ(input.labelText(), QStringLiteral("Name"));
            EXPECT_EQ(input.findChild<QLineEdit*>()->palette().color(QPalette::Base), QColor(Qt::black));
            input.setTextValue(QStringLiteral("lagoon"));
            input.done(accepted ? QDialog::Accepted : QDialog::Rejected);
        };
        EXPECT_EQ(inBox([this] { return platform.AskForText("Name"); }, type), accepted ? "lagoon" : "");
    }
    for (const bool busy : {true, true, false}) {
        platform.SetBusyPointer(busy);
        const QCursor* const shown = QGuiApplication::overrideCursor();
        EXPECT_EQ(shown != nullptr && shown->shape() == Qt::WaitCursor, busy);
    }
}

TEST_F(WindowTest, TheLatestDealStandsFirstAndASaveProposesItsName)
{
    const QTemporaryDir folder;
    const std::string fresh = PathToBytes(folder.filePath(QStringLiteral("new.gam")));
    for (const bool save : {false, true}) {
        WhenModal([&] {
            auto* const box = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
            const auto* const files = box->findChild<QTreeView*>(QStringLiteral("treeView"));
            EXPECT_EQ(files->header()->sortIndicatorSection(), 3) << "by their dates";
            EXPECT_EQ(files->header()->sortIndicatorOrder(), Qt::DescendingOrder);
            EXPECT_TRUE(files->isColumnHidden(1) && files->isColumnHidden(2));
            EXPECT_EQ(box->acceptMode(), save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
            for (const auto* const tool : box->findChildren<QToolButton*>()) {
                EXPECT_EQ(tool->isVisible(), tool->text() == QStringLiteral("Up"));
            }
            save ? box->findChild<QPushButton*>()->click() : box->reject();
        });
        const std::string name = save ? "new.gam" : "";
        EXPECT_EQ(
            platform.ChooseFile({save, "t", "games", "*.gam", ToBytes(folder.path()), name}, nullptr),
            save ? fresh : "");
    }
}

} // namespace
} // namespace tessarine
