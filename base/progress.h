#pragma once

#include <string>
#include <utility>

#include "base/ports.h"

namespace ng {

/// Work of several equal steps that the game master may have to wait for. However the work
/// ends, nothing more is shown of it when this is destroyed.
class Progress {
 public:
  Progress(Prompts& prompts, std::string what, int steps)
      : prompts_(prompts), what_(std::move(what)), steps_(steps) {}
  ~Progress() { prompts_.ShowProgress(what_, steps_, steps_); }

  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// The next step begins.
  void Step() {
    if (done_ < steps_) prompts_.ShowProgress(what_, done_++, steps_);
  }

 private:
  Prompts& prompts_;
  std::string what_;
  int steps_;
  int done_ = 0;
};

}  // namespace ng
