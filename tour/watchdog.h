#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace ng {

/// Ends the program when nothing has been reported for too long, and says what was reported last:
/// a window that nobody answers would hold everything up for ever.
class Watchdog {
 public:
  static constexpr int kExitStatus = 3;

  explicit Watchdog(std::chrono::seconds patience);
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  void Report(const std::string& place);
  /// What was reported last.
  std::string Place();

 private:
  void Watch();

  const std::chrono::seconds patience_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string place_ = "the start";
  bool reported_ = false;
  bool over_ = false;
  std::thread thread_;
};

}  // namespace ng
