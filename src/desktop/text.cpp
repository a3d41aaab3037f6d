#include "desktop/text.h"

#include "runtime/letters.h"

#include <QDir>

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

std::string ShortMonth(const QLocale& locale, int month)
{
    constexpr qsizetype letters = 3;
    // The name by itself: within a date it may have a little word before it.
    QString name = locale.standaloneMonthName(month, QLocale::ShortFormat);
    name.removeIf([](QChar letter) { return letter.isSpace(); });
    return ToBytes(QString::fromStdU32String(name.toStdU32String().substr(0, letters)));
}

std::string PathToBytes(const QString& path)
{
    return ToBytes(QDir::toNativeSeparators(path));
}

} // namespace tessarine
