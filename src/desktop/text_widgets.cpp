// Text to read: the text box and the page of hypertext.
#include "desktop/page_view.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

#include <utility>

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
        const int button = ButtonNumber(event->button());
        UserDoes([this, button] { static_cast<TextBox*>(TheControl())->UserPresses(button); });
    }

private:
    QString text_; ///< as it was given: the widget makes other line ends of it
};

class BrowserWidget final : public PageView, public NativePeer
{
public:
    BrowserWidget(Browser& browser, QWidget& parent, Desk& desk)
        : PageView(&parent), NativePeer(*this, browser, desk)
    {
        setOpenLinks(false); // the history is the control's
        QObject::connect(this, &PageView::anchorClicked, this, [this](const QUrl& link) {
            if (!mouseIsUp_) {
                Follow(link);
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
        if (std::exchange(visits_, Page().Visits()) == Page().Visits()) {
            return;
        }
        const Address address = Page().Location();
        const QUrl page = QUrl::fromLocalFile(ToText(address.path));
        if (std::exchange(loads_, Page().Loads()) != Page().Loads() || source() != page) {
            beforeLoad_ = {pointer_, anchorAt(pointer_), QElapsedTimer()};
            Load(page);
            beforeLoad_.since.start();
        }
        if (address.anchor.empty()) {
            verticalScrollBar()->setValue(0);
        } else {
            scrollToAnchor(ToText(address.anchor));
        }
    }
    // The press that brings the form to the front makes the page start anew. What counts is the link
    // that the user saw under the pointer.
    void mousePressEvent(QMouseEvent* event) override
    {
        const QPoint place = event->position().toPoint();
        const bool jumped = beforeLoad_.isOver(place);
        link_ = event->button() != Qt::LeftButton ? QString()
                : jumped                          ? beforeLoad_.link
                                                  : anchorAt(place);
        pressedAt_ = place;
        if (Form* form = TheControl() == nullptr ? nullptr : Page().OwnerForm()) {
            form->FeedActivation();
        }
        PageView::mousePressEvent(event);
    }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        pointer_ = event->position().toPoint();
        PageView::mouseMoveEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        {
            const QScopedValueRollback up(mouseIsUp_, true);
            PageView::mouseReleaseEvent(event);
        }
        const QPoint way = event->position().toPoint() - pressedAt_;
        const QUrl link = source().resolved(QUrl(std::exchange(link_, {})));
        if (event->button() == Qt::LeftButton &&
            way.manhattanLength() < QApplication::startDragDistance()) {
            Follow(link);
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

    void Follow(const QUrl& link)
    {
        if (link.isLocalFile()) {
            const Address address{ToBytes(link.toLocalFile()),
                                  ToBytes(link.fragment(QUrl::FullyDecoded))};
            UserDoes([this, address] { Page().UserFollows(address); });
        }
    }
    /// Up to the end of its layout: what is further down has its place only then.
    void Load(const QUrl& page)
    {
        if (!QFileInfo(page.toLocalFile()).isReadable()) {
            setHtml(QStringLiteral("<p>The page could not be found:</p><p>") +
                    page.toLocalFile().toHtmlEscaped() + QStringLiteral("</p>"));
            return;
        }
        if (source() == page) {
            reload();
        } else {
            setSource(page);
        }
        document()->documentLayout()->blockBoundingRect(document()->lastBlock());
    }

    /// What the pointer stood over when the page was loaded.
    struct BeforeLoad {
        QPoint pointer;
        QString link;
        QElapsedTimer since;

        bool isOver(QPoint place) const
        {
            static constexpr int justNow = 300;
            return place == pointer && since.isValid() && !since.hasExpired(justNow);
        }
    };

    BeforeLoad beforeLoad_;
    QPoint pointer_;
    QPoint pressedAt_;
    QString link_;           ///< that the mouse was pressed on
    bool mouseIsUp_ = false; ///< being released: this class follows links of the mouse itself
    int visits_ = 0;
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
