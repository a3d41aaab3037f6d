// The program's 8-bit text and the toolkit's.
#pragma once

#include <QLocale>
#include <QString>

#include <string>
#include <string_view>

namespace tessarine
{

/// Bytes that are valid UTF-8 as such, others as Latin-1.
QString ToText(std::string_view bytes);

/// Always UTF-8.
std::string ToBytes(const QString& text);

/// The first three letters of a month's short name, from 1 for January, none of them a blank.
std::string ShortMonth(const QLocale& locale, int month);

/// A path with the system's separators.
std::string PathToBytes(const QString& path);

} // namespace tessarine
