#pragma once

#include "base/ports.h"

namespace ng {

/// The files of this machine. A file that is replaced is written aside, flushed to the device and
/// put in place in one step.
class NativeFiles : public Files {
 public:
  std::string ReadWhole(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  std::vector<std::string> List(const std::string& directory, std::string_view ending) override;
};

}  // namespace ng
