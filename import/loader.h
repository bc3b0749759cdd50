#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/ports.h"

namespace ng {

/// Whether a file name is complete and is not looked for in the character directory: it holds
/// a ":", or, in the POSIX form, begins with "/".
bool IsAbsolute(std::string_view name);

/// The full name of a character file.
std::string FullCharacterName(const std::string& characterDirectory, const std::string& name);

/// The name by which a file of the character directory is imported: its name alone, but the full
/// one where the name alone would be taken for a full one.
std::string ImportName(const std::string& characterDirectory, const std::string& name);

/// The modal dialog in which character files are picked: the form behind frmLoader.
class LoaderForm {
 public:
  static constexpr const char* kCaption = "Load NG3 Files";
  static constexpr const char* kDrivesLabel = "  Drives";
  static constexpr const char* kDirectoryLabel = "  Directory";
  static constexpr const char* kFilesLabel = "   Files";
  static constexpr const char* kHint = "Multi Select Possible, Use Ctrl && Shift Selections";

  struct File {
    std::string name;
    bool selected = false;
  };

  /// `characterDirectory` is the NG3Dir setting: the dialog starts there and leaves the directory
  /// that the user ends in there, even when the dialog is cancelled.
  LoaderForm(Files& files, std::string& characterDirectory)
      : files_(files), NG3Dir_(characterDirectory) {}

  // What the controls show.
  std::string Drive1;
  std::string DirListBox;
  std::vector<File> filesXML;
  /// Says how many files the list leaves out; empty when it shows them all.
  std::string lblUnlisted;
  /// The picked names, each followed by "|"; empty when nothing is to be imported.
  std::string selectionList;
  /// The dialog is open until one of its buttons closes it.
  bool open = false;

  void Form_Load();
  /// A drive was chosen: its text is cut behind the ":".
  void Drive1_Change(const std::string& drive);
  void DirListBox_Change(const std::string& directory);
  /// Selects or unselects a file of the list. Subscript out of range for an index beyond it.
  void filesXML_Select(int index);
  void filesXML_Unselect(int index);
  /// Lists the chosen names in the order of the file list, whatever order they were clicked in.
  void cmdLoad();
  void cmdCancel();

 private:
  File& FileAt(int index);
  void ListFiles();

  Files& files_;
  std::string& NG3Dir_;
};

}  // namespace ng
