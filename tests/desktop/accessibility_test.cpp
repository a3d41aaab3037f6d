#include "stage.h"

#include <QAccessible>

namespace tessarine
{
namespace
{

class Button : public UserControl
{
public:
    bool TakesFocus() const override { return true; }

protected:
    void Draw(Canvas&) const override {}
};

class AccessibilityTest : public DesktopTest
{
protected:
    AccessibilityTest()
    {
        surface.SetBounds(300, 450, 3600, 3000);
        surface.Describe = [] { return std::string("table"); };
        card.SetBounds(150, 300, 405, 375);
        card.SetCaption("7");
        card.Describe = [this] { return "7 of H, column " + column; };
        spare.SetBounds(150, 900, 405, 375);
        button.SetBounds(3000, 0, 600, 300);
        button.SetToolTip("Undo");
        surface.Add(card);
        surface.Add(spare);
        surface.Add(button);
        form.Add(surface);
        form.Show();
        Events();
    }
    QAccessibleInterface* Of(const Control& control)
    {
        return QAccessible::queryAccessibleInterface(&WidgetOf(platform, control));
    }

    Form form{forms, "window", {6000, 4500}};
    PictureBox surface;
    Label card;
    Label spare;
    Button button;
    std::string column = "3";
};

TEST_F(AccessibilityTest, CardsAreThingsOnTheTable)
{
    QAccessibleInterface* const table = Of(surface);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->text(QAccessible::Name), "table");
    ASSERT_EQ(table->childCount(), 2) << "the button and the card; what has no name is nothing";
    QAccessibleInterface* const thing = table->child(1);
    EXPECT_EQ(thing->text(QAccessible::Name), "7 of H, column 3");
    column = "4";
    EXPECT_EQ(thing->text(QAccessible::Name), "7 of H, column 4") << "said when it is asked";
    EXPECT_EQ(thing->role(), QAccessible::StaticText);
    EXPECT_EQ(thing->parent(), table);
    EXPECT_EQ(table->indexOfChild(thing), 1);
    const QRect place = thing->rect();
    EXPECT_EQ(place.topLeft(), WidgetOf(platform, surface).mapToGlobal(QPoint(10, 20)));
    EXPECT_EQ(place.size(), QSize(27, 25));
    EXPECT_EQ(table->childAt(place.center().x(), place.center().y()), thing);

    card.SetVisible(false);
    EXPECT_EQ(table->childCount(), 1);
}

TEST_F(AccessibilityTest, ABoxButtonIsPressedByAnAction)
{
    int presses = 0;
    button.OnMouseUp = [&](const MouseEvent&) { ++presses; };
    QAccessibleInterface* const press = Of(button);
    EXPECT_EQ(press->role(), QAccessible::Button);
    EXPECT_EQ(press->text(QAccessible::Name), "Undo");
    ASSERT_NE(press->actionInterface(), nullptr);
    EXPECT_TRUE(
        press->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    press->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses, 1);
}

TEST_F(AccessibilityTest, TheToolkitsOwnWidgetsHaveNamesAndRealValues)
{
    ScrollBar red(ScrollBar::Direction::Down);
    red.SetBounds(4000, 300, 255, 1500);
    red.SetRange(255, 0, 1, 1);
    red.SetValue(200);
    red.Describe = [] { return std::string("red"); };
    ListBox list;
    list.SetBounds(4500, 300, 1200, 1500);
    list.Describe = [] { return std::string("schemes"); };
    form.Add(red);
    form.Add(list);
    Events();
    EXPECT_EQ(Of(red)->text(QAccessible::Name), "red");
    ASSERT_NE(Of(red)->valueInterface(), nullptr);
    EXPECT_EQ(Of(red)->valueInterface()->currentValue().toInt(), 200);
    Of(red)->valueInterface()->setCurrentValue(17);
    EXPECT_EQ(red.Value(), 17);
    EXPECT_EQ(Of(list)->text(QAccessible::Name), "schemes");
    EXPECT_EQ(Of(list)->role(), QAccessible::List);
}

TEST_F(AccessibilityTest, WhatIsGoneSaysNothing)
{
    QAccessibleInterface* const table = Of(surface);
    QAccessibleInterface* const thing = table->child(1);
    form.Unload(); // the window lives on until the next round of events
    EXPECT_EQ(table->childCount(), 1) << "its button's widget";
    EXPECT_FALSE(thing->isValid());
    EXPECT_EQ(thing->text(QAccessible::Name), "");
}

} // namespace
} // namespace tessarine
