#pragma once

#include "ui/wiring/acts.h"

class QLineEdit;

namespace ng {

/// The act that has the status bar say that characters were left out.
inline constexpr const char* kLeftOutAct = "Form_LeftOut";

/// Has a box hold only characters of the program's code page: others are left out as they are
/// typed, pasted or dropped.
void KeepToCodePage(QLineEdit& edit, const Perform& perform);

}  // namespace ng
