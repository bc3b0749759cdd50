#include "platform/journals.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

#include "base/runtime_error.h"

namespace ng {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kLatestFlush{1000};

[[noreturn]] void ThrowSystemError(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      throw RuntimeError(ErrorNumber::DiskFull);
    case ENOENT:
      throw RuntimeError(ErrorNumber::FileNotFound);
    case ENOTDIR:
      throw RuntimeError(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
    case EWOULDBLOCK:
      throw RuntimeError(ErrorNumber::PermissionDenied);
    default:
      throw RuntimeError(ErrorNumber::DeviceInputOutput);
  }
}

/// An open file; closing it lets go of its lock.
class Descriptor {
 public:
  Descriptor(const fs::path& path, int flags)
      : number_(::open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return number_; }
  bool Lock() const { return ::flock(number_, LOCK_EX | LOCK_NB) == 0; }

 private:
  int number_;
};

class NativeDurableFile : public DurableFile {
 public:
  NativeDurableFile(const fs::path& path, std::size_t bytes)
      : file_(path, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK), size_(static_cast<off_t>(bytes)) {
    struct stat status {};
    if (file_.Number() < 0 || !file_.Lock() || ::fstat(file_.Number(), &status) != 0 ||
        ::ftruncate(file_.Number(), size_) != 0) {
      ThrowSystemError(errno);
    }
    if (!S_ISREG(status.st_mode)) throw RuntimeError(ErrorNumber::PathFileAccess);
    flusher_ = std::thread([this] { KeepFlushing(); });
  }

  ~NativeDurableFile() override {
    {
      const std::lock_guard lock(mutex_);
      ending_ = true;
    }
    wake_.notify_one();
    flusher_.join();
  }

  void Append(std::string_view bytes) override {
    const off_t before = size_;
    while (!bytes.empty()) {
      const ssize_t written = ::pwrite(file_.Number(), bytes.data(), bytes.size(), size_);
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) {
        const int error = written < 0 ? errno : ENOSPC;
        // What was taken of a record goes, so that the journal ends with a whole one.
        size_ = before;
        static_cast<void>(::ftruncate(file_.Number(), size_));
        ThrowSystemError(error);
      }
      size_ += written;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    Ask(unflushed_);
  }

  void Flush() override { Ask(urgent_); }

 private:
  void Ask(bool& wish) {
    {
      const std::lock_guard lock(mutex_);
      // Somebody is awake already.
      if (std::exchange(wish, true)) return;
    }
    wake_.notify_one();
  }

  void KeepFlushing() {
    std::unique_lock lock(mutex_);
    for (;;) {
      wake_.wait(lock, [this] { return unflushed_ || urgent_ || ending_; });
      wake_.wait_for(lock, kLatestFlush, [this] { return urgent_ || ending_; });
      const bool last = ending_;
      unflushed_ = false;
      urgent_ = false;
      lock.unlock();
      // A device that cannot shows so with the next append.
      static_cast<void>(::fdatasync(file_.Number()));
      if (last) return;
      lock.lock();
    }
  }

  Descriptor file_;
  off_t size_;
  std::mutex mutex_;
  std::condition_variable wake_;
  /// Something was appended; it is to be on the device now; the file is being closed.
  bool unflushed_ = false;
  bool urgent_ = false;
  bool ending_ = false;
  std::thread flusher_;
};

}  // namespace

std::vector<std::string> NativeJournals::List() {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(directory_, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(entry->path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

std::string NativeJournals::Read(const std::string& name) {
  const fs::path path = directory_ / name;
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw RuntimeError(ErrorNumber::FileNotFound);
  std::ifstream file(path, std::ios::binary);
  if (!file) throw RuntimeError(ErrorNumber::PermissionDenied);
  std::string bytes(std::istreambuf_iterator<char>(file), {});
  if (file.bad()) throw RuntimeError(ErrorNumber::DeviceInputOutput);
  return bytes;
}

bool NativeJournals::IsHeld(const std::string& name) {
  const Descriptor file(directory_ / name, O_RDONLY | O_NONBLOCK);
  return file.Number() >= 0 && !file.Lock();
}

std::unique_ptr<DurableFile> NativeJournals::Open(const std::string& name, std::size_t bytes) {
  std::error_code error;
  fs::create_directories(directory_, error);
  return std::make_unique<NativeDurableFile>(directory_ / name, bytes);
}

void NativeJournals::Rename(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(directory_ / from, directory_ / to, error);
  if (error) ThrowSystemError(error.value());
}

void NativeJournals::Remove(const std::string& name) {
  std::error_code error;
  fs::remove(directory_ / name, error);
}

}  // namespace ng
