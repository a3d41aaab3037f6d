#include "form1.h"
#include "stage.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QFile>
#include <QTemporaryDir>

namespace tessarine
{
namespace
{

/// What a listener would meet without a name, by kind and class, among all that can be worked.
void CollectNameless(QWidget& widget, QStringList& nameless, int& named)
{
    for (QWidget* child : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(child);
        const bool canBeWorked =
            face != nullptr && child->isVisibleTo(&widget) &&
            (child->focusPolicy() != Qt::NoFocus || face->actionInterface() != nullptr);
        if (canBeWorked && face->text(QAccessible::Name).isEmpty()) {
            nameless << QString::fromLatin1(child->metaObject()->className());
        }
        named += canBeWorked ? 1 : 0;
        if (qobject_cast<QAbstractScrollArea*>(child) == nullptr) { // its parts are the toolkit's own
            CollectNameless(*child, nameless, named);
        }
    }
}

TEST(WholeProgramTest, AllThatCanBeWorkedAndEveryCardInSightHasAName)
{
    const QTemporaryDir folder;
    QFile configuration(folder.filePath(QStringLiteral("tessarine.cfg")));
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
    configuration.write("\n1 1 0\n1\n0\n1\n2\n3\n4\nx.col\narial\n");
    configuration.close();
    QFile schemes(folder.filePath(QStringLiteral("all.col")));
    ASSERT_TRUE(schemes.open(QIODevice::WriteOnly));
    schemes.write("x.col\n" + QByteArray("9;99;199\n").repeated(13));
    schemes.close();

    DesktopPlatform platform;
    Form1 program(platform, folder.path().toStdString(),
                  folder.filePath(QStringLiteral("t")).toStdString());
    program.Start();
    program.Score1.SetVisible(true);
    for (Form* form : {static_cast<Form*>(&program.form6), static_cast<Form*>(&program.form4),
                       static_cast<Form*>(&program.aboutForm)}) {
        form->Show();
    }
    QTest::qWait(50);
    int named = 0;
    for (const Form* form : program.AllForms().Loaded()) {
        QStringList nameless;
        CollectNameless(*platform.WindowOf(*form), nameless, named);
        EXPECT_TRUE(nameless.isEmpty()) << form->Caption() << ": " << nameless.join(u' ').toStdString();
    }
    EXPECT_GT(named, 40);

    QStringList told;
    QAccessibleInterface* const table =
        QAccessible::queryAccessibleInterface(&WidgetOf(platform, program.table.Picture2));
    for (int child = 0; child < table->childCount(); ++child) {
        told << table->child(child)->text(QAccessible::Name);
    }
    EXPECT_EQ(told.filter(QStringLiteral(", column ")).size(), 28) << "the dealt cards";
    EXPECT_EQ(told.filter(QStringLiteral(", stock")).size(), 1);
    EXPECT_EQ(told.filter(QStringLiteral("empty finished pile ")).size(), 5);
}

} // namespace
} // namespace tessarine
