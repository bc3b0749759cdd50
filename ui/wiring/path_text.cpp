#include "ui/wiring/path_text.h"

#include <QDir>
#include <QFileInfo>

#include "platform/native_path.h"

namespace ng {

QString NativeText(const std::string& path) {
  const std::u8string utf8 = NativePath(path).u8string();
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string PathText(const QString& path) {
  const QByteArray utf8 = QDir::toNativeSeparators(path).toUtf8();
  return PathText(std::filesystem::path(std::u8string(utf8.begin(), utf8.end())));
}

bool IsDirectory(const std::string& path) {
  return !path.empty() && QFileInfo(NativeText(path)).isDir();
}

}  // namespace ng
