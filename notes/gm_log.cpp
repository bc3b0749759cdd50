#include "notes/gm_log.h"

#include <utility>

#include "base/runtime_error.h"

namespace ng {

GmLog::GmLog(Files& files, std::string path, std::function<void(const std::string&)> reportFailure)
    : files_(files), path_(std::move(path)), reportFailure_(std::move(reportFailure)) {}

void GmLog::Add(const std::string& line) {
  lstGMinfo_.push_back(line);
  try {
    files_.Append(path_, line + "\r\n");
  } catch (const RuntimeError& error) {
    if (!failureReported_) reportFailure_(std::string("The log is not written: ") + error.what());
    failureReported_ = true;
  }
}

}  // namespace ng
