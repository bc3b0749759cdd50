#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/session.h"

namespace ng {

/// Every value of the fight, every control of the windows that are open and of the dice roller,
/// each under its own name, and which windows are open.
using Snapshot = std::vector<std::pair<std::string, std::string>>;

Snapshot TakeSnapshot(const Session& session);

/// The lines "name = value" for what differs; a value that is gone is told with "gone".
std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after);

}  // namespace ng
