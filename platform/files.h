#pragma once

#include "base/ports.h"

namespace ng {

/// The files of this machine. A file that is replaced is written aside, flushed to the device and
/// put in place in one step. Only regular files are opened: for pipes, devices and directories all
/// functions throw "Path/File access error". "Out of memory" for a file above 256 MB, "Bad file
/// name or number" for a new file whose name holds a character that the program cannot write.
class NativeFiles : public Files {
 public:
  std::string ReadWhole(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  FileList List(const std::string& directory, std::string_view ending) override;
};

}  // namespace ng
