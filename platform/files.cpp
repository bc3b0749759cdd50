#include "platform/files.h"

#include <QFile>
#include <QSaveFile>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/native_path.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

/// Far above any file of this program. Reading one of this size stays within a small multiple of
/// it in memory.
constexpr std::uintmax_t kLargestFile = 256'000'000;

/// The toolkit knows names of proper text only.
QString FileName(const fs::path& path) {
  try {
    return QString::fromStdU16String(path.u16string());
  } catch (const std::system_error&) {
    throw RuntimeError(ErrorNumber::BadFileName, PathText(path));
  }
}

/// Opens nothing but regular files: a pipe would keep the program waiting, a device never ends, and
/// putting a file in the place of one would take it away from all others.
void RefuseWhatIsNoFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
}

/// What a path text names for writing. A placeholder stands for a character of a file that is
/// there; no file is made under a name that holds one.
fs::path PathToWrite(const std::string& path) {
  fs::path native = NativePath(path);
  RefuseWhatIsNoFile(native);
  const std::string name = PathText(native.filename());
  std::error_code error;
  if (HasPlaceholder(name) && !fs::exists(native, error)) {
    throw RuntimeError(ErrorNumber::BadFileName, name);
  }
  return native;
}

/// Why a file could not be opened, by the program's own error number.
[[noreturn]] void ThrowOpenError(const fs::path& path) {
  std::error_code error;
  if (fs::exists(path, error)) throw RuntimeError(ErrorNumber::PermissionDenied);
  const fs::path directory = path.parent_path();
  if (!directory.empty() && !fs::is_directory(directory, error)) {
    throw RuntimeError(ErrorNumber::PathNotFound);
  }
  throw RuntimeError(ErrorNumber::FileNotFound);
}

[[noreturn]] void ThrowWriteError(const fs::path& path, QFileDevice::FileError error) {
  std::error_code ignored;
  const fs::path directory = path.parent_path();
  if (!directory.empty() && !fs::is_directory(directory, ignored)) {
    throw RuntimeError(ErrorNumber::PathNotFound);
  }
  switch (error) {
    // A device that took only a part of the bytes counts as no error to the toolkit.
    case QFileDevice::NoError:
    case QFileDevice::ResourceError:
    case QFileDevice::WriteError:
      throw RuntimeError(ErrorNumber::DiskFull);
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
      throw RuntimeError(ErrorNumber::PermissionDenied);
    default:
      throw RuntimeError(ErrorNumber::PathFileAccess);
  }
}

/// Whether the device took every byte. The toolkit itself reports no error for a write that broke
/// off.
bool WriteAll(QFileDevice& file, std::string_view bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  return file.write(bytes.data(), size) == size && file.flush();
}

std::string InLowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), AsciiLower);
  return text;
}

}  // namespace

std::string NativeFiles::ReadWhole(const std::string& path) {
  const fs::path native = NativePath(path);
  RefuseWhatIsNoFile(native);
  std::ifstream file(native, std::ios::binary);
  std::error_code error;
  const std::uintmax_t size = fs::file_size(native, error);
  if (!file || error) ThrowOpenError(native);
  if (size > kLargestFile) throw RuntimeError(ErrorNumber::OutOfMemory);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(size));
  if (file.bad()) throw RuntimeError(ErrorNumber::DeviceInputOutput);
  // Somebody may have cut it short in the meantime.
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

void NativeFiles::Replace(const std::string& path, std::string_view bytes) {
  const fs::path native = PathToWrite(path);
  QSaveFile file(FileName(native));
  if (!file.open(QIODevice::WriteOnly)) ThrowWriteError(native, file.error());
  if (!WriteAll(file, bytes)) {
    const QFileDevice::FileError error = file.error();
    file.cancelWriting();
    ThrowWriteError(native, error);
  }
  // commit() flushes to the device before it puts the file in place.
  if (!file.commit()) ThrowWriteError(native, file.error());
}

void NativeFiles::Append(const std::string& path, std::string_view bytes) {
  const fs::path native = PathToWrite(path);
  QFile file(FileName(native));
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) ThrowWriteError(native, file.error());
  if (!WriteAll(file, bytes)) ThrowWriteError(native, file.error());
}

FileList NativeFiles::List(const std::string& directory, std::string_view ending) {
  std::vector<std::string> found;
  std::map<std::string, int> entriesOfText;
  std::error_code error;
  for (fs::directory_iterator entry(NativePath(directory), error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = PathText(entry->path().filename());
    if (HasPlaceholder(name)) ++entriesOfText[InLowerCase(name)];
    std::error_code ignored;
    const bool wanted = HasEnding(name, ending) && entry->is_regular_file(ignored);
    if (wanted) found.push_back(std::move(name));
  }
  FileList list;
  for (std::string& name : found) {
    if (HasPlaceholder(name) && entriesOfText[InLowerCase(name)] > 1) {
      ++list.unlisted;
    } else {
      list.names.push_back(std::move(name));
    }
  }
  std::sort(list.names.begin(), list.names.end(), LessIgnoringCase);
  return list;
}

}  // namespace ng
