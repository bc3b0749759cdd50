#pragma once

#include <string>
#include <vector>

#include "base/ports.h"

namespace ng {

/// The viewer of the game master's log: what all sessions so far have written.
class LogViewer {
 public:
  bool open = false;
  std::vector<std::string> lstDisplay;

  /// Fills the list with the lines of the log at `path` and opens the viewer. A log that is not
  /// there yet is a runtime error; the list is empty then.
  void Form_Load(Files& files, const std::string& path);
  void cmdClose() { open = false; }
};

}  // namespace ng
