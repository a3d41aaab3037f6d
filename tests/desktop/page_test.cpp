// The page of hypertext: good to read at any width.
#include "desktop/stage.h"

#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>

#include <cstring>
#include <fstream>

namespace tessarine
{
namespace
{

TEST_F(DesktopTest, APageKeepsItsLinesShortAndDrawsItsPicturesWithCare)
{
    const QTemporaryDir folder;
    QImage stripes(40, 40, QImage::Format_Mono);
    std::memset(stripes.bits(), 0x55, static_cast<std::size_t>(stripes.sizeInBytes()));
    ASSERT_TRUE(stripes.save(folder.filePath(QStringLiteral("stripes.png"))));
    const std::string page = folder.path().toStdString() + "/page.htm";
    const QString words = QStringLiteral("Bring all of them onto the five piles at the upper right. ");
    std::ofstream(page) << "<img src='stripes.png' width='20' height='20'><p>"
                        << words.repeated(100).toStdString();
    Browser browser;
    Show({&browser});
    for (const Twips width : {3000.0, 30000.0}) {
        browser.SetBounds(0, 0, width, 3000);
        browser.Navigate(page);
        Events();
        auto& text = static_cast<QTextBrowser&>(WidgetOf(platform, browser));
        EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
        const int letters = text.document()->lastBlock().layout()->lineAt(0).textLength();
        EXPECT_LE(letters, 80);
        EXPECT_TRUE(width < 10000 || letters >= 65) << letters;
        // Two fine stripes to a pixel are neither black nor white.
        const QRect picture(text.cursorRect().bottomLeft() + QPoint(5, -10), QSize(10, 5));
        const QImage shown = text.viewport()->grab(picture).toImage();
        EXPECT_NEAR(shown.pixelColor(4, 2).green(), 128, 30);
    }
}

} // namespace
} // namespace tessarine
