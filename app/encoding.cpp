#include "app/encoding.h"

namespace ng {
namespace {

constexpr std::string_view kPlain = " \t\r\n";
constexpr std::string_view kEscaped = "_~^`";

// No substitute stands among the characters replaced, so one walk does what replacing the four in
// order does.
std::string Exchange(std::string_view text, std::string_view from, std::string_view to) {
  std::string result(text);
  for (char& c : result) {
    const std::size_t hit = from.find(c);
    if (hit != std::string_view::npos) c = to[hit];
  }
  return result;
}

}  // namespace

std::string EncodeNG3(std::string_view text) { return Exchange(text, kPlain, kEscaped); }

std::string DecodeNG3(std::string_view text) { return Exchange(text, kEscaped, kPlain); }

}  // namespace ng
