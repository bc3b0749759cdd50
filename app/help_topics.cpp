#include "app/help_topics.h"

#include <span>
#include <string_view>

#include "app/commands.h"
#include "app/keys.h"
#include "base/code_page.h"
#include "base/text.h"

namespace ng {
namespace {

/// Whether a line begins a block although no empty line is above it.
bool BeginsBlock(std::string_view line) {
  return line.starts_with('#') || line.starts_with('|') || line.starts_with("- ");
}

std::vector<HelpTopic> ReadTopics(std::string_view document) {
  constexpr std::string_view kTopic = "## ";
  std::vector<HelpTopic> topics;
  bool inBlock = false;
  std::string_view line;
  for (LineReader reader(document); reader.Next(line);) {
    if (line.starts_with(kTopic)) {
      topics.push_back({std::string(line.substr(kTopic.size())), {}});
    } else if (!topics.empty() && !line.empty()) {
      std::vector<std::string>& blocks = topics.back().blocks;
      if (line.starts_with("|-")) {
        blocks.back() += "\n" + std::string(line);
      } else if (inBlock && !BeginsBlock(line)) {
        blocks.back() += " " + std::string(Trimmed(line));
      } else {
        blocks.emplace_back(line);
      }
    }
    inBlock = !line.empty() && !line.starts_with('#');
  }
  return topics;
}

void AddKeys(HelpTopic& topic, const char* heading, std::span<const ButtonKey> keys) {
  topic.blocks.push_back(std::string("### ") + heading);
  topic.blocks.emplace_back("| Key | What it does |\n|---|---|");
  for (const ButtonKey& row : keys) {
    topic.blocks.push_back(std::string("| ") + row.key + " | " + row.words + " |");
  }
}

HelpTopic CommandTopic() {
  HelpTopic topic{"Commands", {"| Command | Menu | Key | What it does |\n|---|---|---|---|"}};
  for (const MenuTitle& menu : kMenuTitles) {
    for (const Command& command : Commands()) {
      if (command.menu != menu.menu) continue;
      topic.blocks.push_back("| " + PlainWords(command.text) + " | " + PlainWords(menu.text) +
                             " | " + command.shortcut + " | " + command.tip + " |");
    }
  }
  return topic;
}

}  // namespace

std::vector<HelpTopic> HelpTopics() {
  std::vector<HelpTopic> topics = ReadTopics(FromUtf8(kRulesText));
  for (HelpTopic& topic : topics) {
    if (topic.title != "Keys") continue;
    AddKeys(topic, "The main window, on every page", MainKeys());
    AddKeys(topic, "The dice roller's menu", RollerKeys());
  }
  topics.push_back(CommandTopic());
  return topics;
}

}  // namespace ng
