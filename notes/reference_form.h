#pragma once

#include <string>
#include <vector>

#include "base/ports.h"
#include "notes/info_index.h"

namespace ng {

/// The reference window: the names of the info index with a filter, and what the file says about
/// the one chosen.
class ReferenceForm {
 public:
  ReferenceForm(const InfoIndex& info, Files& files) : info_(info), files_(files) {}

  bool open = false;
  std::string txtFilter;
  std::vector<std::string> lstNames;
  /// The line of `lstNames` chosen, -1 for none.
  int lstNamesIndex = -1;
  std::string txtEntry;

  void Form_Load();
  /// Lists the entries whose name contains the text.
  void txtFilter_Change(const std::string& text);
  void lstNames_Select(int index);

 private:
  const InfoIndex& info_;
  Files& files_;
  /// The entries behind the lines of `lstNames`.
  std::vector<int> entries_;
};

}  // namespace ng
