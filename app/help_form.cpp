#include "app/help_form.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace ng {
namespace {

/// Where the help opens when a window beside the main one asks for it.
constexpr std::pair<std::string_view, HelpPage> kWindowPages[] = {
    {"ngdr", HelpPage::Test},
    {"frmGM", HelpPage::Files},
    {"frmDisplay", HelpPage::Files},
    {"frmReference", HelpPage::Files}};

bool HasText(const HelpLine& line, std::string_view text) {
  return std::ranges::any_of(
      line.cells, [text](const std::string& cell) { return ContainsIgnoringCase(cell, text); });
}

/// The texts and rows that contain the text, with the headings and titles that they stand under.
std::vector<HelpLine> LinesWith(const HelpTopic& topic, std::string_view text) {
  std::vector<HelpLine> lines;
  const HelpLine* heading = nullptr;
  const HelpLine* titles = nullptr;
  for (const HelpLine& line : topic.lines) {
    if (line.kind == HelpLine::Kind::Heading) {
      heading = &line;
      titles = nullptr;
    } else if (line.kind == HelpLine::Kind::Titles) {
      titles = &line;
    } else if (HasText(line, text)) {
      for (const HelpLine** above : {&heading, &titles}) {
        if (const HelpLine* first = std::exchange(*above, nullptr)) lines.push_back(*first);
      }
      lines.push_back(line);
    }
  }
  return lines;
}

}  // namespace

void HelpForm::Form_Load(std::string_view window) {
  if (topics_.empty()) topics_ = HelpTopics();
  const auto* page =
      std::ranges::find(kWindowPages, window, [](const auto& row) { return row.first; });
  if (page != std::end(kWindowPages)) chosen_ = static_cast<std::size_t>(page->second);
  open = true;
  txtFilter_Change({});
}

void HelpForm::txtFilter_Change(const std::string& text) {
  txtFilter = text;
  found_.clear();
  lstTopics.clear();
  for (std::size_t i = 0; i < topics_.size(); ++i) {
    if (LinesWith(topics_[i], text).empty()) continue;
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
  lines.clear();
  lstTopicsIndex = -1;
  if (found_.empty()) return;
  auto shown = std::ranges::find(found_, chosen_);
  if (shown == found_.end()) shown = found_.begin();
  lstTopicsIndex = static_cast<int>(shown - found_.begin());
  lines = LinesWith(topics_[*shown], txtFilter);
}

}  // namespace ng
