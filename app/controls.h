#pragma once

#include <string>
#include <vector>

#include "base/integer.h"
#include "import/character_sheet.h"
#include "tracker/grid.h"
#include "tracker/turn_status.h"

namespace ng {

class Session;

/// A control by its name, with its index where it is an element of a control array.
struct ControlName {
  static constexpr int kSingle = -1;

  const char* name;
  int index = kSingle;
  /// Of an option group: the index of its first button, where the groups of an array go on
  /// counting.
  int firstOption = 0;

  /// Whether both are the same entry of the same walk: the name is compared by its place.
  friend bool operator==(const ControlName&, const ControlName&) = default;
};

/// Goes through what the controls of a form show, one kind of control a function. The window's
/// painter and the player of golden fights are both such visitors, so neither can forget a control.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  /// Labels, text boxes, and buttons whose words change.
  virtual void Text(ControlName control, const std::string& text) = 0;
  /// Check boxes, menu entries with a mark, and what is shown or hidden as a whole.
  virtual void Check(ControlName control, bool checked) = 0;
  /// Option groups, tabs, combo boxes and list boxes: the index chosen, -1 for none.
  virtual void Choice(ControlName control, int chosen) = 0;
  /// Damage bars: boxes filled, 0 to 10.
  virtual void Level(ControlName control, int boxes) = 0;
  /// List boxes, and the entries of combo boxes.
  virtual void List(ControlName control, const std::vector<std::string>& lines) = 0;
  /// List boxes of which every line has a mark of its own.
  virtual void CheckList(ControlName control, const std::vector<CarriedLine>& lines) = 0;
  /// The badge that tells where a combatant stands in the turn.
  virtual void Turn(ControlName control, TurnState state) = 0;
  /// The grid, with the row of the displayed combatant, 0 for none.
  virtual void Grid(ControlName control, const InitiativeGrid& grid, int shownRow) = 0;
};

// What the two large windows show; app/form_windows tells of all windows.

void VisitRollerControls(const Session& session, ControlVisitor& visitor);
void VisitControls(const Session& session, ControlVisitor& visitor);

}  // namespace ng
