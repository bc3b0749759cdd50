#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/crowd.h"
#include "bench/import_bench.h"
#include "platform/files.h"

namespace ng {
namespace {

/// A real file that goes with the program.
class LargeFile {
 public:
  LargeFile() : path_(std::filesystem::temp_directory_path() / "ng_bench_large.ng3") {
    std::ofstream stream(path_, std::ios::binary);
    stream << LargeCharacterFile();
    if (!stream.flush()) throw std::runtime_error("cannot write " + path_.string());
  }
  ~LargeFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  LargeFile(const LargeFile&) = delete;
  LargeFile& operator=(const LargeFile&) = delete;

  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

void ImportFromDisk(benchmark::State& state) {
  const LargeFile file;
  NativeFiles files;
  MeasureImport(state, files, file.Path());
}
BENCHMARK(ImportFromDisk);

void ReadLinesFromDisk(benchmark::State& state) {
  const LargeFile file;
  NativeFiles files;
  MeasureReadingLines(state, files, file.Path());
}
BENCHMARK(ReadLinesFromDisk);

}  // namespace
}  // namespace ng
