// Plays a file of acts, or a journal, through the program's door and prints, after each act, what
// was shown and asked and every value that changed. docs/golden-fights.md tells the formats.
//
//   play FILE            prints the transcript
//   play FILE EXPECTED   compares it with the file EXPECTED; exit code 1 where they differ

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

#include "golden/player.h"

namespace {

std::string ReadFile(const char* path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(std::string("cannot read ") + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::cerr << "usage: play FILE [EXPECTED]\n";
    return 2;
  }
  try {
    std::ostringstream transcript;
    ng::Play(ReadFile(argv[1]), transcript);
    if (argc == 2) {
      std::cout << transcript.str();
      return 0;
    }
    std::istringstream expected(ReadFile(argv[2]));
    std::istringstream played(transcript.str());
    std::string want;
    std::string got;
    for (int line = 1;; ++line) {
      const bool more = static_cast<bool>(std::getline(expected, want));
      if (more != static_cast<bool>(std::getline(played, got)) || (more && want != got)) {
        std::cerr << argv[2] << ":" << line << ": expected\n  " << want << "\nbut played\n  " << got
                  << "\n";
        return 1;
      }
      if (!more) return 0;
    }
  } catch (const std::exception& error) {
    std::cerr << argv[1] << ": " << error.what() << "\n";
    return 1;
  }
}
