#pragma once

#include <QWidget>

#include "tracker/fight/player_record.h"
#include "ui/wiring/shows.h"

namespace ng {

/// The ten boxes of a damage track, filled from the left. The letters L, M, S and D are in the
/// boxes at which a wound level begins, so that the level can be read without the colour.
class DamageBar : public QWidget, public ShowsLevel {
  Q_OBJECT

 public:
  explicit DamageBar(Track track, QWidget* parent = nullptr);

  int boxes() const { return boxes_; }
  /// 0 to 10; a number outside counts as the nearer end.
  void ShowLevel(int boxes) override;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Announce();

  Track track_;
  int boxes_ = 0;
};

}  // namespace ng
