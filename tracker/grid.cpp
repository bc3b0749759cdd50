#include "tracker/grid.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

constexpr int kEnter = 13;
constexpr int kBackspace = 8;
constexpr int kFullStop = 46;
constexpr int kFirstPrintable = 32;

}  // namespace

const InitiativeGrid::Row& InitiativeGrid::RowAt(int row) const {
  if (row < 0 || row > RowCount()) ThrowSubscript();
  return rows_[static_cast<std::size_t>(row)];
}

void InitiativeGrid::PaintRowGreen(OrderPosition row) {
  Paint(row, Colour::Green);
  if (row == 0) return;
  fight_.CurGreen = row;
  fight_.lastGreen = row;
}

void InitiativeGrid::Paint(OrderPosition row, Colour colour) {
  if (row < 1 || row.Value() > RowCount()) return;
  rows_[static_cast<std::size_t>(row.Value())].colour.fill(colour);
}

void InitiativeGrid::RefreshGrid() {
  const Integer n = fight_.CountPlayers();
  const std::string typed = CurrentText();
  // Rows that a deletion left over go with the resizing.
  rows_.resize(static_cast<std::size_t>(n.Value()) + 1);
  currentRow_ = std::min(currentRow_, n.Value());
  fight_.CurGreen = 0;
  for (const OrderPosition p : PositionsUpTo(n)) {
    const PlayerRecord& record = fight_.Players[fight_.InitOrder[p]];
    Row& row = rows_[static_cast<std::size_t>(p.Value())];
    row.text[kNameColumn] = record.Name;
    row.text[kRollColumn] = PlainText(record.RRSLT);
    row.text[kTextColumn] = record.CondCode;
    PaintRowWhite(p);
    if (record.SetGreen) PaintRowGreen(p);
    if (record.Delay) PaintRowYellow(p);
    if (record.inactive) PaintRowRed(p);
  }
  if (CurrentText() != typed) textBefore_.reset();
}

void InitiativeGrid::SetCurrent(int row, int column) {
  row = std::clamp(row, 0, RowCount());
  column = std::clamp(column, 0, kColumns - 1);
  if (row != currentRow_ || column != currentColumn_) textBefore_.reset();
  currentRow_ = row;
  currentColumn_ = column;
  TakeCurrentSlot();
}

void InitiativeGrid::FollowCombatant() {
  const int row = fight_.FindInOrder(currentSlot_).Value();
  if (row >= 1 && row <= RowCount()) currentRow_ = row;
  TakeCurrentSlot();
}

void InitiativeGrid::TakeCurrentSlot() {
  currentSlot_ = currentRow_ == 0 ? Slot(0) : fight_.InitOrder[OrderPosition::From(currentRow_)];
}

bool InitiativeGrid::TypeCharacter(int code) {
  if (currentRow_ == 0 || currentColumn_ == 0) return false;
  const std::string before = CurrentText();
  if (!Edit(code)) return false;
  if (!textBefore_) textBefore_ = before;
  return true;
}

bool InitiativeGrid::RestoreText() {
  if (!textBefore_) return false;
  CurrentText() = *textBefore_;
  textBefore_.reset();
  return true;
}

bool InitiativeGrid::Edit(int code) {
  std::string& text = CurrentText();
  if (code == kEnter) {
    SetCurrent(currentRow_ + 1, kRollColumn);
    return false;
  }
  if (code == kBackspace) {
    if (Trimmed(text).empty()) return false;
    text.clear();
    return true;
  }
  if (code == kFullStop) {  // clears the cell rather than typing a point
    text.clear();
    return true;
  }
  if (code == '-') {
    text = "-";
    return true;
  }
  if (code < kFirstPrintable) return false;
  if (currentRow_ != lastEditedRow_) text.clear();
  text += static_cast<char>(static_cast<unsigned char>(code));
  lastEditedRow_ = currentRow_;
  return true;
}

std::string& InitiativeGrid::CurrentText() {
  return rows_[static_cast<std::size_t>(currentRow_)]
      .text[static_cast<std::size_t>(currentColumn_)];
}

}  // namespace ng
