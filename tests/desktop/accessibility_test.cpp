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

TEST_F(AccessibilityTest, AToolWorksControlsAndSeesHowTheyStand)
{
    ScrollBar red(ScrollBar::Direction::Down);
    CheckBox check;
    BoxControl button;
    int presses = 0;
    button.MouseUp = [&](const MouseEvent&) { ++presses; };
    red.SetRange(255, 0, 1, 1);
    red.SetValue(200);
    Show({&red, &check, &button});
    ASSERT_NE(Of(red).valueInterface(), nullptr);
    EXPECT_EQ(Of(red).valueInterface()->currentValue().toInt(), 200) << "not that of a bar turned over";
    Of(red).valueInterface()->setCurrentValue(17);
    EXPECT_EQ(red.Value(), 17);
    EXPECT_EQ(Of(button).role(), QAccessible::Button);
    for (const bool isSet : {true, false}) {
        Of(check).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        Of(button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(check.Value(), !isSet) << "a box may come up, and the tool has its answer before";
        EXPECT_EQ(presses, isSet ? 0 : 1);
        Events();
        EXPECT_TRUE(check.Value() == isSet && Of(check).state().checked == isSet);
    }
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
