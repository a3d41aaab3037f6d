#include "stage.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
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
    QPoint RowPlace(const ListBox& box, int row)
    {
        auto& view = Native<QAbstractItemView>(box);
        return view.viewport()->mapTo(&view, view.visualRect(view.model()->index(row, 0)).center());
    }

    Form form{forms, "widgets", {6000, 4500}};
};

TEST_F(WidgetsTest, AListIsPickedByMouseAndByKeys)
{
    ListBox list(TextList::Order::Sorted);
    list.SetBounds(150, 150, 1800, 2400);
    for (const char* name : {"sand", "clay", "mist"}) {
        list.Add(name);
    }
    int releases = 0;
    list.OnMouseUp = [&](const MouseEvent&) { ++releases; };
    form.Add(list);
    form.Show();
    Events();

    hand.Click(list, RowPlace(list, 2));
    EXPECT_EQ(list.SelectedText(), "sand");
    hand.Type(list, Qt::Key_Up);
    EXPECT_EQ(list.SelectedText(), "mist");
    EXPECT_EQ(releases, 2);
    hand.Type(list, Qt::Key_Return);
    hand.Click(list, RowPlace(list, 2) + QPoint(0, 60)); // on nothing
    EXPECT_EQ(list.SelectedText(), "mist");
    EXPECT_EQ(releases, 3);
    auto& view = Native<QAbstractItemView>(list);
    EXPECT_EQ(view.currentIndex().row(), 1) << "the widget follows the control";

    // What the program does comes to the widget and not back.
    list.Select(0);
    Events();
    EXPECT_EQ(view.currentIndex().row(), 0);
    list.Clear();
    list.Add("new");
    Events();
    EXPECT_EQ(view.model()->rowCount(), 1);
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_EQ(releases, 3);
}

TEST_F(WidgetsTest, ALongListScrollsToItsTopEntryAndSaysWhereTheUserScrolled)
{
    ListBox list;
    list.SetBounds(150, 150, 1800, 1500);
    list.FillWhenAsked([] {
        std::vector<std::string> names;
        for (int i = 0; i < 200; ++i) {
            names.push_back("font " + std::to_string(i));
        }
        return names;
    });
    form.Add(list);
    list.Select(120);
    list.SetTopIndex(120);
    form.Show();
    Events();
    auto& view = Native<QAbstractItemView>(list);
    EXPECT_EQ(view.indexAt({5, 3}).row(), 120);

    view.verticalScrollBar()->setValue(10);
    EXPECT_EQ(list.TopIndex(), 10U);
    Events();
    EXPECT_EQ(view.indexAt({5, 3}).row(), 10) << "and it stays there";
    list.SetTopIndex(120);
    Events();
    EXPECT_EQ(view.indexAt({5, 3}).row(), 120);
}

TEST_F(WidgetsTest, AScrollBarMayHaveItsLargerEndAtTheTop)
{
    ScrollBar red(ScrollBar::Direction::Down);
    red.SetBounds(150, 150, 255, 1800);
    red.SetRange(255, 0, 1, 1);
    red.SetValue(255);
    int changes = 0;
    red.OnChange = [&] { ++changes; };
    form.Add(red);
    form.Show();
    Events();
    auto& bar = Native<QScrollBar>(red);
    EXPECT_EQ(bar.value(), bar.minimum()) << "255 is at the top";

    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.value();
    option.sliderValue = bar.value();
    option.singleStep = option.pageStep = 1;
    option.subControls = QStyle::SC_All;
    const auto part = [&](QStyle::SubControl sub) {
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, sub, &bar).center();
    };
    hand.Click(red, part(QStyle::SC_ScrollBarAddLine)); // the arrow at the bottom
    EXPECT_EQ(red.Value(), 254);
    EXPECT_EQ(changes, 1);

    const QPoint thumb = part(QStyle::SC_ScrollBarSlider);
    hand.Press(red, thumb);
    hand.Move(red, thumb + QPoint(0, 20));
    EXPECT_EQ(changes, 1) << "a thumb on its way says nothing";
    hand.Release(red, thumb + QPoint(0, 20));
    EXPECT_EQ(changes, 2);
    EXPECT_LT(red.Value(), 250);

    red.SetValue(40);
    Events();
    EXPECT_EQ(bar.value(), 215);
    EXPECT_EQ(changes, 3);
    {
        const InputHold hold(form);
        hand.Click(red, part(QStyle::SC_ScrollBarAddLine));
    }
    EXPECT_EQ(bar.value(), 215) << "put back";
    EXPECT_EQ(red.Value(), 40);
}

TEST_F(WidgetsTest, OptionsAndCheckBoxesTurnOnlyAsTheirControlsDo)
{
    Frame frame;
    frame.SetBounds(150, 150, 3000, 3000);
    OptionButton one;
    OptionButton two;
    CheckBox check;
    one.SetBounds(150, 300, 1800, 240);
    two.SetBounds(150, 600, 1800, 240);
    check.SetBounds(150, 900, 1800, 300);
    for (Control* control :
         {static_cast<Control*>(&one), static_cast<Control*>(&two), static_cast<Control*>(&check)}) {
        frame.Add(*control);
    }
    form.Add(frame);
    form.Show();
    Events();
    auto& first = Native<QRadioButton>(one);
    auto& second = Native<QRadioButton>(two);
    auto& box = Native<QCheckBox>(check);

    hand.Click(one);
    hand.Click(two);
    hand.Click(two); // again: it stays
    hand.Click(check);
    Events();
    EXPECT_TRUE(!one.Value() && two.Value() && check.Value());
    EXPECT_TRUE(!first.isChecked() && second.isChecked() && box.isChecked());
    {
        const InputHold hold(form);
        hand.Click(one);
        hand.Click(check);
    }
    EXPECT_TRUE(second.isChecked() && !first.isChecked() && box.isChecked()) << "put back";
    one.SetValue(true);
    check.SetValue(false);
    Events();
    EXPECT_TRUE(first.isChecked() && !second.isChecked() && !box.isChecked());

    one.SetBackColor(Rgb(0, 0, 128)); // black on this could not be read
    Events();
    EXPECT_EQ(first.palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(first.palette().color(QPalette::Window), QColor(0, 0, 128));
}

TEST_F(WidgetsTest, AnyButtonPressesAPushButtonAndNothingBehindIt)
{
    PictureBox surface;
    surface.SetBounds(0, 0, 6000, 4500);
    PushButton button;
    button.SetBounds(300, 300, 1200, 375);
    std::vector<int> buttons;
    button.OnMouseUp = [&](const MouseEvent& event) { buttons.push_back(event.button); };
    surface.Add(button);
    int behind = 0;
    surface.OnMouseDown = [&](const MouseEvent&) { ++behind; };
    form.Add(surface);
    form.Show();
    Events();
    for (const Qt::MouseButton each : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        hand.Click(button, each);
    }
    hand.Type(button, Qt::Key_Return);
    EXPECT_EQ(buttons, (std::vector<int>{LeftButton, RightButton, MiddleButton, LeftButton}));
    EXPECT_EQ(behind, 0);
}

TEST_F(WidgetsTest, ATextBoxMayEndItsOwnForm)
{
    TextBox text;
    text.SetBounds(30, 30, 5505, 2700);
    text.SetText("one\r\ntwo");
    text.OnMouseDown = [&](const MouseEvent&) { form.Unload(); };
    form.Add(text);
    form.Show();
    Events();
    hand.Click(text);
    Events();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(platform.WindowOf(form), nullptr);
    form.Show();
    EXPECT_NE(platform.WindowOf(form), nullptr);
}

TEST_F(WidgetsTest, APageIsLoadedAnewAndItsLinksGoThroughTheHistory)
{
    const QTemporaryDir folder;
    const std::string page = folder.path().toStdString() + "/a page.htm";
    const auto write = [&](const std::string& words) {
        std::ofstream(page) << "<p><a href='#end'>" << words << "</a></p>" << std::string(20000, 'x')
                            << "<p><a name='end'>end</a></p>";
    };
    write("before");
    Browser browser;
    browser.SetBounds(60, 480, 5000, 3000);
    form.Add(browser);
    form.Show();
    browser.Navigate(page);
    Events();
    auto& text = Native<QTextBrowser>(browser);
    EXPECT_TRUE(text.toPlainText().startsWith("before"));

    QTextCursor onLink(text.document());
    onLink.setPosition(2);
    hand.Click(browser, text.viewport()->mapTo(&text, text.cursorRect(onLink).center()));
    Events();
    EXPECT_EQ(browser.LocationURL(), page + "#end");
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(browser.GoBack());
    Events();
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);

    browser.GoForward();
    write("after");
    browser.Navigate(page);
    Events();
    EXPECT_TRUE(text.toPlainText().startsWith("after"));
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace tessarine
