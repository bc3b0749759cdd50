#pragma once

#include <QWidget>

namespace ng {

/// Says below the grid what the rows' colours and the frame mean.
class Legend : public QWidget {
  Q_OBJECT

 public:
  explicit Legend(QWidget* parent = nullptr);
};

}  // namespace ng
