#include "platform/program_directory.h"

#include <QStandardPaths>
#include <system_error>

#include "platform/native_path.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

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
