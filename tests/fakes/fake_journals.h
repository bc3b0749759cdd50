#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "base/ports.h"
#include "base/runtime_error.h"

namespace ng {

/// A clock that stands still until it is told.
class FakeClock : public Clock {
 public:
  std::string now = "2026-11-21 21:43:05";
  std::string Now() override { return now; }
};

/// Journals in memory, on a device that can fail at the n-th append.
class FakeJournals : public JournalStore {
 public:
  std::map<std::string, std::string> files;
  std::set<std::string> held;
  /// The n-th append from now on finds the disk full; 0 for none.
  int failingAppend = 0;
  int flushes = 0;

  std::vector<std::string> List() override {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) names.push_back(name);
    return names;
  }
  std::string Read(const std::string& name) override {
    const auto found = files.find(name);
    if (found == files.end()) throw RuntimeError(ErrorNumber::FileNotFound);
    return found->second;
  }
  bool IsHeld(const std::string& name) override { return held.count(name) > 0; }
  std::unique_ptr<DurableFile> Open(const std::string& name, std::size_t bytes) override;
  void Rename(const std::string& from, const std::string& to) override;
  void Remove(const std::string& name) override { files.erase(name); }

 private:
  /// Those that are open, by their names.
  std::map<std::string, DurableFile*> open_;
};

}  // namespace ng
