#include "platform/native_path.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "base/code_page.h"
#include "base/text.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

fs::path FromText(std::string_view text) {
  const std::string utf8 = ToUtf8(text);
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

constexpr char kPlaceholder = '?';

bool FitsPathText(char c) {
  const auto code = static_cast<unsigned char>(c);
  if (code < 0x20 || code == 0x7F || c == '|') return false;
  return c != '\\' || fs::path::preferred_separator == '\\';
}

/// The entry of `directory` that has this name but for its case. Of several the first in the order
/// of their names, so that the choice does not depend on the file system. What a placeholder stands
/// for is not guessed: it must leave one entry alone.
fs::path FoundByText(const fs::path& directory, const fs::path& name) {
  const std::string wanted = PathText(name);
  std::error_code error;
  fs::path found;
  int count = 0;
  const fs::path listed = directory.empty() ? fs::path(".") : directory;
  for (fs::directory_iterator entry(listed, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path candidate = entry->path().filename();
    if (!EqualIgnoringCase(PathText(candidate), wanted)) continue;
    ++count;
    if (found.empty() || candidate < found) found = candidate;
  }
  return count == 0 || (count > 1 && HasPlaceholder(wanted)) ? name : found;
}

/// Whether the path is there by exactly this name.
bool IsThere(const fs::path& path, std::string_view text) {
  std::error_code error;
  return !HasPlaceholder(text) && fs::exists(path, error);
}

}  // namespace

fs::path NativePath(std::string_view text) {
  std::string separated(text);
  if constexpr (fs::path::preferred_separator == '/') {
    std::replace(separated.begin(), separated.end(), '\\', '/');
  }
  fs::path exact = FromText(separated);
  if (exact.empty() || IsThere(exact, separated)) return exact;
  fs::path resolved;
  for (const fs::path& part : exact) {
    const fs::path next = resolved / part;
    resolved = IsThere(next, PathText(part)) ? next : resolved / FoundByText(resolved, part);
  }
  return resolved;
}

std::string PathText(const fs::path& native) {
  const std::u8string utf8 = native.u8string();
  std::string text = FromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
  std::replace_if(
      text.begin(), text.end(), [](char c) { return !FitsPathText(c); }, kPlaceholder);
  return text;
}

bool HasPlaceholder(std::string_view pathText) {
  return pathText.find(kPlaceholder) != std::string_view::npos;
}

}  // namespace ng
