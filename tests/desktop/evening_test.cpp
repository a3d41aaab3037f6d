// What a player meets in an evening: boxes, cards of all sizes, lists.
#include "kit/message_box.h"
#include "stage.h"

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

    WhenModal(
        [] { QTest::keyClick(QApplication::activeModalWidget()->windowHandle(), Qt::Key_Return); });
    EXPECT_FALSE(platform.PlainMessage("Delete?", PlainButtons::YesNo));
}

} // namespace
} // namespace tessarine
