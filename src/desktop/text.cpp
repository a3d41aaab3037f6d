#include "desktop/text.h"

#include <QByteArrayView>
#include <QStringDecoder>

namespace tessarine
{

QString ToText(std::string_view bytes)
{
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(view);
    return decoder.hasError() ? QString::fromLatin1(view) : text;
}

std::string ToBytes(const QString& text)
{
    return text.toStdString();
}

} // namespace tessarine
