#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ng {

/// Turns one of the program's path texts into a native path: "\" separates, and on POSIX "/" as
/// well; the characters go from the 8-bit code page to the file system's. On a file system that
/// tells cases apart every part of the path that does not exist by its exact name is looked for
/// ignoring case; when there is no such name either, the part stays as it is written. A part that
/// holds "?" names the one entry that PathText writes so; where there are several it names none.
std::filesystem::path NativePath(std::string_view text);

/// A native path as the program writes it. "?" takes the place of every character that a path
/// text cannot hold: those outside the code page, bytes that are no text at all, line breaks and
/// other controls, "|", which joins names, and on POSIX "\", which would part the name.
std::string PathText(const std::filesystem::path& native);

/// Whether the path text holds "?", and so can only name what is there already.
bool HasPlaceholder(std::string_view pathText);

}  // namespace ng
