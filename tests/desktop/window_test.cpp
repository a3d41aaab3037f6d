#include "stage.h"

#include "desktop/placing.h"
#include "desktop/size_talk.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QElapsedTimer>

namespace tessarine
{
namespace
{

class WindowTest : public DesktopTest
{
protected:
    WindowTest()
    {
        first.SetBounds(0, 0, 900, 350);
        second.SetBounds(1500, 0, 900, 350);
        third.SetBounds(3000, 0, 900, 350);
        form.CancelControl = &second;
        for (BoxButton* button : {&first, &second, &third}) {
            button->MouseUp = [this, button](const MouseEvent&) {
                pressed = button;
                form.Hide();
            };
            form.Add(*button);
        }
    }
    void Type(const std::vector<Qt::Key>& keys)
    {
        for (const Qt::Key key : keys) {
            hand.Type(form, key);
        }
    }

    BoxButton first;
    BoxButton second;
    BoxButton third;
    const BoxButton* pressed = nullptr;
};

TEST_F(WindowTest, TheKeyboardWorksADialog)
{
    const auto answer = [this](const std::vector<Qt::Key>& keys) {
        WhenModal([this, keys] { Type(keys); });
        form.ShowModal(nullptr);
        return std::exchange(pressed, nullptr);
    };
    EXPECT_EQ(answer({Qt::Key_Return}), &first) << "the first control has the keyboard";
    EXPECT_EQ(answer({Qt::Key_Tab, Qt::Key_Space}), &second);
    EXPECT_EQ(answer({Qt::Key_Escape}), &second);
}

TEST_F(WindowTest, AFormMayTakeNoKeysAndTheCloseBoxAsksIt)
{
    form.TakesKeys = false;
    form.HasCloseBox = false;
    Show({});
    Type({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape});
    EXPECT_EQ(pressed, nullptr);
    EXPECT_FALSE(platform.WindowOf(form)->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    platform.WindowOf(form)->close();
    EXPECT_TRUE(form.IsShown());
    form.HasCloseBox = true;
    platform.WindowOf(form)->close();
    EXPECT_FALSE(form.IsShown() || platform.WindowOf(form)->isVisible());
}

TEST_F(WindowTest, TellsItsNameAndWhichKeysAreHeldAtAPress)
{
    std::vector<int> held;
    first.MouseDown = [&](const MouseEvent& event) { held.push_back(event.shift); };
    Show({});
    EXPECT_EQ(platform.WindowOf(form)->windowTitle(), "test");
    for (const auto key : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        QTest::mouseClick(platform.WindowOf(form)->windowHandle(), Qt::LeftButton, key, {5, 5});
    }
    EXPECT_EQ(held, (std::vector<int>{1, 2, 4}));
}

TEST_F(WindowTest, ALostReleaseDoesNotHoldTheMouseForEver)
{
    std::string heard;
    first.MouseUp = [&](const MouseEvent&) { heard += "up "; };
    second.MouseDown = [&](const MouseEvent&) { heard += "other"; };
    Show({});
    form.FeedMouseDown({LeftButton, 0, 100, 100}); // and its release never comes
    ASSERT_EQ(form.Captured(), &first);
    hand.Click(second);
    EXPECT_EQ(heard, "up other");
}

TEST_F(WindowTest, StandsWithItsFrameInTheMiddleOfItsOwnerOrOfTheScreenWithThePointer)
{
    const auto middle = [](const QRect& rect) { return rect.topLeft() + rect.bottomRight(); };
    const auto frameOf = [this](const Form& one) { return platform.WindowOf(one)->frameGeometry(); };
    Form box(forms, "box", {3000, 900});
    QCursor::setPos(1000, 300);
    Show({});
    EXPECT_EQ(middle(frameOf(form)), middle({800, 0, 900, 700}));
    QCursor::setPos(100, 300);
    platform.WindowOf(form)->move(1100, 90);
    const auto runBox = [&](const std::function<void()>& check) {
        WhenModal([&] {
            check();
            box.Hide();
        });
        box.ShowModal(&form);
    };
    runBox([&] {
        EXPECT_GT(frameOf(box).width(), 200) << "without a frame this tries nothing";
        EXPECT_EQ(middle(frameOf(box)), middle(frameOf(form)));
    });
    box.StandsBeside = true;
    runBox([&] {
        EXPECT_FALSE(frameOf(box).intersects(frameOf(form)));
        EXPECT_TRUE(QRect(800, 0, 900, 700).contains(frameOf(box)));
    });
    box.StandsBeside = false;
    platform.WindowOf(form)->move(810, -20);
    form.SetClientArea({1500, 600});
    runBox([&] { EXPECT_TRUE(QRect(800, 0, 900, 700).contains(frameOf(box))); });
}

TEST(PlacingTest, AWindowIsWhollyOnTheScreenOfItsOwner)
{
    const QRect screen(0, 0, 1600, 1000);
    const QRect second(1600, 200, 1000, 800);
    const QSize box(400, 138);
    EXPECT_EQ(placing::Centred(box, second, second), QPoint(1900, 531));
    EXPECT_EQ(placing::Centred(box, {1500, 100, 266, 539}, screen), QPoint(1200, 300));
    EXPECT_EQ(placing::Centred(box, {1500, 950, 266, 539}, second), QPoint(1600, 862));
    EXPECT_EQ(placing::Centred({1100, 900}, second, second), second.topLeft());
    EXPECT_EQ(placing::Beside(box, {900, 100, 300, 500}, screen), QPoint(1200, 100));
    EXPECT_EQ(placing::Beside(box, {901, 900, 300, 500}, screen), QPoint(501, 862));
    EXPECT_EQ(placing::Beside(box, {300, 0, 1000, 900}, screen), QPoint(600, 381));
}

TEST_F(WindowTest, AWaitEndsWithTheEventThatItHandledAndInsideOneOthersSleep)
{
    QTimer far; // ends a wait that sleeps on
    far.start(5000);
    const auto wait = [this](const std::function<void()>& posted) {
        QElapsedTimer clock;
        clock.start();
        QMetaObject::invokeMethod(qApp, posted, Qt::QueuedConnection);
        platform.WaitForEvent();
        return clock.elapsed();
    };
    EXPECT_LT(wait([] {}), 2000);
    int sleeps = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &far,
                     [&] { ++sleeps; });
    EXPECT_LT(wait([] {
                  QEventLoop loop;
                  QTimer::singleShot(100, &loop, &QEventLoop::quit);
                  loop.exec();
              }),
              2000);
    EXPECT_LT(wait([this] {
                  bool over = false;
                  QTimer::singleShot(100, qApp, [&] { over = true; });
                  while (!over) {
                      platform.WaitForEvent();
                  }
              }),
              2000);
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
    // Accepted, taken back, an echo of what was asked, and another size by a person.
    const std::vector<std::pair<QSize, bool>> answers = {
        {wanted, false}, {tile, true}, {wanted, true}, {{1000, 600}, false}};
    for (const auto& [size, holdsTile] : answers) {
        sizes.Got(size);
        EXPECT_EQ(sizes.IsHeld(tile), holdsTile) << size.width();
        EXPECT_FALSE(sizes.IsHeld(wanted));
    }
}

} // namespace
} // namespace tessarine
