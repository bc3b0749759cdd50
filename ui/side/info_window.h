#pragma once

#include "ui/side/note_windows.h"

namespace ng {

/// Every figure of the line marked last on the pages, over what the reference file says of it.
class InfoWindow : public SideWindow {
  Q_OBJECT

 public:
  InfoWindow(const Perform& perform, QWidget* parent);
};

}  // namespace ng
