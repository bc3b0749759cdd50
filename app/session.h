#pragma once

#include "app/act.h"
#include "app/main_form.h"
#include "app/options_form.h"
#include "import/loader.h"

namespace ng {

/// The running program without its windows. Every act comes through `Do`, so that a fight can be
/// written down as a list of acts and played again.
class Session {
 public:
  explicit Session(Environment environment);

  // The forms keep references to the environment.
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Environment environment;
  LoaderForm loader;
  OptionsForm options;
  MainForm main;

  /// Runs the command that the act names. Returns whether it came to its end: a runtime error, or
  /// whatever else is thrown, ends the command and is told, and what the command had changed before
  /// stays. Acts of a modal form come in while the command that showed the form still runs. An act
  /// that no command is named after is a fault of the caller: std::invalid_argument, and the only
  /// thing that this throws.
  bool Do(const Act& act);

 private:
  template <typename Work>
  bool Finish(Work work);
  void Tell(const char* introduction, const char* fault);
};

}  // namespace ng
