#include "app/fight_files.h"

#include "app/main_form.h"
#include "base/number_text.h"
#include "base/progress.h"
#include "base/text.h"
#include "import/character_import.h"
#include "notes/note_file.h"
#include "tracker/state_file.h"

namespace ng {
namespace {

constexpr const char* kStateFilter = "State File (*.ngt)|*.ngt";
constexpr const char* kNoteFilter = "Text Files (*.txt)|*.txt";

/// Displaying somebody else is no change of the fight.
Fight WithoutLooks(const Fight& fight) {
  Fight plain = fight;
  plain.CurrentPCpointer = 0;
  for (PlayerRecord& record : plain.Players) {
    record.lastTab = 0;
    // Calculated again whenever the combatant is displayed.
    record.URCPrim.clear();
    record.URCSec.clear();
  }
  return plain;
}

/// "1 character", "2 characters".
std::string Counted(Integer count, const std::string& what) {
  return PlainText(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Joined(const std::vector<std::string>& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

std::vector<std::string> NamesWithUnfiledNotes(const Fight& fight) {
  std::vector<std::string> names;
  for (const PlayerRecord& record : fight.Players) {
    if (!record.Notes.empty() && record.NoteFileName.empty()) names.push_back(record.Name);
  }
  return names;
}

/// Files of the three kinds, each in the order given.
struct SortedFiles {
  std::vector<std::string> characters;
  std::vector<std::string> states;
  std::vector<std::string> others;
};

SortedFiles Sorted(const std::vector<std::string>& paths) {
  SortedFiles sorted;
  for (const std::string& path : paths) {
    if (HasEnding(path, ".ng3")) {
      sorted.characters.push_back(path);
    } else if (HasEnding(path, ".ngt")) {
      sorted.states.push_back(path);
    } else {
      sorted.others.push_back(path);
    }
  }
  return sorted;
}

/// The file's name alone where it is in the character directory, so that it counts as the same
/// file that the Open dialog finds there.
std::string NameIn(const std::string& characterDirectory, const std::string& path) {
  std::string_view directory = characterDirectory;
  while (!directory.empty() && HasSeparator(directory.substr(directory.size() - 1))) {
    directory.remove_suffix(1);
  }
  const std::size_t length = directory.size();
  if (length == 0 || path.size() <= length || HasSeparator(path.substr(length + 1))) return path;
  // The two separators are one, and letters count whatever their case, as on the disk.
  const auto same = [](const std::string& a, std::string_view b) {
    return EqualIgnoringCase(Replaced(a, "\\", "/"), Replaced(b, "\\", "/"));
  };
  const bool inside =
      same(path.substr(0, length), directory) && HasSeparator(path.substr(length, 1));
  return inside ? ImportName(characterDirectory, path.substr(length + 1)) : path;
}

/// False for a name with characters that the program cannot write when it fits several files. A
/// nameless combatant would not be what was dropped.
bool NamesAFile(Files& files, const std::string& path) {
  return !Contains(path, "?") || ReadProfileText(files, path).has_value();
}

ImportTarget TargetOf(MainForm& form, Environment& environment) {
  return {environment.files, environment.settings, form.gearTable, form.fight, form.characters};
}

/// Whether the combatant's character file could be read.
bool WasRead(const MainForm& form, Slot slot) {
  const CharacterEntry* entry = form.characters.Of(form.fight.Players[slot]);
  return entry != nullptr && !entry->unread;
}

/// A load that is under way, with the sheets that it has imported so far.
class Restoring : public StateFileHost {
 public:
  Restoring(MainForm& form, Environment& environment, int combatants)
      : form_(form),
        environment_(environment),
        progress_(environment.prompts, "Restoring the fight", combatants) {}

  bool ImportCharacter(const std::string& fileName) override {
    progress_.Step();
    return WasRead(form_, LoadCharacterFile(TargetOf(form_, environment_), sheets_, fileName));
  }

  std::string ShowNote(const std::string& noteFileName) override {
    form_.txtNotes = ReadNote(environment_.files, noteFileName);
    return form_.txtNotes;
  }

 private:
  MainForm& form_;
  Environment& environment_;
  Progress progress_;
  ImportedSheets sheets_;
};

}  // namespace

void FightFiles::ImportCharacters(const std::vector<std::string>& names) {
  Integer imported;
  std::vector<std::string> unread;
  const auto finish = [&] {
    form_.GridX.RefreshGrid();
    form_.statusMessage = Counted(imported, "character") + " imported";
    if (!unread.empty()) form_.statusMessage += "; could not be read: " + Joined(unread);
  };
  try {
    Progress progress(environment_.prompts, "Importing characters", static_cast<int>(names.size()));
    for (const std::string& name : names) {
      progress.Step();
      if (!ImportOne(name)) unread.push_back(name);
      imported += 1;
    }
  } catch (const RuntimeError&) {
    // Those before the one that failed are in the fight and must be seen there.
    finish();
    throw;
  }
  if (imported > 0) finish();
}

bool FightFiles::ImportOne(const std::string& name) {
  form_.StoreSheet();
  const Slot slot = LoadCharacterFile(TargetOf(form_, environment_), name);
  form_.XFerPC(slot);
  form_.ShowDerivedArmour();
  return WasRead(form_, slot);
}

void FightFiles::OpenFiles(const std::vector<std::string>& paths) {
  const SortedFiles files = Sorted(paths);
  if (files.states.size() > 1) {
    environment_.prompts.Message("Only one state file can be opened at a time");
    return;
  }
  if (!files.states.empty() && !LoadState(files.states.front())) return;
  std::vector<std::string> names;
  std::vector<std::string> unclear;
  for (const std::string& path : files.characters) {
    const std::string name = NameIn(environment_.settings.NG3Dir, path);
    (NamesAFile(environment_.files, path) ? names : unclear).push_back(name);
  }
  ImportCharacters(names);
  if (!unclear.empty()) {
    form_.statusMessage = "Not told from other files by its name: " + Joined(unclear);
  }
  if (!files.others.empty()) {
    form_.statusMessage = "Not a character or state file: " + files.others.front();
  }
}

bool FightFiles::SaveState() {
  const auto path = environment_.prompts.SaveFile(
      {"Save State File", kStateFilter, environment_.location.directory, "ngt"});
  if (!path || path->empty()) return false;
  form_.StoreSheet();
  form_.fight.Recount();
  environment_.files.Replace(*path, StateFileText(form_.fight));
  onDisk_ = {form_.fight, *path};
  form_.statusMessage = "Fight saved";
  const std::string leftOut = Joined(NamesLeftOut(form_.fight));
  if (!leftOut.empty()) {
    form_.statusMessage +=
        ". Not saved (beyond slot " + PlainText(form_.fight.NumPlayers) + "): " + leftOut;
  }
  // The file names the note files and holds no notes.
  const std::string unfiled = Joined(NamesWithUnfiledNotes(form_.fight));
  if (!unfiled.empty()) {
    form_.statusMessage += ". Notes not saved (no note file): " + unfiled;
  }
  return true;
}

void FightFiles::LoadState() {
  const auto path = environment_.prompts.OpenFile(
      {"Open State File", kStateFilter, environment_.location.directory, "ngt"});
  if (path && !path->empty()) LoadState(*path);
}

bool FightFiles::LoadState(const std::string& path) {
  const ProfileFile file(environment_.files.ReadWhole(path));
  if (!IsStateFile(file)) {
    environment_.prompts.Message("Not a state file\r\n" + path);
    return false;
  }
  form_.StoreSheet();
  form_.ngdr.EndTest();
  std::vector<std::string> withoutFile;
  try {
    Restoring host(form_, environment_, CombatantsIn(file));
    withoutFile = ReadStateFile(file, form_.fight, host);
  } catch (const RuntimeError&) {
    // Nothing of the sheet shown may be written over what was read.
    form_.ShowRestored(form_.fight.CurrentPCpointer);
    throw;
  }
  form_.ShowRestored(Slot::From(form_.fight.CountPlayers()));
  const OrderPosition turn = form_.fight.LTurn;
  form_.sequencer.Reset();
  form_.sequencer.TakeUpTurn(turn);
  onDisk_ = {form_.fight, path};
  form_.statusMessage =
      withoutFile.empty() ? "Fight of " + Counted(form_.fight.NumPlayers, "combatant") + " restored"
                          : "Restored without the character files of: " + Joined(withoutFile);
  return true;
}

bool FightFiles::Changed() const {
  return WithoutLooks(form_.fight) != WithoutLooks(onDisk_.fight);
}

void FightFiles::NameNoteFile(const std::string& path) {
  form_.txtNoteFileName = path;
  form_.fight.Players[form_.fight.CurrentPCpointer].NoteFileName = path;
}

void FightFiles::LoadNote() {
  if (form_.fight.CurrentPCpointer == 0) return;
  if (form_.txtNoteFileName.empty()) {
    const auto path = environment_.prompts.OpenFile(
        {"Open Note File", kNoteFilter, environment_.location.directory, "txt"});
    if (!path) throw RuntimeError(ErrorNumber::Cancelled);
    NameNoteFile(*path);
  }
  ReadInto(form_.txtNoteFileName);
}

void FightFiles::ReadInto(const std::string& path) {
  form_.txtNotes_Change(ReadNote(environment_.files, path));
}

void FightFiles::SaveNote() {
  if (form_.fight.CurrentPCpointer == 0) return;
  if (form_.txtNoteFileName.empty()) {
    const auto path = environment_.prompts.SaveFile(
        {"Save Note File", kNoteFilter, environment_.location.directory, "txt"});
    if (!path || path->empty()) return;
    NameNoteFile(*path);
  }
  WriteNote(environment_.files, form_.txtNoteFileName, form_.txtNotes);
  form_.statusMessage = "Note saved";
}

}  // namespace ng
