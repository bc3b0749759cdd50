#pragma once

#include <string>
#include <vector>

#include "base/integer.h"
#include "import/character_sheet.h"
#include "tracker/grid.h"
#include "tracker/turn_status.h"

namespace ng {

class MainForm;

/// A control by its name, with its index where it is an element of a control array.
struct ControlName {
  static constexpr int kSingle = -1;

  const char* name;
  int index = kSingle;
};

/// Goes through what the controls of a form show, one kind of control a function. The window's
/// painter and the player of golden fights are both such visitors, so neither can forget a control.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  /// Labels, text boxes, and buttons whose words change.
  virtual void Text(ControlName control, const std::string& text) = 0;
  /// Check boxes, menu entries with a mark, and labels that are shown or hidden.
  virtual void Check(ControlName control, bool checked) = 0;
  /// Option groups, tabs and combo boxes: the index chosen.
  virtual void Choice(ControlName control, int chosen) = 0;
  /// Damage bars: boxes filled, 0 to 10.
  virtual void Level(ControlName control, int boxes) = 0;
  /// List boxes, and the entries of combo boxes.
  virtual void List(ControlName control, const std::vector<std::string>& lines) = 0;
  virtual void CheckList(ControlName control, const std::vector<CarriedLine>& lines) = 0;
  /// The badge that tells where a combatant stands in the turn.
  virtual void Turn(ControlName control, TurnState state) = 0;
  virtual void Grid(ControlName control, const InitiativeGrid& grid) = 0;
};

/// Every control of the dice roller's window, whose names are its own.
void VisitRollerControls(const MainForm& form, ControlVisitor& visitor);

/// Every control of the main window, always in the same order.
void VisitControls(const MainForm& form, ControlVisitor& visitor);

}  // namespace ng
