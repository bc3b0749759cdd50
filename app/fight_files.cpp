#include "app/fight_files.h"

#include "app/main_form.h"
#include "base/number_text.h"
#include "notes/note_file.h"

namespace ng {
namespace {

constexpr const char* kStateFilter = "State File (*.ngt)|*.ngt";
constexpr const char* kNoteFilter = "Text Files (*.txt)|*.txt";

/// What a look at somebody else changes is no change of the fight.
Fight WithoutLooks(const Fight& fight) {
  Fight plain = fight;
  plain.CurrentPCpointer = 0;
  for (PlayerRecord& record : plain.Players) {
    record.lastTab = 0;
    // Worked out anew whenever the combatant is displayed.
    record.URCPrim.clear();
    record.URCSec.clear();
  }
  return plain;
}

}  // namespace

bool FightFiles::SaveState() {
  const auto path = environment_.prompts.SaveFile(
      {"Save State File", kStateFilter, environment_.location.directory, "ngt"});
  if (!path || path->empty()) return false;
  form_.StoreSheet();
  environment_.files.Replace(*path, StateFileText(form_.fight));
  saved_ = form_.fight;
  form_.statusMessage = "Fight saved";
  std::string names;
  for (const std::string& name : NamesLeftOut(form_.fight)) {
    names += (names.empty() ? "" : ", ") + name;
  }
  if (!names.empty()) {
    form_.statusMessage +=
        "; beyond slot " + PlainText(form_.fight.NumPlayers) + " and so not in the file: " + names;
  }
  return true;
}

void FightFiles::LoadState() {
  const auto path = environment_.prompts.OpenFile(
      {"Open State File", kStateFilter, environment_.location.directory, "ngt"});
  if (path && !path->empty()) LoadState(*path);
}

void FightFiles::LoadState(const std::string& path) {
  const ProfileFile file(environment_.files.ReadWhole(path));
  form_.StoreSheet();
  sheets_ = {};
  try {
    ReadStateFile(file, form_.fight, *this);
  } catch (const RuntimeError&) {
    // Nothing of the sheet shown may be written over what was read.
    form_.ShowRestored(form_.fight.CurrentPCpointer);
    throw;
  }
  form_.ShowRestored(form_.fight.CountPlayers());
  const OrderPosition turn = form_.fight.LTurn;
  form_.sequencer.Reset();
  form_.sequencer.TakeUpTurn(turn);
  saved_ = form_.fight;
  form_.statusMessage = "Fight of " + PlainText(form_.fight.NumPlayers) + " combatants restored";
}

bool FightFiles::Changed() const { return WithoutLooks(form_.fight) != WithoutLooks(saved_); }

void FightFiles::ImportCharacter(const std::string& fileName) {
  const ImportTarget target{environment_.files, environment_.settings, form_.gearTable, form_.fight,
                            form_.characters};
  LoadCharacterFile(target, sheets_, fileName);
}

std::string FightFiles::ShowNote(const std::string& noteFileName) {
  form_.txtNotes = ReadNote(environment_.files, noteFileName);
  return form_.txtNotes;
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
