#include "app/settings/encoding.h"

namespace ng {
namespace {

constexpr std::string_view kPlain = " \t\r\n";
constexpr std::string_view kEscaped = "_~^`";

/// Replaces the characters one kind after the other, in simple loops that the compiler makes fast:
/// every text of an imported character goes through here.
std::string Exchanged(std::string_view text, std::string_view from, std::string_view to) {
  std::string result(text);
  for (std::size_t kind = 0; kind < from.size(); ++kind) {
    const char old = from[kind];
    const char replacement = to[kind];
    for (char& c : result) c = c == old ? replacement : c;
  }
  return result;
}

}  // namespace

std::string EncodeNG3(std::string_view text) { return Exchanged(text, kPlain, kEscaped); }

std::string DecodeNG3(std::string_view text) { return Exchanged(text, kEscaped, kPlain); }

}  // namespace ng
