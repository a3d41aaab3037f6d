#include "desktop/text.h"
#include "kit/help_viewer.h"
#include "runtime/letters.h"
#include "stage.h"

#include <QAbstractItemView>
#include <QDir>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QToolTip>

#include <cstring>

namespace tessarine
{
namespace
{

using WidgetsTest = DesktopTest;

TEST_F(WidgetsTest, AFrameKeepsNothingOfTheMouse)
{
    Frame frame;
    frame.SetBounds(0, 0, 1500, 1500);
    frame.SetCaption("Title");
    Show({&frame});
    Press(frame, {50, 50});
    EXPECT_EQ(form.Captured(), &frame);
    Move(frame, {18, 6}); // onto its title
    Release(frame, {18, 6});
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(WidgetsTest, AListShowsAsChosenWhatItsControlSaysAndNothingElse)
{
    const std::string wide(80, 'w');
    ListBox list(TextList::Order::Sorted);
    list.SetBounds(150, 150, 1800, 2400);
    list.SetToolTip("fonts");
    list.FillWhenAsked(
        [&] { return std::vector<std::string>{"sand", "clay", "\u00C9TE", "mist", "silt", wide}; });
    std::string told;
    list.MouseUp = [&](const MouseEvent& event) {
        told += list.SelectedText() + std::to_string(event.button) + ' ';
    };
    Show({&list}); // it has the keyboard at once
    auto& view = Native<QAbstractItemView>(list);
    const auto after = [&](auto action) { // what the control says, and what can be seen
        told.clear();
        action();
        const QModelIndexList chosen = view.selectionModel()->selectedIndexes();
        EXPECT_EQ(list.SelectedText(), chosen.empty() ? "" : ToBytes(chosen.front().data().toString()));
        EXPECT_EQ(view.currentIndex(), chosen.value(0));
        return told;
    };
    const auto row = [&](int number) {
        return view.viewport()->mapTo(&view, view.visualRect(view.model()->index(number, 0)).center());
    };
    const auto click = [&](QPoint at, auto button) { return after([&] { Click(list, at, button); }); };
    const auto type = [&](Qt::Key key) { return after([&] { Type(form, key); }); };
    EXPECT_EQ(click(row(5) + QPoint(0, 40), Qt::RightButton), "2 ") << "on nothing";
    EXPECT_EQ(after([&] { Press(list, row(2)); }), "");
    EXPECT_EQ(after([&] { Release(list, {-20, 20}); }), "") << "not over the list";
    EXPECT_EQ(type(Qt::Key_Down), "clay1 ") << "the first row";
    EXPECT_EQ(click(row(1), Qt::RightButton), "mist2 ");
    EXPECT_EQ(click(row(2), Qt::MiddleButton), "sand4 ");
    QApplication::setKeyboardInputInterval(50);
    EXPECT_EQ(type(Qt::Key_S), "silt1 ");
    EXPECT_EQ(type(Qt::Key_S), "sand1 ") << "the next, round and round";
    QTest::qWait(80);
    EXPECT_EQ(type(Qt::Key_Eacute), "\u00C9TE1 ");
    EXPECT_EQ(type(Qt::Key_Down), "") << "it stands on the last row";
    form.busy = true;
    EXPECT_EQ(type(Qt::Key_Home) + click(row(1), Qt::LeftButton), "");
    form.busy = false;
    for (const auto& [number, tip] : {std::pair(1, std::string("fonts")), {4, wide}}) {
        const QPoint place = view.visualRect(view.model()->index(number, 0)).center();
        QHelpEvent rests(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &rests);
        EXPECT_EQ(ToBytes(QToolTip::text()), tip);
    }

    // What the program does comes to the widget and not back.
    list.FillWhenAsked([] { return std::vector<std::string>(200, "font"); });
    list.SetHeight(24000); // where no row after the hundredth can be the top one
    list.SetTopIndex(120);
    Events();
    list.SetHeight(2400);
    Events();
    EXPECT_EQ(after([] {}), "");
    EXPECT_EQ(view.indexAt({5, 3}).row(), 120);
    view.verticalScrollBar()->setValue(10);
    EXPECT_EQ(list.TopIndex(), 10U);
    Events();
    EXPECT_EQ(view.indexAt({5, 3}).row(), 10) << "and it stays there";
    type(Qt::Key_End);
    EXPECT_EQ(static_cast<int>(list.TopIndex()), view.indexAt({5, 3}).row());
}

TEST_F(WidgetsTest, AScrollBarMayHaveItsLargerEndAtTheTop)
{
    ScrollBar red(ScrollBar::Direction::Down);
    red.SetBounds(150, 150, 255, 1800);
    red.SetRange(255, 0, 3, 40);
    red.SetValue(255);
    std::vector<Whole> heard;
    red.OnChange = [&] { heard.push_back(red.Value()); };
    Show({&red});
    const QPoint thumb(8, 20); // while it is at the top
    Click(red, {8, 112});      // the lower arrow
    Click(red, {8, 95});       // below the thumb
    EXPECT_EQ(heard, (std::vector<Whole>{252, 212}));
    red.SetValue(255);
    Events();
    Press(red, thumb);
    Move(red, thumb + QPoint(0, 20));
    EXPECT_EQ(heard.size(), 3U) << "a thumb on its way says nothing";
    red.SetToolTip("what is said of it meanwhile");
    Events();
    Release(red, thumb + QPoint(0, 20));
    EXPECT_TRUE(heard.size() == 4 && red.Value() < 230) << red.Value();
}

TEST_F(WidgetsTest, OptionsTurnOnlyAsTheirControlsDo)
{
    OptionButton one;
    OptionButton two;
    PushButton button;
    TextBox text;
    int presses = 0;
    text.MouseDown = button.MouseUp = [&](const MouseEvent&) { ++presses; };
    const std::vector<Control*> all = {&one, &two, &button, &text};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i]->SetBounds(150, 300 * static_cast<Twips>(i), 1800, 240);
    }
    Show(all);
    for (const Control* each : std::initializer_list<Control*>{&one, &two, &two}) {
        Click(*each); // a second time, too: it stays
    }
    EXPECT_TRUE(!one.Value() && two.Value());
    Click(one, {20, 8}, Qt::RightButton);
    EXPECT_TRUE(one.Value());
    Click(two, {20, 8}, Qt::MiddleButton);
    form.busy = true;
    Click(one);
    form.busy = false;
    EXPECT_TRUE(two.Value());
    QTest::mousePress(&Native(one), Qt::RightButton);
    QTest::mouseRelease(&Native(one), Qt::RightButton, {}, {20, 100});
    EXPECT_TRUE(two.Value()) << "released somewhere else";
    Click(button, {20, 8}, Qt::RightButton);
    Native(button).setFocus();
    Type(form, Qt::Key_Return);
    Click(text);
    EXPECT_EQ(presses, 3);
}

TEST_F(WidgetsTest, CaseIsFoldedAsTheToolkitFoldsIt)
{
    EXPECT_EQ(ToText("\xC9TE"), ToText("\u00C9TE")) << "Latin-1 is read as well";
    for (char32_t letter = 1; letter < 0xFB20; ++letter) {
        const QString text = QString::fromUcs4(&letter, 1);
        const QChar::Script script = QChar::script(letter);
        const bool isInWords = letter < 0x2000 || letter >= 0xFB00; // the last are the ligatures
        if (isInWords && script >= QChar::Script_Latin && script <= QChar::Script_Armenian) {
            EXPECT_EQ(LowerCase(ToBytes(text)), ToBytes(text.toLower())) << static_cast<int>(letter);
            EXPECT_EQ(Folded(ToBytes(text)), Folded(ToBytes(text.toCaseFolded())));
        }
    }
}

TEST_F(WidgetsTest, APageIsLoadedAnewAndEveryVisitShows)
{
    const QTemporaryDir folder;
    const std::string page = folder.path().toStdString() + "/#1";
    ASSERT_TRUE(QDir().mkdir(ToText(page)));
    const Dress dress;
    Form4 help(forms, dress);
    help.SetBackColor(Black);
    help.Tag = page + "/a page.htm";
    const auto write = [&](const std::string& words) {
        const std::string lines = QByteArray("<p>line</p>").repeated(400).toStdString();
        std::ofstream(help.Tag) << "<p><a href='#end'>" << words << "</a></p>" << lines
                                << "<p><a name='end'></a><a href='#end'>again</a></p>" << lines;
    };
    write("before");
    form.Show();
    help.Show();
    Events();
    Browser& browser = help.WebBrowser1;
    auto& text = Native<QTextBrowser>(browser);
    QScrollBar& bar = *text.verticalScrollBar();
    EXPECT_TRUE(text.toPlainText().startsWith("before"));
    EXPECT_EQ(text.viewport()->grab().toImage().pixelColor(3, 3), QColor(Qt::white));
    const auto placeOf = [&](const char* link) {
        const QTextCursor found = text.document()->find(QString::fromLatin1(link));
        return text.viewport()->mapTo(&text, text.cursorRect(found).center() - QPoint(8, 0));
    };
    Press(browser, placeOf("before"));
    Release(browser, placeOf("before") + QPoint(0, 100));
    EXPECT_EQ(browser.Location().anchor, "") << "the hand has thought better of it";
    Click(browser, placeOf("before"));
    Events();
    const int end = bar.value();
    EXPECT_GT(end, 500);
    EXPECT_EQ(browser.Location(), (Address{help.Tag, "end"}));
    browser.GoBack();
    Events();
    EXPECT_EQ(bar.value(), 0);
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_Tab);
    QTest::keyClick(&text, Qt::Key_Return);
    Events();
    EXPECT_EQ(bar.value(), end) << "by keyboard";

    // A link that brings the page to the front is followed, be the page loaded anew before the press or
    // between press and release.
    for (const int turn : {0, 1, 2}) {
        write("after" + std::to_string(turn));
        browser.UserFollows({help.Tag, "end"});
        Events();
        form.FeedActivation();
        bar.setValue(end - 30);
        const QPoint place = placeOf("again");
        Move(browser, place);
        if (turn == 1) {
            help.FeedActivation();
            Events();
            EXPECT_EQ(bar.value(), 0);
        }
        Press(browser, place);
        turn == 2 ? Events() : void();
        Release(browser, place);
        help.FeedActivation();
        Events();
        EXPECT_EQ(bar.value(), end) << turn;
        EXPECT_TRUE(text.toPlainText().startsWith(ToText("after" + std::to_string(turn))));
    }
    browser.Navigate("/nowhere/<page>.htm");
    Events();
    EXPECT_TRUE(text.toPlainText().contains("/nowhere/<page>.htm"));
}

TEST_F(WidgetsTest, APageKeepsItsLinesShortAndDrawsItsPicturesWithCare)
{
    const QTemporaryDir folder;
    QImage stripes(40, 40, QImage::Format_Mono);
    std::memset(stripes.bits(), 0x55, static_cast<std::size_t>(stripes.sizeInBytes()));
    ASSERT_TRUE(stripes.save(folder.filePath(QStringLiteral("stripes.png"))));
    const std::string page = folder.path().toStdString() + "/page.htm";
    const QByteArray words("Bring all of them onto the five piles at the upper right. ");
    std::ofstream(page) << "<img src='stripes.png' width='20' height='20'><p>"
                        << words.repeated(100).toStdString();
    Browser browser;
    Show({&browser});
    browser.Navigate(page);
    for (const Twips width : {3000.0, 30000.0}) {
        browser.SetBounds(0, 0, width, 3000);
        Events();
        auto& text = Native<QTextBrowser>(browser);
        EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
        const int letters = text.document()->lastBlock().layout()->lineAt(0).textLength();
        EXPECT_TRUE(letters <= 80 && (width < 10000 || letters >= 65)) << letters;
        // Two fine stripes to a pixel are neither black nor white.
        const QRect picture(text.cursorRect().bottomLeft() + QPoint(5, -10), QSize(10, 5));
        EXPECT_NEAR(text.viewport()->grab(picture).toImage().pixelColor(4, 2).green(), 128, 30);
    }
}

} // namespace
} // namespace tessarine
