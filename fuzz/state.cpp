// A state file may be anything; reading it ends well or in a runtime error.

#include <cstddef>
#include <cstdint>
#include <memory>

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
  const ng::ProfileFile file(std::string(reinterpret_cast<const char*>(data), size));
  const auto fight = std::make_unique<ng::Fight>();
  NoImports host;
  try {
    ng::ReadStateFile(file, *fight, host);
    ng::StateFileText(*fight);
  } catch (const ng::RuntimeError&) {
    return 0;
  }
  return 0;
}
