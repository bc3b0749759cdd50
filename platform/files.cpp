#include "platform/files.h"

#include <QFile>
#include <QSaveFile>
#include <QString>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/code_page.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/native_path.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

QString FileName(const fs::path& path) { return QString::fromStdU16String(path.u16string()); }

/// Why a file could not be opened, by the program's own error number.
[[noreturn]] void ThrowOpenError(const fs::path& path) {
  std::error_code error;
  if (fs::is_directory(path, error)) throw RuntimeError(ErrorNumber::PathFileAccess);
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

}  // namespace

std::string NativeFiles::ReadWhole(const std::string& path) {
  const fs::path native = NativePath(path);
  QFile file(FileName(native));
  if (!file.open(QIODevice::ReadOnly)) ThrowOpenError(native);
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw RuntimeError(ErrorNumber::DeviceInputOutput);
  return bytes.toStdString();
}

void NativeFiles::Replace(const std::string& path, std::string_view bytes) {
  const fs::path native = NativePath(path);
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
  const fs::path native = NativePath(path);
  QFile file(FileName(native));
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) ThrowWriteError(native, file.error());
  if (!WriteAll(file, bytes)) ThrowWriteError(native, file.error());
}

std::vector<std::string> NativeFiles::List(const std::string& directory, std::string_view ending) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(NativePath(directory), error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (!entry->is_regular_file(ignored)) continue;
    const std::u8string utf8 = entry->path().filename().u8string();
    std::string name = FromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    if (HasEnding(name, ending)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  return names;
}

}  // namespace ng
