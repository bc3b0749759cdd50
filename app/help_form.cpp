#include "app/help_form.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace ng {
namespace {

/// The topic at which the help opens when a window beside the main one asks for it.
constexpr std::pair<std::string_view, std::string_view> kWindowTopics[] = {
    {"ngdr", "Rolling a test"},
    {"frmGM", "Files"},
    {"frmDisplay", "Files"},
    {"frmReference", "Files"}};

/// Whether the words of a block contain the text; the marks of Markdown are none of them.
bool HasText(const std::string& block, std::string_view text) {
  return ContainsIgnoringCase(Replaced(Replaced(block, "**", ""), "`", ""), text);
}

/// Blocks of one list or table stay together; all others are kept apart by an empty line.
void Append(std::string& markdown, const std::string& block) {
  const bool joined = block.starts_with("- ") || (block.starts_with('|') && !Contains(block, "\n"));
  markdown += (joined ? "\n" : "\n\n") + block;
}

/// The blocks that contain the text, with the headings and titles that they belong to; empty when
/// there are none.
std::string BlocksWith(const HelpTopic& topic, std::string_view text) {
  std::string markdown;
  const std::string* heading = nullptr;
  const std::string* titles = nullptr;
  for (const std::string& block : topic.blocks) {
    if (!block.starts_with('|')) titles = nullptr;
    if (block.starts_with('#')) {
      heading = &block;
    } else if (Contains(block, "\n")) {
      titles = &block;
    } else if (HasText(block, text)) {
      for (const std::string** above : {&heading, &titles}) {
        if (*above != nullptr) Append(markdown, *std::exchange(*above, nullptr));
      }
      Append(markdown, block);
    }
  }
  return markdown;
}

}  // namespace

void HelpForm::Form_Load(std::string_view window) {
  if (topics_.empty()) topics_ = HelpTopics();
  for (const auto& [asking, title] : kWindowTopics) {
    if (asking != window) continue;
    chosen_ = static_cast<std::size_t>(std::ranges::find(topics_, title, &HelpTopic::title) -
                                       topics_.begin());
  }
  open = true;
  txtFilter_Change({});
}

void HelpForm::txtFilter_Change(const std::string& text) {
  txtFilter = text;
  found_.clear();
  lstTopics.clear();
  for (std::size_t i = 0; i < topics_.size(); ++i) {
    if (BlocksWith(topics_[i], text).empty()) continue;
    found_.push_back(i);
    lstTopics.push_back(topics_[i].title);
  }
  ShowTopic();
}

void HelpForm::lstTopics_Select(int index) {
  if (index < 0 || index >= static_cast<int>(found_.size())) return;
  chosen_ = found_[static_cast<std::size_t>(index)];
  ShowTopic();
}

void HelpForm::ShowTopic() {
  txtTopic = "No help found.";
  lstTopicsIndex = -1;
  if (found_.empty()) return;
  auto shown = std::ranges::find(found_, chosen_);
  if (shown == found_.end()) shown = found_.begin();
  lstTopicsIndex = static_cast<int>(shown - found_.begin());
  const HelpTopic& topic = topics_[*shown];
  txtTopic = "## " + topic.title + BlocksWith(topic, txtFilter);
}

}  // namespace ng
