#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace ng {

/// The program's 8-bit text (Windows-1252) as the toolkit's.
QString ToQString(std::string_view text);

/// The text without the characters that are outside the code page.
QString WithoutForeign(const QString& text);

/// The toolkit's text as the program's; a character outside the code page becomes "?".
std::string FromQString(const QString& text);

}  // namespace ng
