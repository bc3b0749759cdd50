#include "app/help_topics.h"

#include <span>
#include <stdexcept>
#include <string_view>

#include "app/commands.h"
#include "app/keys.h"

namespace ng {
namespace {

using Kind = HelpLine::Kind;

/// A row of a topic in words: a term and what is to be said of it, a text where the term is empty,
/// a heading where the text is empty. A command's name in braces stands for what its menu calls it,
/// with its key.
struct Words {
  const char* term;
  const char* text;
};

constexpr Words kTurn[] = {
    {"",
     "A combat turn has up to ten passes. In each pass everybody with initiative left acts once, "
     "the highest score first. Each {mnuTNext} gives one combatant its action. Green has the turn, "
     "yellow is delayed, red is inactive."},
    {"Step by step", ""},
    {"1. Bring in",
     "{mnuFileOpen} imports characters. {mnuPMult} copies the one whose sheet is shown."},
    {"2. Begin",
     "{mnuTReroll} rolls everybody's initiative and sorts the table. To roll by hand, type the "
     "numbers into the Roll column and take {mnuTReset} instead. Both refill the combat, spell and "
     "astral pools and end all delays."},
    {"3. Next",
     "{mnuTNext} turns the row green and shows the sheet of the first in the order who has not "
     "acted in this pass and has more than 0 left."},
    {"4. Act",
     "Firing, Unarmed, delaying, grenades and rockets need the turn. The rounds that count for "
     "recoil start from 0 with each action."},
    {"5. Defend",
     "Click the row of whoever is attacked and press Body / Dodge. It is refused for the one who "
     "has the turn. A click shows the sheet and leaves the turn where it is."},
    {"6. Wound",
     "Click the row of whoever was hit and press L, M, S or D: 1, 3, 6 or 10 boxes. The wound "
     "modifier comes off the score at once, and the table is sorted anew. The column PM tells stun "
     "and physical damage by these letters. Ten boxes on either track make the score 0."},
    {"7. Next pass",
     "When nobody is left, all scores count 10 less and the next pass opens by itself. A score of "
     "23 acts in passes 1, 2 and 3."},
    {"8. End",
     "\"End of turn!\" follows the tenth pass. From there {mnuTNext} gives nobody a turn: begin "
     "the next one as in step 2."},
    {"When something comes between", ""},
    {"Delay",
     "{mnuPDelay} in the combatant's own turn puts its action off. To let it act at once, show its "
     "sheet and toggle again; the one it interrupts keeps its action. When Next comes to "
     "it in the next pass (\"Possible loss of turn.\") it may act; the Next after that lets it act "
     "in this pass if it has score left, and passes it over if not."},
    {"Inactive",
     "{mnuPInactive} takes somebody out with a roll of 0, or back in with a fresh roll from the "
     "next pass on. The row moves at the next sorting."},
    {"Grenade",
     "{mnuPGrenade} in the thrower's turn. It goes off when Next comes by the thrower in the next "
     "combat turn."},
    {"Rocket",
     "{mnuPRocket} in the turn of who fires it. It goes off at the end of this combat turn; a turn "
     "begun before that forgets it. {mnuTClear} takes grenades and rockets back."},
    {"Looking back",
     "{mnuTPrev} goes back over the steps of this turn, to look and not to undo. {mnuTNext} comes "
     "forward over them again before it moves the fight on."}};

constexpr Words kTest[] = {
    {"",
     "Firing, Unarmed and Body / Dodge open the dice roller with the test filled in. {ShowRoller} "
     "opens it for any other test."},
    {"Target number",
     "A base and the modifiers. Short, medium, long and extreme range have base 4, 5, 6 and 9. "
     "Click a caption for its next step; a right click sets it back. What you type over the target "
     "number stands until something that it is made of changes."},
    {"Wounds",
     "Already in the modifiers, but for Body / Dodge: click Wounds there for a dodge, and leave it "
     "at 0 to resist damage."},
    {"Combat pool",
     "Use and Back move dice between the pool and the roll. What is left goes back to the "
     "combatant."},
    {"Roll",
     "A 6 is rolled again and added. Each die at or above the target is a success. If all dice "
     "show 1: \"Rule of One!\""},
    {"Last successes", "The attacker's successes stay, for the defender to roll against."}};

/// Keys that belong to no button.
constexpr Words kGridKeys[] = {
    {"Esc", "To the table of combatants"},
    {"Arrows, PgUp, PgDown, Home, End", "Move the cell, without showing a sheet"},
    {"Ctrl+Enter", "Show the sheet of the row with the cell"},
    {"Letters and digits", "Type into the cell; Backspace or . empties it"},
    {"Enter", "To the roll of the next row"},
    {"Alt+1 ... Alt+4", "Open the page: Combat, Gear, Person, Notes"},
    {"Up, Down in a pool's box", "Add or take a die"},
    {"Alt and a letter", "Press the button or go to the box whose letter is underlined"}};

constexpr Words kRollerPlainKeys[] = {
    {"Enter", "Roll the test"},
    {"Alt+1 ... Alt+4", "Begin a test: Ranged, Melee, Body / Dodge, General"},
    {"Up, Down in a box", "Add or take a die"},
    {"Space, Del on a caption", "The next step, or back to 0"},
    {"Alt+0", "Set all modifiers of the page to 0"}};

constexpr Words kSideKeys[] = {{"Esc", "Close the window, the dice roller too"},
                               {"Ctrl+F", "In this help: to the box that finds"}};

constexpr Words kFiles[] = {
    {"",
     "{mnuViewOptions} sets the two directories, NG3Dir and DatDir. A file that is replaced is "
     "never left half written."},
    {"Characters (*.ng3)",
     "Written by Forgekit, in NG3Dir. {mnuFileOpen} reads them; the tracker never changes them."},
    {"Tables (*.dat)", "Forgekit's tables of gear, ranges, skills and visibility, in DatDir."},
    {"Fights (*.ngt)",
     "{mnuFileSave} writes the combatants with their wounds, pools and weapons. {mnuFileLoad} "
     "reads the character files again, so they must still be there, and begins the combat turn "
     "anew. Take {mnuFileNew} before. Grenades and rockets in the air are not kept."},
    {"Notes",
     "One file for each combatant's note, saved and loaded on the Notes page. A fight keeps only "
     "the file's name: save the note first."},
    {"ngtracker.txt",
     "The log, beside the program (once installed, in ~/.local/share/ngtracker): your notes, "
     "reloads, grenades and rockets of every evening. "
     "{mnuViewLog} shows it; {mnuViewGM} adds to it."},
    {"info.dat", "The reference that {mnuViewReference} looks up, where the log is or in DatDir."},
    {"tracker.ini",
     "The settings, where the log is. A path given when the program is started names another "
     "file to read instead."}};

/// A text of a menu without its mnemonic and the dots of one that asks further.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != '&' && c != '.') plain += c;
  }
  return plain;
}

std::string CommandWithKey(std::string_view name) {
  const Command* command = FindCommand(name);
  if (command == nullptr) throw std::invalid_argument("no command is named " + std::string(name));
  return Plain(command->text) + " (" + command->shortcut + ")";
}

/// The text with the commands' own words for their names in braces.
std::string WithCommands(std::string_view text) {
  std::string result;
  for (std::size_t open = text.find('{'); open != std::string_view::npos; open = text.find('{')) {
    const std::size_t close = text.find('}', open);
    result += text.substr(0, open);
    result += CommandWithKey(text.substr(open + 1, close - open - 1));
    text.remove_prefix(close + 1);
  }
  return result += text;
}

HelpLine LineOf(const Words& words) {
  if (*words.text == '\0') return {Kind::Heading, {words.term}};
  std::string text = WithCommands(words.text);
  if (*words.term == '\0') return {Kind::Text, {std::move(text)}};
  return {Kind::Row, {words.term, std::move(text)}};
}

void Add(HelpTopic& topic, std::span<const Words> rows) {
  for (const Words& words : rows) topic.lines.push_back(LineOf(words));
}

void Add(HelpTopic& topic, std::span<const ButtonKey> keys) {
  for (const ButtonKey& row : keys) topic.lines.push_back({Kind::Row, {row.key, row.words}});
}

void AddHeading(HelpTopic& topic, const char* heading) {
  topic.lines.push_back({Kind::Heading, {heading}});
}

HelpTopic Told(const char* title, std::span<const Words> rows) {
  HelpTopic topic{title, {}};
  Add(topic, rows);
  return topic;
}

HelpTopic CommandTopic() {
  HelpTopic topic{"Commands", {{Kind::Titles, {"Command", "Menu", "Key", "What it does"}}}};
  for (const MenuTitle& menu : kMenuTitles) {
    for (const Command& command : Commands()) {
      if (command.menu != menu.menu) continue;
      topic.lines.push_back(
          {Kind::Row, {Plain(command.text), Plain(menu.text), command.shortcut, command.tip}});
    }
  }
  return topic;
}

HelpTopic KeyTopic() {
  HelpTopic topic{"Keys", {{Kind::Text, {"The keys of the menus stand under Commands."}}}};
  AddHeading(topic, "The main window, on every page");
  Add(topic, MainKeys());
  AddHeading(topic, "Table and pages");
  Add(topic, kGridKeys);
  AddHeading(topic, "Dice roller");
  Add(topic, RollerKeys());
  Add(topic, kRollerPlainKeys);
  AddHeading(topic, "Other windows");
  Add(topic, kSideKeys);
  return topic;
}

}  // namespace

std::vector<HelpTopic> HelpTopics() {
  return {Told("The flow of a combat turn", kTurn), Told("Rolling a test", kTest), CommandTopic(),
          KeyTopic(), Told("Files", kFiles)};
}

}  // namespace ng
