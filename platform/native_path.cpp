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

/// ASCII letters fold; the others must match.
bool SameIgnoringCase(const fs::path& a, const fs::path& b) {
  const std::u8string x = a.u8string();
  const std::u8string y = b.u8string();
  return EqualIgnoringCase({reinterpret_cast<const char*>(x.data()), x.size()},
                           {reinterpret_cast<const char*>(y.data()), y.size()});
}

/// The entry of `directory` that has this name but for its case. Of several the first in the order
/// of their names, so that the choice does not depend on the file system.
fs::path FoundIgnoringCase(const fs::path& directory, const fs::path& name) {
  std::error_code error;
  fs::path found;
  const fs::path listed = directory.empty() ? fs::path(".") : directory;
  for (fs::directory_iterator entry(listed, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path candidate = entry->path().filename();
    if (SameIgnoringCase(candidate, name) && (found.empty() || candidate < found)) {
      found = candidate;
    }
  }
  return found.empty() ? name : found;
}

}  // namespace

fs::path NativePath(std::string_view text) {
  std::string separated(text);
  if constexpr (fs::path::preferred_separator == '/') {
    std::replace(separated.begin(), separated.end(), '\\', '/');
  }
  fs::path exact = FromText(separated);
  std::error_code error;
  if (exact.empty() || fs::exists(exact, error)) return exact;
  fs::path resolved;
  for (const fs::path& part : exact) {
    const fs::path next = resolved / part;
    resolved = fs::exists(next, error) ? next : resolved / FoundIgnoringCase(resolved, part);
  }
  return resolved;
}

}  // namespace ng
