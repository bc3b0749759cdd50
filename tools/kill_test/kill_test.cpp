// Kills the real program at random moments and starts it again: what it then shows must be what it
// showed when the last act returned. An act that was running when the kill came may be there or
// not.
//
//   kill_test COUNT SEED

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// What a run told before it was killed.
struct Run {
  std::string takenUp;
  std::string last;
  bool inAct = false;
  int acts = 0;
};

void Take(Run& run, const std::string& line) {
  if (line.starts_with("U ")) run.takenUp = run.last = line.substr(2);
  if (line == "B") run.inAct = true;
  if (line.starts_with("A ")) {
    run.last = line.substr(2);
    run.inAct = false;
    ++run.acts;
  }
}

/// Runs the victim for so many milliseconds from the time when it has taken up the fight.
Run RunAndKill(const fs::path& program, const fs::path& settings, unsigned seed, int milliseconds,
               const char* characters) {
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    if (characters != nullptr) setenv("NG_CHARACTERS", characters, 1);
    execl(program.c_str(), program.c_str(), settings.c_str(), std::to_string(seed).c_str(),
          nullptr);
    _exit(127);
  }
  close(ends[1]);
  using Clock = std::chrono::steady_clock;
  Run run;
  std::string text;
  auto deadline = Clock::now() + std::chrono::seconds(30);
  bool killed = false;
  for (;;) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    pollfd wait{ends[0], POLLIN, 0};
    if (!killed && (left <= 0 || poll(&wait, 1, static_cast<int>(left)) == 0)) {
      kill(child, SIGKILL);
      killed = true;
      continue;
    }
    char buffer[4096];
    const ssize_t count = read(ends[0], buffer, sizeof buffer);
    if (count <= 0) break;
    text.append(buffer, static_cast<std::size_t>(count));
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n')) {
      const bool first = run.takenUp.empty();
      Take(run, text.substr(0, end));
      text.erase(0, end + 1);
      if (first && !run.takenUp.empty()) {
        deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
      }
    }
  }
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return run;
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 20;
  std::mt19937 random(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
  // The program keeps its journals beside itself.
  const fs::path directory =
      fs::temp_directory_path() / ("ng_kill_test_" + std::to_string(getpid()));
  fs::create_directories(directory);
  const fs::path victim = directory / "victim";
  fs::copy_file(fs::path(argv[0]).parent_path() / "ng_kill_victim", victim);
  const fs::path sample = NG_SAMPLE;
  std::ofstream(directory / "tracker.ini")
      << "[NGtracker]\r\nNG3Dir=" << (sample / "characters").string()
      << "\r\nDatDir=" << (sample / "DATA").string() << "\r\n";
  const std::string characters = (sample / "characters/vex.ng3").string();
  int acts = 0;
  int inAct = 0;
  int lost = 0;
  Run before;
  for (int i = 0; i <= count; ++i) {
    const int milliseconds = static_cast<int>(random() % 400) + (i == 0 ? 300 : 0);
    const Run run = RunAndKill(victim, directory / "tracker.ini", static_cast<unsigned>(random()),
                               milliseconds, i == 0 ? characters.c_str() : nullptr);
    acts += run.acts;
    if (run.takenUp.empty()) {
      std::printf("start %d: the program did not come up\n", i);
      ++lost;
    }
    if (i > 0 && run.takenUp != before.last) {
      if (before.inAct) {
        ++inAct;
      } else {
        std::printf("kill %d: what was taken up is not what was there\n", i);
        ++lost;
      }
    }
    before = run;
  }
  std::printf("%d kills, %d acts, %d in the middle of an act, %d lost\n", count, acts, inAct, lost);
  if (lost == 0) fs::remove_all(directory);
  return lost == 0 ? 0 : 1;
}
