#pragma once

#include <string_view>

namespace ng {

/// A widget that shows a control a second time, and does what the first one does.
struct ControlCopy {
  const char* control;
  const char* copy;
};

inline constexpr ControlCopy kCopies[] = {
    {"txtNotes", "txtNotes2"},
    {"lblBAL", "lblBAL2"},
    {"lblIMP", "lblIMP2"},
    {"lblQCKmod", "lblQCKmod2"},
    {"lblCPmod", "lblCPmod2"},
    {"lblDamageCode", "lblDamageCode2"},
    {"lblBulletCount", "lblBulletCount2"},
    {"txtLastSuccesses", "txtLastSuccesses2"},
    {"dirNG3", "txtNG3"},
    {"dirDat", "txtDat"},
};

/// The control that a widget of this name shows: its own, unless it is a copy.
constexpr std::string_view ControlOf(std::string_view name) {
  for (const ControlCopy& copy : kCopies) {
    if (name == copy.copy) return copy.control;
  }
  return name;
}

}  // namespace ng
