#include "platform/program_directory.h"

#include <QStandardPaths>
#include <system_error>

#include "base/code_page.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

std::string PathText(const fs::path& path) {
  const std::u8string utf8 = path.u8string();
  return FromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
}

}  // namespace

std::string ProgramDirectory(const fs::path& executableDirectory) {
  std::error_code error;
  if (!fs::is_directory(executableDirectory.parent_path() / "share/ngtracker", error)) {
    return PathText(executableDirectory);
  }
  const fs::path userData =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdU16String();
  fs::create_directories(userData / "ngtracker", error);
  return PathText(userData / "ngtracker");
}

}  // namespace ng
