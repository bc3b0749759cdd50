#include "ui/wiring/text.h"

#include <QList>

#include "base/code_page.h"

namespace ng {

QString ToQString(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  qsizetype i = 0;
  for (const char byte : text) result[i++] = QChar(static_cast<char16_t>(CodePointOf(byte)));
  return result;
}

QString WithoutForeign(const QString& text) {
  QString kept = text;
  // A character beyond the first 65,536 is kept as two, neither of which is in the page.
  return kept.removeIf([](QChar character) { return !InCodePage(character.unicode()); });
}

std::string FromQString(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const char32_t codePoint : text.toUcs4()) result += ByteOf(codePoint);
  return result;
}

}  // namespace ng
