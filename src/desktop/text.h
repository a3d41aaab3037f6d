// The program's 8-bit text and the toolkit's.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tessarine
{

/// Bytes that are valid UTF-8 as such, others as Latin-1.
QString ToText(std::string_view bytes);

/// Always UTF-8.
std::string ToBytes(const QString& text);

} // namespace tessarine
