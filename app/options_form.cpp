#include "app/options_form.h"

namespace ng {

void OptionsForm::Form_Load() {
  Settings stored;
  if (written_) {
    stored = *written_;
  } else {
    ProfileReader profile(files_, location_);
    ReadSettings(profile, stored);
  }
  // In the run that asked for it the directory has no effect yet, but it has been chosen.
  dirNG3 = settings_.NG3Dir.empty() && written_ ? written_->NG3Dir : settings_.NG3Dir;
  // At the first start the dialog comes before the directory was read.
  dirDat = settings_.DatDir.empty() ? stored.DatDir : settings_.DatDir;
  chkCloneInit = static_cast<bool>(stored.CloneInit);
  chkDisableNGDR = static_cast<bool>(stored.DisableNGDR);
  open = true;
}

void OptionsForm::cmdOK() {
  settings_.NG3Dir = dirNG3;
  settings_.DatDir = dirDat;
  const Settings chosen{dirNG3, dirDat, chkCloneInit, chkDisableNGDR};
  WriteSettings(files_, location_, chosen);
  written_ = chosen;
  open = false;
}

}  // namespace ng
