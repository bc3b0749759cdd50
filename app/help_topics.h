#pragma once

#include <string>
#include <vector>

namespace ng {

/// A line of a topic. Rows that follow one another stand in one table, `Titles` above them.
struct HelpLine {
  enum class Kind { Heading, Text, Titles, Row };
  Kind kind;
  /// One for headings and texts, one for each column in a table.
  std::vector<std::string> cells;
};

struct HelpTopic {
  std::string title;
  std::vector<HelpLine> lines;
};

/// The topics of the help, by their place in `HelpTopics`.
enum class HelpPage { Turn, Test, Commands, Keys, Files };

/// The whole help. What it says of commands and keys comes from the tables that the menus and the
/// buttons are made from.
std::vector<HelpTopic> HelpTopics();

}  // namespace ng
