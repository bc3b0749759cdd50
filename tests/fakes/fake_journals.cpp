#include "fakes/fake_journals.h"

namespace ng {
namespace {

class FakeDurableFile : public DurableFile {
 public:
  FakeDurableFile(FakeJournals& store, std::string name) : store_(store), name_(std::move(name)) {
    store_.held.insert(name_);
  }
  ~FakeDurableFile() override { store_.held.erase(name_); }

  void Append(std::string_view bytes) override {
    if (store_.failingAppend > 0 && --store_.failingAppend == 0) {
      // What the device still took is there.
      store_.files[name_].append(bytes.substr(0, bytes.size() / 2));
      throw RuntimeError(ErrorNumber::DiskFull);
    }
    store_.files[name_].append(bytes);
  }
  void Flush() override { ++store_.flushes; }

  void Rename(const std::string& name) {
    store_.held.erase(name_);
    name_ = name;
    store_.held.insert(name_);
  }

 private:
  FakeJournals& store_;
  std::string name_;
};

}  // namespace

std::unique_ptr<DurableFile> FakeJournals::Open(const std::string& name, std::size_t bytes) {
  if (IsHeld(name)) throw RuntimeError(ErrorNumber::PermissionDenied);
  files[name].resize(bytes);
  auto file = std::make_unique<FakeDurableFile>(*this, name);
  open_[name] = file.get();
  return file;
}

void FakeJournals::Rename(const std::string& from, const std::string& to) {
  files[to] = files[from];
  files.erase(from);
  if (!IsHeld(from)) return;
  open_[to] = open_.at(from);
  static_cast<FakeDurableFile*>(open_.at(to))->Rename(to);
}

}  // namespace ng
