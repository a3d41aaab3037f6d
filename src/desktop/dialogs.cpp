#include "desktop/dialogs.h"

#include "desktop/colours.h"
#include "desktop/files.h"
#include "desktop/fonts.h"
#include "desktop/peer.h"
#include "desktop/start.h"
#include "desktop/text.h"
#include "runtime/contrast.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QToolButton>
#include <QTreeView>

namespace tessarine::dialogs
{
namespace
{

constexpr auto ProgramTitle = "Tessarine";
/// Wide enough for a file's date.
constexpr QSize FileDialogSize(740, 460);
constexpr double MostOfScreen = 0.9; ///< a small one; the frame needs room, too

QString FilterOf(const FileDialogRequest& request)
{
    return ToText(request.typesName) + QLatin1String(" (") + ToText(request.types) + QLatin1Char(')');
}

/// The newest first, with its whole date, and no column that is the same for every game. A dialog of
/// the system has no list of ours.
void ShowNewestFirst(QFileDialog& box)
{
    auto* const list = box.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (list == nullptr) {
        return;
    }
    enum Column { Name, Bytes, Type, Date };
    box.setViewMode(QFileDialog::Detail);
    list->hideColumn(Bytes);
    list->hideColumn(Type);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(Name, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(Date, QHeaderView::ResizeToContents);
    list->sortByColumn(Date, Qt::DescendingOrder);
}

/// Buttons with the toolkit's coloured icons look like nothing else here, and most serve no one who
/// looks for a game. The way up keeps its button, with a word on it.
void LeaveOutIcons(const QFileDialog& box)
{
    for (auto* const button : box.findChildren<QToolButton*>()) {
        if (button->objectName() == QLatin1String("toParentButton")) {
            button->setText(QStringLiteral("Up"));
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        } else {
            button->hide();
        }
    }
}

/// Gives a box and all that is in it the colours of the form that it belongs to, and the program's font.
void Dress(QWidget& box, const QWidget* owner)
{
    const auto* const peer = dynamic_cast<const Peer*>(owner);
    const auto* const form = dynamic_cast<const Form*>(peer == nullptr ? nullptr : peer->TheControl());
    const Colour ground = form == nullptr ? ButtonFace : form->BackColor();
    const Colour text = ReadableOn(ground);
    box.setPalette(PaletteOf(ground, text, form == nullptr ? ButtonFace : form->ButtonColour));
    box.setFont(WidgetFont(Font()));
    for (QWidget* const part : box.findChildren<QWidget*>()) {
        part->setFont(box.font()); // a desktop may have fonts for kinds of widgets
    }
    // The toolkit writes its caret in the inverse of what lies below it.
    QPalette paper = box.palette();
    paper.setColor(QPalette::Base, text == Black ? Qt::white : Qt::black);
    for (auto* const field : box.findChildren<QLineEdit*>()) {
        field->setPalette(paper);
    }
}

} // namespace

bool Message(QWidget* parent, const std::string& text, PlainButtons buttons)
{
    const bool asks = buttons == PlainButtons::YesNo;
    QMessageBox box(QMessageBox::NoIcon, QLatin1String(ProgramTitle), {},
                    asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(ToText(text));
    if (asks) {
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    }
    Dress(box, parent);
    const int answer = box.exec();
    return !asks || answer == QMessageBox::Yes;
}

std::string Text(QWidget* parent, const std::string& prompt)
{
    QInputDialog box(parent);
    box.setWindowTitle(QLatin1String(ProgramTitle));
    box.setLabelText(ToText(prompt));
    box.setInputMode(QInputDialog::TextInput); // makes the field
    Dress(box, parent);
    return box.exec() == QDialog::Accepted ? ToBytes(box.textValue()) : std::string();
}

std::string File(QWidget* parent, const FileDialogRequest& request)
{
    const std::string before = files::CurrentFolder();
    QFileDialog box(parent, ToText(request.title), ToText(request.folder), FilterOf(request));
    box.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    box.setOption(QFileDialog::DontConfirmOverwrite);
    box.setOption(QFileDialog::DontUseNativeDialog, !SystemHasFileDialog);
    ShowNewestFirst(box);
    LeaveOutIcons(box);
    box.resize(FileDialogSize.boundedTo(box.screen()->availableGeometry().size() * MostOfScreen));
    if (!request.name.empty()) {
        box.selectFile(ToText(request.name));
    }
    Dress(box, parent);
    std::string chosen;
    if (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
        chosen = PathToBytes(box.selectedFiles().constFirst());
    }
    files::ChangeFolder(before);
    return chosen;
}

} // namespace tessarine::dialogs
