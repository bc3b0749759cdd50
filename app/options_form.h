#pragma once

#include <optional>
#include <string>

#include "app/settings/settings.h"

namespace ng {

/// The modal dialog in which the two directories and the two switches are set: the form behind
/// frmOptions.
class OptionsForm {
 public:
  OptionsForm(Files& files, const ProgramLocation& location, Settings& settings)
      : files_(files), location_(location), settings_(settings) {}

  // What the controls show.
  std::string dirNG3;
  std::string dirDat;
  bool chkCloneInit = false;
  bool chkDisableNGDR = false;
  /// The dialog is open until one of its buttons closes it.
  bool open = false;

  void Form_Load();
  /// Takes over the directories at once and writes tracker.ini; the switches take effect at the
  /// next start. A file error leaves the dialog open.
  void cmdOK();
  void cmdCancel() { open = false; }

 private:
  Files& files_;
  const ProgramLocation& location_;
  Settings& settings_;
  /// What this run wrote last, since the switches in memory stay as they were at the start.
  std::optional<Settings> written_;
};

}  // namespace ng
