#pragma once

#include "ui/dialogs/form_dialog.h"

namespace ng {

/// The modal dialog in which a kept fight is chosen to be taken up.
class RecentDialog : public FormDialog {
  Q_OBJECT

 public:
  RecentDialog(const Session& session, const Perform& door, QWidget* parent);
};

}  // namespace ng
