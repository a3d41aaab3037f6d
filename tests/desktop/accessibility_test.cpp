#include "form1.h"
#include "stage.h"

#include <QAccessible>

namespace tessarine
{
namespace
{

class AccessibilityTest : public DesktopTest
{
protected:
    QAccessibleInterface& Of(const Control& control)
    {
        return *QAccessible::queryAccessibleInterface(&WidgetOf(platform, control));
    }
    /// Does the first thing that a tool may do with a control.
    void Act(const Control& control)
    {
        QAccessibleActionInterface* const actions = Of(control).actionInterface();
        actions->doAction(actions->actionNames().value(0));
        Events();
    }
};

TEST_F(AccessibilityTest, CardsAreThingsOnTheTable)
{
    std::string column = "3";
    Label card;
    Label behind;
    Label hidden;
    BoxControl button;
    card.SetBounds(150, 300, 405, 375);
    card.Describe = [&] { return "7 of H, column " + column; };
    behind.SetBounds(100, 200, 405, 375);
    behind.SetCaption("6 of S");
    hidden.SetCaption("nobody sees it");
    hidden.SetBounds(150, 300, 405, 375);
    hidden.SetVisible(false);
    button.SetBounds(3000, 0, 600, 300);
    for (Control* each : std::initializer_list<Control*>{&behind, &card, &button, &hidden}) {
        surface.Add(*each);
    }
    Show({&surface});
    QAccessibleInterface& table = Of(surface);
    ASSERT_EQ(table.childCount(), 3) << "the button and two cards";
    QAccessibleInterface* const thing = table.child(2);
    column = "4";
    EXPECT_EQ(thing->text(QAccessible::Name), "7 of H, column 4") << "said when it is asked";
    EXPECT_EQ(table.indexOfChild(thing), 2);
    const QRect place = thing->rect();
    EXPECT_EQ(place, QRect(WidgetOf(platform, surface).mapToGlobal(QPoint(10, 20)), QSize(27, 25)));
    EXPECT_EQ(table.childAt(place.x(), place.y()), thing) << "of two the one in front";

    form.Unload(); // the window lives on until the next round of events
    EXPECT_EQ(table.childCount(), 1) << "its button's widget";
    EXPECT_FALSE(thing->isValid());
    EXPECT_EQ(thing->text(QAccessible::Name), "");
}

TEST_F(AccessibilityTest, AToolWorksWhatAHandWorksAndSeesHowItStands)
{
    ScrollBar red(ScrollBar::Direction::Down);
    CheckBox check;
    BoxControl button;
    button.MouseUp = [this](const MouseEvent&) { platform.PlainMessage("?", PlainButtons::Ok); };
    Show({&red, &check, &button});
    red.SetRange(255, 0, 1, 1);
    red.SetValue(200);
    ASSERT_NE(Of(red).valueInterface(), nullptr);
    EXPECT_EQ(Of(red).valueInterface()->currentValue().toInt(), 200) << "not that of a bar turned over";
    Of(red).valueInterface()->setCurrentValue(17);
    EXPECT_EQ(red.Value(), 17);
    for (const bool isSet : {true, false}) {
        Act(check);
        EXPECT_TRUE(check.Value() == isSet && Of(check).state().checked == isSet);
    }
    EXPECT_EQ(Of(button).role(), QAccessible::Button);
    bool hasItsAnswer = false;
    bool wasOpen = false;
    WhenModal([&] {
        EXPECT_TRUE(hasItsAnswer) << "the tool waits for a box";
        QWidget* const box = QApplication::activeModalWidget();
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(box)->state().modal);
        box->close();
        wasOpen = true;
    });
    Of(button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    hasItsAnswer = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return wasOpen; }));
}

TEST_F(AccessibilityTest, TheOptionsTellWhatEveryControlIsForAndHowFarTheSliderIs)
{
    Form1 program(platform, "/", "/t");
    program.form6.Show();
    for (QWidget* widget : platform.WindowOf(program.form6)->findChildren<QWidget*>()) {
        EXPECT_FALSE(PeerBehind(widget) != nullptr && widget->toolTip().isEmpty()) << widget->x();
    }
    program.form6.ContrastV.UserSets(120);
    Events();
    EXPECT_EQ(Native(program.form6.ContrastV).toolTip(), QStringLiteral("Contrast: 120"));
}

} // namespace
} // namespace tessarine
