#pragma once

#include <string>
#include <string_view>

namespace ng {

/// The Unicode character of a Windows-1252 byte. The five bytes that the code page leaves open
/// are the control characters of the same number.
char32_t CodePointOf(char byte);

/// The Windows-1252 byte of a Unicode character; '?' for one outside the code page.
char ByteOf(char32_t codePoint);

/// Whether the code page has this character.
bool InCodePage(char32_t codePoint);

/// Conversion of whole texts for the file system and for the test files; bytes that are no UTF-8
/// come back as '?'.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view utf8);

}  // namespace ng
