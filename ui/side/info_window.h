#pragma once

#include "ui/side/note_windows.h"

namespace ng {

/// All details of the line selected last on the pages, above its entry in the reference file.
class InfoWindow : public SideWindow {
  Q_OBJECT

 public:
  InfoWindow(const Perform& perform, QWidget* parent);
};

}  // namespace ng
