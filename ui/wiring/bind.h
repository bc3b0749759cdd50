#pragma once

#include <QMultiHash>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "app/controls.h"
#include "ui/wiring/acts.h"

class QWidget;

namespace ng {

/// Paints a window from what the controls of its form show, and turns what the user does to the
/// widgets into acts. A widget carries its control's name as object name, with "_" and the index
/// after it where it is an element of a control array; its copies are in the table of copies. A
/// control without a widget is passed over.
class Binder : public QObject, private ControlVisitor {
 public:
  /// The window must hold all its widgets already. `prefix` is put before the widgets' names in the
  /// acts.
  Binder(QWidget& window, const Perform& perform, const std::string& prefix = {});

  /// Paints what the walk says. All walks must go through the same controls in the same order: the
  /// first one looks the widgets up by their names, the later ones know them by their place.
  /// Another order is a fault of ours; it is told on the standard error, and the names are looked
  /// up again. No exception leaves this, since it is called from the toolkit's slots: one that ends
  /// the walk is told there, too, and the next walk paints everything again.
  void Paint(const std::function<void(ControlVisitor&)>& walk);
  /// What changes now is painted and not done by the user.
  bool Painting() const { return painting_; }

 private:
  using ShowText = void (*)(QObject& widget, const std::string& text);

  /// A control at its place in the walk.
  struct Place {
    ControlName control;
    std::vector<QObject*> widgets;
    /// How each of the widgets shows a text.
    std::vector<ShowText> showText = {};
    /// What a list shows, as the form said it.
    std::vector<std::string> lines = {};
    /// What a damage bar shows.
    int level = -1;
  };

  void Text(ControlName control, const std::string& text) override;
  void Check(ControlName control, bool checked) override;
  void Choice(ControlName control, int chosen) override;
  void Level(ControlName control, int boxes) override;
  void List(ControlName control, const std::vector<std::string>& lines) override;
  void CheckList(ControlName control, const std::vector<CarriedLine>& lines) override;
  void Turn(ControlName control, TurnState state) override;
  void Grid(ControlName control, const InitiativeGrid& grid, int shownRow) override;

  using Lookup = std::vector<QObject*> (Binder::*)(const ControlName&) const;
  Place& NextPlace(const ControlName& control, Lookup lookup = &Binder::Named);
  void Complain(const char* fault) const;
  std::vector<QObject*> Named(const ControlName& control) const;
  std::vector<QObject*> Options(const ControlName& control) const;
  void IndexNames();
  static ShowText TextShower(QObject& widget);

  QWidget& window_;
  /// Filled while widgets are looked up only.
  QMultiHash<QString, QObject*> byName_;
  std::vector<Place> places_;
  std::size_t place_ = 0;
  bool painting_ = false;
};

}  // namespace ng
