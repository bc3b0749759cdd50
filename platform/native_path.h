#pragma once

#include <filesystem>
#include <string_view>

namespace ng {

/// Turns one of the program's path texts into a native path: "\" separates, and on POSIX "/" as
/// well; the characters go from the 8-bit code page to the file system's. On a file system that
/// distinguishes cases every part of the path that does not exist by its exact name is looked for
/// ignoring case; when there is no such name either, the part stays as it is written.
std::filesystem::path NativePath(std::string_view text);

}  // namespace ng
