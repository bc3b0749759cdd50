#pragma once

#include <string>
#include <utility>

#include "base/ports.h"
#include "base/runtime_error.h"

namespace ng {

/// A disk whose every file is the fuzzer's input.
class OneFile : public Files {
 public:
  explicit OneFile(std::string bytes) : bytes_(std::move(bytes)) {}

  std::string ReadWhole(const std::string&) override { return bytes_; }
  void Replace(const std::string&, std::string_view) override {}
  void Append(const std::string&, std::string_view) override {}
  FileList List(const std::string&, std::string_view) override { return {}; }

 private:
  std::string bytes_;
};

}  // namespace ng
