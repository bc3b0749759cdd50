#pragma once

#include <QFrame>

namespace ng {

/// What is seen while the program starts.
class Splash : public QFrame {
  Q_OBJECT

 public:
  Splash();
};

}  // namespace ng
