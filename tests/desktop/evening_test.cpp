// What a player meets in an evening: boxes, cards of all sizes, lists.
#include "desktop/text.h"
#include "form1.h"
#include "stage.h"
#include "support/seen_contrast.h"

#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QInputDialog>
#include <QTemporaryDir>
#include <QTreeView>

#include <set>

namespace tessarine
{
namespace
{

using EveningTest = DesktopTest;

TEST_F(EveningTest, EnterInAQuestionIsTheAnswerThatChangesNothing)
{
    MsgForm box{forms};
    const auto enter = [&](const char* style) {
        WhenModal([&] { hand.Type(box, Qt::Key_Return); });
        return box.MsgboxA("Exit?", style);
    };
    EXPECT_EQ(enter("vbyesno"), AnswerNo);
    EXPECT_EQ(enter("vbokcancel"), 2) << "Cancel";
    EXPECT_EQ(enter("vbyesno"), AnswerNo) << "the button was there before";
    EXPECT_EQ(enter("vbok"), AnswerOk);
    EXPECT_EQ(enter("vbyesno+vbcancel"), 2);

    WhenModal([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    EXPECT_FALSE(platform.PlainMessage("Delete?", PlainButtons::YesNo));
}

TEST_F(EveningTest, ABorderGrowsWithItsCardAndStandsOutFromCardAndTable)
{
    Label card;
    card.SetBorder(true);
    surface.Add(card);
    surface.SetBounds(0, 0, 5900, 4000);
    Show({&surface});
    const auto shown = [&] { return WidgetOf(platform, surface).grab().toImage(); };
    const auto thickness = [&](Twips width) {
        card.SetBounds(0, 0, width, width);
        const QImage image = shown();
        const int middle = NearestPixel(width * PixelsPerTwip) / 2;
        int lines = 0;
        while (image.pixel(lines, middle) == image.pixel(0, middle)) {
            ++lines;
        }
        return lines;
    };
    card.SetBackColor(White);
    EXPECT_EQ(thickness(225), 1);
    EXPECT_EQ(thickness(645), 1);
    EXPECT_EQ(thickness(810), 2);
    EXPECT_EQ(thickness(5700), 14);

    card.SetBounds(0, 0, 225, 225);
    for (int own = 0; own < 256; own += 15) {
        for (int table = 0; table < 256; table += 15) {
            card.SetBackColor(Rgb(own, own, own));
            surface.SetBackColor(Rgb(table, table, table));
            for (const bool sunken : {false, true}) {
                card.SetSunken(sunken);
                const QImage image = shown();
                for (const QPoint at : {QPoint(0, 5), QPoint(14, 5)}) {
                    const QColor line = image.pixelColor(at);
                    for (const int grey : {own, table}) {
                        EXPECT_GE(
                            SeenContrast({line.red(), line.green(), line.blue()}, {grey, grey, grey}),
                            1.5)
                            << own << " on " << table;
                    }
                }
            }
        }
    }
}

TEST_F(EveningTest, WhatIsAskedIsReadAndTheBusyPointerGoesWithTheWork)
{
    Show({&surface});
    form.FeedMouseDown({LeftButton, 0, 100, 600});
    ASSERT_NE(form.Captured(), nullptr);
    WhenModal([this] {
        EXPECT_EQ(form.Captured(), nullptr) << "the box has the mouse";
        auto* const box = dynamic_cast<QInputDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(box->labelText(), QStringLiteral("Name of the scheme"));
        box->setTextValue(QStringLiteral("lagoon"));
        box->accept();
    });
    EXPECT_EQ(platform.AskForText("Name of the scheme"), "lagoon");
    for (const bool busy : {true, true, false}) {
        platform.SetBusyPointer(busy);
        const QCursor* const shown = QGuiApplication::overrideCursor();
        EXPECT_EQ(shown != nullptr && shown->shape() == Qt::WaitCursor, busy);
    }
}

/// How many controls that have a widget tell nothing to the pointer that rests on them.
int Silent(const Container& container)
{
    int silent = 0;
    for (const Control* child : container.Children()) {
        silent += !child->IsLight() && child->ToolTip().empty() ? 1 : 0;
        if (const auto* deeper = dynamic_cast<const Container*>(child)) {
            silent += Silent(*deeper);
        }
    }
    return silent;
}

TEST_F(EveningTest, TheOptionsTellWhatEveryControlIsForAndHowFarTheSliderIs)
{
    Form1 program(platform, "/", "/t");
    EXPECT_EQ(Silent(program.form6), 0);
    EXPECT_FALSE(program.NextCard[0].ToolTip().empty() || program.NextCard[1].ToolTip().empty());
    const ScrollBar& slider = program.form6.ContrastV;
    EXPECT_EQ(slider.ToolTip(), "Contrast: 100");
    program.form6.ContrastV.UserSets(120);
    EXPECT_EQ(slider.ToolTip(), "Contrast: 120");
}

TEST_F(EveningTest, TheListOfFontsHasEachFamilyOnceAndNoneWithoutLetters)
{
    std::set<std::string> names;
    for (const std::string& name : platform.ScreenFonts()) {
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(name.find('['), std::string::npos) << name;
        EXPECT_FALSE(QFontDatabase::writingSystems(ToText(name)).contains(QFontDatabase::Symbol))
            << name;
    }
    EXPECT_FALSE(names.empty());
}

TEST_F(EveningTest, TheLatestDealIsTheFirstToBeLoaded)
{
    const QTemporaryDir folder;
    const QDateTime noon(QDate(2026, 3, 14), QTime(12, 0));
    for (const int number : {1, 3, 2}) {
        QFile file(folder.filePath(QStringLiteral("savedgame%1.gam").arg(number)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(
            file.setFileTime(noon.addDays(number == 2 ? 5 : number), QFile::FileModificationTime));
    }
    QStringList shown;
    WhenModal([&] {
        auto* const box = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
        const auto* const list = box->findChild<QTreeView*>(QStringLiteral("treeView"));
        const QString latest = QStringLiteral("savedgame2.gam savedgame3.gam savedgame1.gam");
        EXPECT_TRUE(QTest::qWaitFor([&] { // the list is sorted a while after it was read
            shown.clear();
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
                shown << list->model()->index(row, 0, list->rootIndex()).data().toString();
            }
            return shown.join(u' ') == latest;
        })) << ToBytes(shown.join(u' '));
        EXPECT_EQ(box->acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_TRUE(list->isColumnHidden(1) && list->isColumnHidden(2));
        box->reject();
    });
    platform.ChooseFile({.title = "t",
                         .typesName = "games",
                         .types = "*.gam",
                         .folder = folder.path().toStdString(),
                         .name = {}},
                        nullptr);
    EXPECT_EQ(shown.size(), 3);
}

} // namespace
} // namespace tessarine
