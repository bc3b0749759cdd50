#include "import/loader.h"

#include "base/runtime_error.h"

namespace ng {

bool IsAbsolute(std::string_view name) {
  return name.find(':') != std::string_view::npos || name.starts_with('/');
}

std::string FullCharacterName(const std::string& characterDirectory, const std::string& name) {
  return IsAbsolute(name) ? name : characterDirectory + "\\" + name;
}

void LoaderForm::Form_Load() {
  open = true;
  Drive1 = NG3Dir_.substr(0, 2);
  DirListBox = NG3Dir_;
  selectionList.clear();
  ListFiles();
}

void LoaderForm::Drive1_Change(const std::string& drive) {
  const std::size_t colon = drive.find(':');
  Drive1 = colon == std::string::npos ? drive : drive.substr(0, colon + 1);
  DirListBox_Change(Drive1);
}

void LoaderForm::DirListBox_Change(const std::string& directory) {
  DirListBox = directory;
  NG3Dir_ = directory;
  ListFiles();
}

void LoaderForm::filesXML_Select(int index) { FileAt(index).selected = true; }

void LoaderForm::filesXML_Unselect(int index) { FileAt(index).selected = false; }

void LoaderForm::cmdLoad() {
  selectionList.clear();
  for (const File& file : filesXML) {
    if (file.selected) selectionList += file.name + "|";
  }
  open = false;
}

void LoaderForm::cmdCancel() {
  selectionList.clear();
  open = false;
}

LoaderForm::File& LoaderForm::FileAt(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= filesXML.size()) ThrowSubscript();
  return filesXML[static_cast<std::size_t>(index)];
}

void LoaderForm::ListFiles() {
  filesXML.clear();
  for (std::string& name : files_.List(DirListBox, ".ng3")) {
    filesXML.push_back({std::move(name), false});
  }
}

}  // namespace ng
