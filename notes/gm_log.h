#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/ports.h"

namespace ng {

/// The game master's running list of notes. Every line also goes to the end of the log file, so
/// that the evening can be read over later.
class GmLog {
 public:
  /// `reportFailure` hears, once in a run, that the file at `path` cannot be written; the list goes
  /// on without it, and no command is stopped.
  GmLog(Files& files, std::string path, std::function<void(const std::string&)> reportFailure);

  /// The lines in the order added.
  const std::vector<std::string>& lstGMinfo() const { return lstGMinfo_; }
  void Add(const std::string& line);

 private:
  Files& files_;
  std::string path_;
  std::function<void(const std::string&)> reportFailure_;
  bool failureReported_ = false;
  std::vector<std::string> lstGMinfo_;
};

}  // namespace ng
