#pragma once

#include "ui/wiring/acts.h"

class QLineEdit;
class QPlainTextEdit;

namespace ng {

// The program's texts and files hold the characters of Windows-1252. Others are left out as they
// are typed, pasted or dropped, and the status bar says so.

/// The act that has the status bar say it.
inline constexpr const char* kLeftOutAct = "Form_LeftOut";

void KeepToCodePage(QLineEdit& edit, const Perform& perform);
/// To be called before the text's changes are connected to an act of their own.
void KeepToCodePage(QPlainTextEdit& edit, const Perform& perform);

}  // namespace ng
