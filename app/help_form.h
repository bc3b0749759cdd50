#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/help_topics.h"

namespace ng {

/// The help window, frmHelp: a list of topics, a box that looks for a text in all of them, and the
/// topic chosen.
class HelpForm {
 public:
  bool open = false;
  std::string txtFilter;
  /// The titles of the topics in which the text is found.
  std::vector<std::string> lstTopics;
  /// The line of `lstTopics` chosen, -1 for none.
  int lstTopicsIndex = -1;
  /// The chosen topic in Markdown; of tables and texts only the blocks with the text looked for.
  std::string txtTopic;

  /// Opens with all topics: at the one that fits the window the help was asked from (its name),
  /// where it was left for the main window (an empty name).
  void Form_Load(std::string_view window);
  /// Keeps to the topics and blocks that contain the text, whatever its case.
  void txtFilter_Change(const std::string& text);
  void lstTopics_Select(int index);

 private:
  void ShowTopic();

  /// Read when the help is first opened.
  std::vector<HelpTopic> topics_;
  /// The topics behind the lines of `lstTopics`.
  std::vector<std::size_t> found_;
  /// Stays chosen while the text looked for is not in it.
  std::size_t chosen_ = 0;
};

}  // namespace ng
