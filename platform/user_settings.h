#pragma once

#include "base/ports.h"

namespace ng {

/// The per-user settings store, under the application's title.
class NativeUserSettings : public UserSettings {
 public:
  int Get(const std::string& section, const std::string& key, int defaultValue) override;
  void Save(const std::string& section, const std::string& key, int value) override;
};

}  // namespace ng
