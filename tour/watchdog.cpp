#include "tour/watchdog.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace ng {

Watchdog::Watchdog(std::chrono::seconds patience) : patience_(patience) {
  thread_ = std::thread([this] { Watch(); });
}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(mutex_);
    over_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void Watchdog::Report(const std::string& place) {
  {
    const std::lock_guard lock(mutex_);
    place_ = place;
    reported_ = true;
  }
  changed_.notify_one();
}

std::string Watchdog::Place() {
  const std::lock_guard lock(mutex_);
  return place_;
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  while (!over_) {
    if (!changed_.wait_for(lock, patience_, [this] { return reported_ || over_; })) {
      std::fprintf(stderr, "The tour is stuck after: %s\n", place_.c_str());
      std::_Exit(kExitStatus);
    }
    reported_ = false;
  }
}

}  // namespace ng
