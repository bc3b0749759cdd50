#include "notes/gm_log.h"

#include <utility>

#include "base/runtime_error.h"

namespace ng {

GmLog::GmLog(Files& files, std::string path) : files_(files), path_(std::move(path)) {}

void GmLog::Add(const std::string& line) {
  lstGMinfo_.push_back(line);
  try {
    files_.Append(path_, line + "\r\n");
    lastFailure_.clear();
  } catch (const RuntimeError& error) {
    const std::string failure = std::string("Log not written: ") + error.what();
    if (failure != lastFailure_) lblLogFailure_ = failure;
    lastFailure_ = failure;
  }
}

}  // namespace ng
