#include "import/loader.h"

#include "base/runtime_error.h"

namespace ng {
namespace {

std::string UnlistedText(int count) {
  if (count == 0) return {};
  if (count == 1) return "1 file not listed: its name has characters this program cannot write";
  return std::to_string(count) +
         " files not listed: their names have characters this program cannot write";
}

}  // namespace

bool IsAbsolute(std::string_view name) {
  return name.find(':') != std::string_view::npos || name.starts_with('/');
}

std::string FullCharacterName(const std::string& characterDirectory, const std::string& name) {
  return IsAbsolute(name) ? name : characterDirectory + "\\" + name;
}

std::string ImportName(const std::string& characterDirectory, const std::string& name) {
  return IsAbsolute(name) ? characterDirectory + "\\" + name : name;
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
  FileList list = files_.List(DirListBox, ".ng3");
  for (std::string& name : list.names) filesXML.push_back({std::move(name), false});
  lblUnlisted = UnlistedText(list.unlisted);
}

}  // namespace ng
