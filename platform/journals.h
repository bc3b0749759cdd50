#pragma once

#include <filesystem>

#include "base/ports.h"

namespace ng {

/// The journals in a directory of this machine, which is made when the first one is. An open
/// journal is locked, so that two running programs never write one; the lock goes with the program,
/// however it ends. What is appended is with the system when the call returns; a thread of the
/// file's own puts it on the device within a second, or at once after Flush, and nobody waits for
/// it.
class NativeJournals : public JournalStore {
 public:
  explicit NativeJournals(std::filesystem::path directory) : directory_(std::move(directory)) {}

  std::vector<std::string> List() override;
  std::string Read(const std::string& name) override;
  bool IsHeld(const std::string& name) override;
  std::unique_ptr<DurableFile> Open(const std::string& name, std::size_t bytes) override;
  void Rename(const std::string& from, const std::string& to) override;
  void Remove(const std::string& name) override;

 private:
  std::filesystem::path directory_;
};

}  // namespace ng
