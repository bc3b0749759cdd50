#pragma once

#include <string>
#include <vector>

#include "base/ports.h"

namespace ng {

/// The game master's running list of notes. Every line also goes to the end of the log file, so
/// that the session can be read again later.
class GmLog {
 public:
  /// The log file is at `path`.
  GmLog(Files& files, std::string path);

  /// The lines in the order added.
  const std::vector<std::string>& lstGMinfo() const { return lstGMinfo_; }
  const std::string& Path() const { return path_; }
  /// Adds a line. A file that cannot be written stops neither the list nor the command.
  void Add(const std::string& line);

  /// That the file could not be written, and why ("Log not written: Disk full"), until it has been
  /// seen; otherwise empty.
  const std::string& lblLogFailure() const { return lblLogFailure_; }
  /// The game master has seen the failure. The same one is reported again only after a line that
  /// was written.
  void FailureSeen() { lblLogFailure_.clear(); }

 private:
  Files& files_;
  std::string path_;
  std::vector<std::string> lstGMinfo_;
  std::string lblLogFailure_;
  std::string lastFailure_;
};

}  // namespace ng
