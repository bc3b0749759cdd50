#pragma once

#include <functional>
#include <string>

#include "app/act.h"

class QObject;
class QString;
class QWidget;

namespace ng {

/// Runs an act and paints what came of it.
using Perform = std::function<void(const Act&)>;

/// A widget's name taken apart: "txtShots_1" is element 1 of `txtShots`.
struct WidgetName {
  std::string control;
  int index = 0;
};
WidgetName ParseWidgetName(const QString& objectName);

/// Connects every widget below `window` that a command is named after to the command's act. The
/// widgets' names have `prefix` before them in the acts of this window: "ngdr." or nothing. A copy
/// of a control does what the first one does. Check boxes and check marks do not change by
/// themselves: the form decides and is painted afterwards.
/// The connections live as long as `owner`; nothing comes through while `painting` is set.
void ConnectActs(QWidget& window, QObject& owner, const bool& painting, const Perform& perform,
                 const std::string& prefix);

}  // namespace ng
