#include "desktop/page_view.h"

#include <QImage>
#include <QTextFrame>

#include <algorithm>

namespace tessarine
{
namespace
{

/// So many alphabets hold some seventy-five letters and blanks of a text.
constexpr double AlphabetsInLine = 2.6;
constexpr auto Alphabet = "abcdefghijklmnopqrstuvwxyz";
constexpr double LeastMargin = 12;
constexpr double PictureFineness = 2;

} // namespace

void PageView::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    QTextBrowser::doSetSource(url, type);
    CentreColumn();
}

/// Scaled with care here, since the page itself is drawn with the fastest means.
QVariant PageView::loadResource(int type, const QUrl& url)
{
    QVariant resource = QTextBrowser::loadResource(type, url);
    QImage picture;
    if (type != QTextDocument::ImageResource || !picture.loadFromData(resource.toByteArray())) {
        return resource;
    }
    const double pixelsShown = devicePixelRatioF();
    picture = picture.scaled((QSizeF(picture.size()) * pixelsShown / PictureFineness).toSize(),
                             Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(pixelsShown);
    return picture;
}

void PageView::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    CentreColumn();
}

void PageView::CentreColumn()
{
    const double column = fontMetrics().horizontalAdvance(QLatin1String(Alphabet)) * AlphabetsInLine;
    const double margin = std::max(LeastMargin, (viewport()->width() - column) / 2);
    QTextFrameFormat page = document()->rootFrame()->frameFormat();
    if (page.leftMargin() != margin) {
        page.setLeftMargin(margin);
        page.setRightMargin(margin);
        document()->rootFrame()->setFrameFormat(page);
    }
}

} // namespace tessarine
