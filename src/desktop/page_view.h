// A page of hypertext as it is good to read.
#pragma once

#include <QTextBrowser>

namespace tessarine
{

/// Keeps the lines of its page short enough for the eye to find the next one, however wide the window,
/// and its pictures sharp: they come with two pixels for each that the page counts, across and down.
class PageView : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    QVariant loadResource(int type, const QUrl& url) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void CentreColumn();
};

} // namespace tessarine
