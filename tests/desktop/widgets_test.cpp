#include "stage.h"

#include <QAbstractItemView>
#include <QRadioButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextCursor>

#include <fstream>

namespace tessarine
{
namespace
{

class WidgetsTest : public DesktopTest
{
protected:
    template <class Widget> Widget& Native(const Control& control)
    {
        return dynamic_cast<Widget&>(WidgetOf(platform, control));
    }
};

TEST_F(WidgetsTest, AListIsPickedByMouseAndByKeys)
{
    ListBox list(TextList::Order::Sorted);
    list.SetBounds(150, 150, 1800, 2400);
    for (const char* name : {"sand", "clay", "mist"}) {
        list.Add(name);
    }
    int releases = 0;
    list.MouseUp = [&](const MouseEvent&) { ++releases; };
    Show({&list});
    auto& view = Native<QAbstractItemView>(list);
    const QPoint lastRow =
        view.viewport()->mapTo(&view, view.visualRect(view.model()->index(2, 0)).center());

    hand.Click(list, lastRow);
    EXPECT_EQ(list.SelectedText(), "sand");
    hand.Type(list, Qt::Key_Up);
    EXPECT_EQ(list.SelectedText(), "mist");
    hand.Click(list, lastRow + QPoint(0, 60)); // on nothing
    EXPECT_EQ(list.SelectedText(), "mist");
    EXPECT_EQ(view.currentIndex().row(), 1) << "the widget follows the control";
    EXPECT_EQ(releases, 3);

    // What the program does comes to the widget and not back.
    list.Clear();
    list.FillWhenAsked([] { return std::vector<std::string>(200, "font"); });
    list.SetTopIndex(120);
    Events();
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_EQ(view.indexAt({5, 3}).row(), 120);
    view.verticalScrollBar()->setValue(10);
    EXPECT_EQ(list.TopIndex(), 10U);
    Events();
    EXPECT_EQ(view.indexAt({5, 3}).row(), 10) << "and it stays there";
    EXPECT_EQ(releases, 3);
}

TEST_F(WidgetsTest, AScrollBarMayHaveItsLargerEndAtTheTop)
{
    ScrollBar red(ScrollBar::Direction::Down);
    red.SetBounds(150, 150, 255, 1800);
    red.SetRange(255, 0, 1, 1);
    red.SetValue(255);
    int changes = 0;
    red.OnChange = [&] { ++changes; };
    Show({&red});
    const auto& bar = Native<QScrollBar>(red);
    const QPoint lowerArrow(8, 112);
    const QPoint thumb(8, 25); // while it is at the top
    EXPECT_EQ(bar.value(), bar.minimum()) << "255 is at the top";
    hand.Click(red, lowerArrow);
    EXPECT_EQ(red.Value(), 254);
    hand.Press(red, thumb);
    hand.Move(red, thumb + QPoint(0, 20));
    EXPECT_EQ(changes, 1) << "a thumb on its way says nothing";
    hand.Release(red, thumb + QPoint(0, 20));
    EXPECT_EQ(changes, 2);
    EXPECT_LT(red.Value(), 250);

    red.SetValue(40);
    Events();
    EXPECT_EQ(bar.value(), 215);
}

TEST_F(WidgetsTest, OptionsTurnOnlyAsTheirControlsDo)
{
    OptionButton one;
    OptionButton two;
    one.SetBounds(150, 300, 1800, 240);
    two.SetBounds(150, 600, 1800, 240);
    Show({&one, &two});
    const auto& first = Native<QRadioButton>(one);
    const auto& second = Native<QRadioButton>(two);
    for (const Control* each : std::initializer_list<Control*>{&one, &two, &two}) {
        hand.Click(*each); // a second time, too: it stays
    }
    EXPECT_TRUE(!one.Value() && two.Value());
    {
        const InputHold hold(form);
        hand.Click(one);
    }
    EXPECT_TRUE(second.isChecked() && !first.isChecked()) << "put back";
    one.SetValue(true);
    one.SetBackColor(Rgb(0, 0, 128)); // black on this could not be read
    Events();
    EXPECT_TRUE(first.isChecked() && !second.isChecked());
    EXPECT_EQ(first.palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(WidgetsTest, APageIsLoadedAnewAndItsLinksGoThroughTheHistory)
{
    const QTemporaryDir folder;
    const std::string page = folder.path().toStdString() + "/a page.htm";
    Browser browser;
    browser.SetBounds(60, 480, 5000, 3000);
    Show({&browser});
    auto& text = Native<QTextBrowser>(browser);
    const auto top = [&] { return text.verticalScrollBar()->value(); };
    const auto open = [&](const std::string& words) {
        std::ofstream(page) << "<p><a href='#end'>" << words << "</a></p>" << std::string(20000, 'x')
                            << "<p><a name='end'>end</a></p>";
        browser.Navigate(page);
        Events();
        EXPECT_TRUE(text.toPlainText().startsWith(words.c_str()));
        EXPECT_EQ(top(), 0);
    };
    open("before");
    QTextCursor onLink(text.document());
    onLink.setPosition(2);
    hand.Click(browser, text.viewport()->mapTo(&text, text.cursorRect(onLink).center()));
    Events();
    EXPECT_EQ(browser.LocationURL(), page + "#end");
    EXPECT_GT(top(), 0);
    browser.GoBack();
    Events();
    EXPECT_EQ(top(), 0);
    browser.GoForward();
    open("after");
}

} // namespace
} // namespace tessarine
