#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/session.h"

namespace ng {

/// Every value of the fight and every control of the window, each under its own name.
using Snapshot = std::vector<std::pair<std::string, std::string>>;

Snapshot TakeSnapshot(const Session& session);

/// The lines "name = value" for what differs; a value that is gone is told with "gone".
std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after);

}  // namespace ng
