#pragma once

#include "app/session.h"

namespace ng {

/// The windows that start-up shows and takes away, in the order it says.
class StartupWindows {
 public:
  virtual ~StartupWindows() = default;
  /// Not modal, and painted before the call returns.
  virtual void ShowSplash() = 0;
  /// Makes the main window, not yet shown.
  virtual void LoadMain() = 0;
  virtual void UnloadSplash() = 0;
  virtual void ShowMain() = 0;
};

/// The start of the program: reads the settings, with the options dialog before all else when there
/// is no character directory, loads the main window while the splash window is shown, and shows it.
/// A runtime error is not trapped here and ends the program.
void Main(Session& session, StartupWindows& windows);

}  // namespace ng
