#include "combat/pools.h"

#include <algorithm>

#include "base/number_text.h"

namespace ng {
namespace {

/// Moves one die between two boxes, when there is one. Overflow, with neither box changed, where
/// the pool it goes to is full.
void MoveDie(std::string& from, std::string& to) {
  if (LeadingNumber(from) < 1) return;
  const std::string more = IncPool(to);
  LenientInteger(more);
  from = DecPool(from);
  to = more;
}

}  // namespace

std::string IncPool(const std::string& text) { return PlainText(LeadingNumber(text) + 1); }

std::string DecPool(const std::string& text) {
  const double value = LeadingNumber(text);
  if (ToInteger(value) < 1) return "0";
  return PlainText(std::max(value - 1, 0.0));
}

void PoolPanel::SetAside() { MoveDie(txtSP, txtSD); }

void PoolPanel::TakeBack() { MoveDie(txtSD, txtSP); }

}  // namespace ng
