#include "stage.h"

#include <QAccessible>

namespace tessarine
{
namespace
{

class AccessibilityTest : public DesktopTest
{
protected:
    QAccessibleInterface* Of(const Control& control)
    {
        return QAccessible::queryAccessibleInterface(&WidgetOf(platform, control));
    }
};

TEST_F(AccessibilityTest, CardsAreThingsOnTheTable)
{
    std::string column = "3";
    Label card;
    BoxButton button;
    card.SetBounds(150, 300, 405, 375);
    card.Describe = [&] { return "7 of H, column " + column; };
    button.SetBounds(3000, 0, 600, 300);
    surface.Add(card);
    surface.Add(button);
    Show({&surface});
    QAccessibleInterface* const table = Of(surface);
    ASSERT_EQ(table->childCount(), 2) << "the button and the card";
    QAccessibleInterface* const thing = table->child(1);
    column = "4";
    EXPECT_EQ(thing->text(QAccessible::Name), "7 of H, column 4") << "said when it is asked";
    EXPECT_EQ(table->indexOfChild(thing), 1);
    const QRect place = thing->rect();
    EXPECT_EQ(place, QRect(WidgetOf(platform, surface).mapToGlobal(QPoint(10, 20)), QSize(27, 25)));
    EXPECT_EQ(table->childAt(place.center().x(), place.center().y()), thing);

    form.Unload(); // the window lives on until the next round of events
    EXPECT_EQ(table->childCount(), 1) << "its button's widget";
    EXPECT_FALSE(thing->isValid());
    EXPECT_EQ(thing->text(QAccessible::Name), "");
}

TEST_F(AccessibilityTest, AScrollBarSaysTheValueOfItsControl)
{
    ScrollBar red(ScrollBar::Direction::Down);
    red.SetBounds(4000, 300, 255, 1500);
    red.SetRange(255, 0, 1, 1);
    red.SetValue(200);
    Show({&red});
    ASSERT_NE(Of(red)->valueInterface(), nullptr);
    EXPECT_EQ(Of(red)->valueInterface()->currentValue().toInt(), 200) << "not that of a bar turned over";
    Of(red)->valueInterface()->setCurrentValue(17);
    EXPECT_EQ(red.Value(), 17);
}

} // namespace
} // namespace tessarine
