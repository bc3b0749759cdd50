#pragma once

#include <QTemporaryDir>
#include <memory>

#include "app/startup.h"
#include "journal/desk.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/journals.h"
#include "platform/user_settings.h"
#include "ui/dialogs/prompts.h"
#include "ui/main/main_window.h"

namespace ng {

struct Theme;

/// The whole program on the sample campaign: the real windows over the real files. Its own files
/// and the user's settings are in a directory that is deleted with it, and its dice fall the same
/// way every time.
class SampleProgram : private StartupWindows {
  // The session is made from these.
  QTemporaryDir folder_;
  NativeFiles files_;
  NativeUserSettings userSettings_;
  NativeClock clock_;
  NativeJournals journals_;
  QtPrompts prompts_;

 public:
  /// Whether the settings name the directory of characters already.
  enum class Start { First, Later };

  explicit SampleProgram(const Theme& theme);
  void Run(Start start);

  /// The native path of a file in the program's directory.
  QString OwnFile(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }

  Desk desk;
  Session& session = desk.session();
  /// Null until the program runs.
  std::unique_ptr<MainWindow> window;

 private:
  const Perform door_ = [this](const Act& act) { desk.Do(act); };

  void ShowSplash() override {}
  void LoadMain() override;
  void UnloadSplash() override {}
  void ShowMain() override { window->show(); }
};

}  // namespace ng
