#include "app/help_form.h"

#include <gtest/gtest.h>

#include "app/commands.h"

namespace ng {
namespace {

TEST(Help, TheDocumentNamesTheKeysThatTheCommandsHave) {
  const std::string_view document = kRulesText;
  int named = 0;
  for (const Command& command : Commands()) {
    if (command.menu == Menu::None) continue;
    const std::string words = PlainWords(command.text) + " (";
    for (std::size_t at = document.find(words); at != std::string_view::npos;
         at = document.find(words, at + 1), ++named) {
      const std::string key = std::string(command.shortcut) + ")";
      EXPECT_EQ(document.substr(at + words.size(), key.size()), key) << words;
    }
  }
  EXPECT_GE(named, 18);
}

TEST(Help, OpensWhereItIsAskedForAndFindsWhatItIsAskedFor) {
  HelpForm help;
  help.Form_Load("");
  EXPECT_EQ(help.lstTopics.front(), "A combat turn, step by step");
  EXPECT_EQ(help.lstTopics.back(), "Commands");
  EXPECT_EQ(help.lstTopicsIndex, 0);
  for (const auto& [window, title] : {std::pair{"frmGM", "Files"}, {"ngdr", "Rolling a test"}}) {
    help.Form_Load(window);
    EXPECT_TRUE(help.txtTopic.starts_with(std::string("## ") + title + "\n\n")) << title;
    EXPECT_EQ(help.lstTopics.at(static_cast<std::size_t>(help.lstTopicsIndex)), title);
  }

  // What is looked for, and all that is left of the help: in a line that goes on below, with marks
  // of Markdown in between, in tables of the document and of the program.
  const std::pair<const char*, const char*> cases[] = {
      {"UNLESS the last shot was a burst",
       "## Shooting\n- One round gives none. Two or three give one less, unless the last shot was "
       "a "
       "burst."},
      {"range; the status bar says",
       "## Shooting\n\nSelect a weapon in the list and ready it as primary or secondary: damage, "
       "magazine and ranges come with it. Then select a skill and press Primary or Secondary below "
       "the skills. **Without a firing skill the base number is 4, whatever the range**; the "
       "status "
       "bar says so when it happens."},
      {"backspace",
       "## Keys\n\n### Table and pages\n\n| Key | What it does |\n|---|---|\n"
       "| Letters and digits | Type into the cell; Backspace or . empties it |"},
      {"Stun damage: clear",
       "## Keys\n\n### The main window, on every page\n\n| Key | What it does |\n|---|---|\n"
       "| Ctrl+9 | Stun damage: clear all |"},
      {"reset to TOP | turn",
       "## Commands\n\n| Command | Menu | Key | What it does |\n|---|---|---|---|\n| Reset to top "
       "| Turn | Ctrl+T | Begin a combat turn with the initiative as it is |"}};
  for (const auto& [text, markdown] : cases) {
    help.txtFilter_Change(text);
    EXPECT_EQ(help.txtTopic, markdown);
    EXPECT_EQ(help.lstTopics.size(), 1U) << text;
  }
  help.txtFilter_Change("no such words");
  EXPECT_EQ(help.lstTopicsIndex, -1);
  EXPECT_EQ(help.txtTopic, "No help found.");
  help.txtFilter_Change("");
  EXPECT_TRUE(help.txtTopic.starts_with("## Rolling a test"));
}

}  // namespace
}  // namespace ng
