#include "ui/wiring/path_text.h"

#include <QDir>
#include <QFileInfo>

#include "platform/native_path.h"
#include "ui/wiring/text.h"

namespace ng {

QString NativeText(const std::string& path) {
  return QString::fromStdU16String(NativePath(path).u16string());
}

std::string PathText(const QString& path) { return FromQString(QDir::toNativeSeparators(path)); }

bool IsDirectory(const std::string& path) {
  return !path.empty() && QFileInfo(NativeText(path)).isDir();
}

}  // namespace ng
