#pragma once

#include <string>
#include <vector>

namespace ng {

/// docs/rules.md, in UTF-8. It is built into the program.
extern const char* const kRulesText;

/// A topic of the help: what the document has under a heading of the second level.
struct HelpTopic {
  std::string title;
  /// In Markdown, each on one line: headings, paragraphs, points of a list, rows of a table. The
  /// titles of a table have the line below them in the same block.
  std::vector<std::string> blocks;
};

/// The whole help: the topics of docs/rules.md, and the commands and keys from the tables that
/// menus and buttons are made from.
std::vector<HelpTopic> HelpTopics();

}  // namespace ng
