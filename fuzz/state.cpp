// A state file may be anything; reading it ends well or in a runtime error, and a fight that was
// read can be saved and read again.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "base/runtime_error.h"
#include "tracker/state_file.h"

namespace {

class NoImports : public ng::StateFileHost {
 public:
  bool ImportCharacter(const std::string&) override { return true; }
  std::string ShowNote(const std::string&) override { return {}; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto fight = std::make_unique<ng::Fight>();
  NoImports host;
  std::string written;
  try {
    const ng::ProfileFile file(std::string(reinterpret_cast<const char*>(data), size));
    ng::ReadStateFile(file, *fight, host);
    written = ng::StateFileText(*fight);
  } catch (const ng::RuntimeError&) {
    return 0;
  }
  // What was saved loads again.
  try {
    ng::ReadStateFile(ng::ProfileFile(written), *fight, host);
  } catch (const ng::RuntimeError&) {
    __builtin_trap();
  }
  return 0;
}
