// Text to read: the text box and the page of hypertext.
#include "desktop/page_view.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

#include <QFile>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QUrl>

namespace tessarine
{
namespace
{

class TextBoxWidget final : public QPlainTextEdit, public NativePeer
{
public:
    TextBoxWidget(TextBox& box, QWidget& parent, Desk& desk)
        : QPlainTextEdit(&parent), NativePeer(*this, box, desk)
    {
        setReadOnly(true);
        setTextInteractionFlags(Qt::NoTextInteraction);
        viewport()->setCursor(Qt::ArrowCursor);
        setContextMenuPolicy(Qt::NoContextMenu);
    }

protected:
    void RefreshValue() override
    {
        const QString text = ToText(static_cast<TextBox*>(TheControl())->Text());
        if (text_ != text) {
            text_ = text;
            setPlainText(text);
        }
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        event->accept();
        const int button = event->button() == Qt::RightButton    ? RightButton
                           : event->button() == Qt::MiddleButton ? MiddleButton
                                                                 : LeftButton;
        UserDoes([this, button] { static_cast<TextBox*>(TheControl())->UserPresses(button); });
    }

private:
    QString text_; ///< as it was given: the widget makes other line ends of it
};

/// An address of the program: a path, and "#" and an anchor behind it or not.
QUrl AsUrl(const std::string& address)
{
    const auto hash = address.find('#');
    QUrl url = QUrl::fromLocalFile(ToText(address.substr(0, hash)));
    if (hash != std::string::npos) {
        url.setFragment(ToText(address.substr(hash + 1)), QUrl::DecodedMode);
    }
    return url;
}

std::string AsAddress(const QUrl& url)
{
    std::string address = ToBytes(url.toLocalFile());
    if (url.hasFragment()) {
        address += '#' + ToBytes(url.fragment(QUrl::FullyDecoded));
    }
    return address;
}

class BrowserWidget final : public PageView, public NativePeer
{
public:
    BrowserWidget(Browser& browser, QWidget& parent, Desk& desk)
        : PageView(&parent), NativePeer(*this, browser, desk)
    {
        setOpenLinks(false); // the history is the control's
        QObject::connect(this, &PageView::anchorClicked, this, [this](const QUrl& url) {
            if (url.isLocalFile()) {
                UserDoes([this, url] { Page().UserFollows(AsAddress(url)); });
            }
        });
    }

protected:
    void RefreshContents() override
    {
        // A page has its own colours and fonts, on white.
        QPalette paper = parentWidget()->palette();
        paper.setColor(QPalette::Base, Qt::white);
        paper.setColor(QPalette::Text, Qt::black);
        if (palette() != paper) {
            setPalette(paper);
        }
        if (const QString name = ToText(Page().AccessibleName()); accessibleName() != name) {
            setAccessibleName(name);
        }
        RefreshValue();
    }
    void RefreshValue() override
    {
        const std::string address = Page().LocationURL();
        if (address.empty() || (loads_ == Page().Loads() && address == address_)) {
            return;
        }
        const bool loadsAnew = loads_ != Page().Loads();
        loads_ = Page().Loads();
        address_ = address;
        const QUrl url = AsUrl(address);
        if (!QFileInfo(url.toLocalFile()).isReadable()) {
            setHtml(QStringLiteral("<p>The page could not be found:</p><p>") +
                    url.toLocalFile().toHtmlEscaped() + QStringLiteral("</p>"));
            return;
        }
        setSource(url);
        if (loadsAnew) {
            reload();
        }
        if (!url.hasFragment()) {
            moveCursor(QTextCursor::Start);
            ensureCursorVisible();
        }
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        // The toolkit's own steps in the history would pass the control by.
        if (event->matches(QKeySequence::Back) || event->matches(QKeySequence::Forward)) {
            event->ignore();
            return;
        }
        PageView::keyPressEvent(event);
    }

private:
    Browser& Page() const { return *static_cast<Browser*>(TheControl()); }

    std::string address_;
    int loads_ = 0;
};

} // namespace

Peer* MakeTextBox(TextBox& box, QWidget& parent, Desk& desk)
{
    return new TextBoxWidget(box, parent, desk);
}

Peer* MakeBrowser(Browser& browser, QWidget& parent, Desk& desk)
{
    return new BrowserWidget(browser, parent, desk);
}

} // namespace tessarine
