#include "bench/crowd.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"

namespace ng {
namespace {

constexpr std::size_t kLargeFile = 8192;

using Answer = ScriptedPrompts::Answer;

bool IsGearLine(std::string_view line) { return line.starts_with("Gear") && Contains(line, "="); }

std::vector<std::string> GearOfAll(FakeFiles& files) {
  std::vector<std::string> items;
  for (const std::string& name : files.List("C:\\chars", ".ng3").names) {
    for (const std::string& line : SplitIntoLines(files.ReadWhole("C:\\chars\\" + name))) {
      if (IsGearLine(line)) items.push_back(line.substr(line.find('=')));
    }
  }
  return items;
}

}  // namespace

Crowd::Crowd() {
  files.Mount("C:\\chars", NG_SAMPLE "/characters");
  files.Mount("C:\\DATA", NG_SAMPLE "/DATA");
  prompts.perform = [this](const Act& act) { session.Do(act); };
  session.main.Form_Load();
  ImportSamples();
  FillWithCopies();
  Do("mnuTReroll");
  prompts.TakeLog();
  if (session.main.fight.CountPlayers() != Fight::kLastSlot) {
    throw std::runtime_error("the table is not full");
  }
}

void Crowd::ImportSamples() {
  Answer answer{Answer::Kind::Modal, {}, {}};
  const int count = static_cast<int>(files.List("C:\\chars", ".ng3").names.size());
  for (int row = 0; row < count; ++row) {
    answer.acts.push_back({"frmLoader.filesXML_Select", row, {}});
  }
  answer.acts.push_back({"frmLoader.cmdLoad", 0, {}});
  prompts.answers.push_back(answer);
  Do("mnuFileOpen");
}

void Crowd::FillWithCopies() {
  for (;;) {
    const int left = Fight::kLastSlot - session.main.fight.CountPlayers().Value();
    if (left == 0) return;
    const int copies = std::min(left, Actions::kMostCopies);
    prompts.answers.push_back({Answer::Kind::Input, std::to_string(copies), {}});
    Do("mnuPMult");
  }
}

std::string LargeCharacterFile() {
  FakeFiles files;
  files.Mount("C:\\chars", NG_SAMPLE "/characters");
  const std::vector<std::string> items = GearOfAll(files);
  std::string text;
  std::size_t length = files.ReadWhole("C:\\chars\\vex.ng3").size();
  for (const std::string& line : SplitIntoLines(files.ReadWhole("C:\\chars\\vex.ng3"))) {
    if (IsGearLine(line)) continue;
    text += line + "\r\n";
    if (line != "[Gear]") continue;
    for (std::size_t i = 0; length < kLargeFile + 1024; ++i) {
      const std::string gear = "Gear" + std::to_string(i) + items[i % items.size()] + "\r\n";
      text += gear;
      length += gear.size();
    }
  }
  if (text.size() < kLargeFile) throw std::runtime_error("the character file is too small");
  return text;
}

std::vector<std::string> SplitIntoLines(std::string_view text) {
  std::vector<std::string> lines;
  LineReader reader(text);
  std::string_view line;
  while (reader.Next(line)) lines.emplace_back(line);
  return lines;
}

}  // namespace ng
