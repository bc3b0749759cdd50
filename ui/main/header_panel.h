#pragma once

#include <QFrame>

class QBoxLayout;

namespace ng {

/// Who is displayed: name, turn badge, race, initiative and armour. Every value has its own fixed
/// place, so that nothing moves from one combatant to the next.
class HeaderPanelView : public QFrame {
  Q_OBJECT

 public:
  explicit HeaderPanelView(QWidget* parent = nullptr);

 private:
  QBoxLayout* BuildIdentity();
  QBoxLayout* BuildInitiative();
  QBoxLayout* BuildArmour();
  void AddBox(QBoxLayout& row, const char* objectName, int width, const QString& name);
};

}  // namespace ng
