#include "desktop/text.h"

#include "runtime/letters.h"

namespace tessarine
{

QString ToText(std::string_view bytes)
{
    const std::u32string letters = Letters(bytes);
    return QString::fromUcs4(letters.data(), static_cast<qsizetype>(letters.size()));
}

std::string ToBytes(const QString& text)
{
    return text.toStdString();
}

} // namespace tessarine
