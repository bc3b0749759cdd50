#pragma once

#include <QString>
#include <string>

namespace ng {

/// One of the program's path texts as the file system knows it, whatever separators and cases it is
/// written with.
QString NativeText(const std::string& path);

/// A path of the toolkit as the program writes it, with the system's own separators and no "|".
std::string PathText(const QString& path);

/// Whether the program's path text names a directory that is there; an empty one never does.
bool IsDirectory(const std::string& path);

}  // namespace ng
