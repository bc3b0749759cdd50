#include "notes/reference_form.h"

namespace ng {

void ReferenceForm::Form_Load() {
  open = true;
  txtFilter_Change(txtFilter);
}

void ReferenceForm::txtFilter_Change(const std::string& text) {
  txtFilter = text;
  entries_ = info_.Matching(text);
  lstNames.clear();
  for (const int entry : entries_) lstNames.push_back(info_.At(entry).name);
  lstNames_Select(lstNames.empty() ? -1 : 0);
}

void ReferenceForm::lstNames_Select(int index) {
  const bool there = index >= 0 && index < static_cast<int>(entries_.size());
  lstNamesIndex = there ? index : -1;
  txtEntry.clear();
  if (there) txtEntry = info_.EntryText(files_, entries_[static_cast<std::size_t>(index)]);
}

}  // namespace ng
