#include <bit>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "base/text.h"
#include "fakes/fakes.h"
#include "roller/modifier_board.h"
#include "roller/visability_table.h"

namespace ng {
namespace {

TEST(Visability, LoadsUntilItsEndOrAnError) {
  const std::string full = "Error loading : visability.dat";
  std::string ten = "! comment\r\n\r\n";
  for (int row = 0; row < 10; ++row) ten += "Row|0|1|2|3|4\r\n! another\r\n";
  const std::tuple<std::string, std::size_t, std::string> cases[] = {
      {ten, 10, ""},
      {ten + "11|0|1|2|3|4", 11, full},
      {ten + "11|0|1|2|3|4\n12|0|1|2|3|4", 11, full},
      {"Fog|1|2|3|4|5|spare\nMist|1|2|3|4\nRain|1|2|3|4|5", 1,
       "Subscript out of range\r\nD:\\DATA\\visability.dat"},
      {"Fog|+1|-2| 3 |4|5\nMist|1|2|3|4|x\n", 1, "Type mismatch\r\nD:\\DATA\\visability.dat"}};
  for (const auto& [text, count, message] : cases) {
    FakeFiles files;
    files.Put("D:\\DATA\\visability.dat", text);
    const LoadedVisability loaded = LoadVisability(files, "D:\\DATA");
    EXPECT_EQ(loaded.table.Names().size(), count) << text;
    EXPECT_EQ(loaded.message, message) << text;
  }
}

TEST(Visability, TheBestEyesPickTheColumn) {
  for (unsigned eyes = 0; eyes < 16; ++eyes) {
    PlayerRecord combatant;
    combatant.augLowLight = (eyes & 1U) != 0;
    combatant.natLowLight = (eyes & 2U) != 0;
    combatant.augThermographic = (eyes & 4U) != 0;
    combatant.natThermographic = (eyes & 8U) != 0;
    EXPECT_EQ(VisibilityModifier({"Dusk", {0, -1, -2, -3, -4}}, combatant),
              std::to_string(-static_cast<int>(std::bit_width(eyes))));
    EXPECT_EQ(VisibilityModifier({"Thermal Smoke", {1, 2, 3, 4, 5}}, combatant),
              (eyes & 5U) == 5 ? "+8" : "+4");
  }
}

TEST(ModifierBoard, CaptionsStepTheirBoxes) {
  // Caption, box, opposite box, and what the box shows after each click.
  const std::string cases =
      "Label3 11 0 +4 0 +4;Label8 14 0 +4 0 +4;Label18 22 0 -1 0;Label19 23 0 -2 0;"
      "Label7 1 0 +4 +8 0 +4;lblTarRun 4 0 +2 -1 0 +2;Label10 16 15 +1 +2 +3 4 4;"
      "Label9 15 16 -1 -2 -3 -4 -4;Label15 20 19 +1 +2 +3 4 4;Label11 19 20 -1 -2 -3 -4 -4;"
      "Label4 10 0 -1 -2 -3 -4 0 -1;Label5 5 0 +2 +4 +6 +8 0 +2;Label6 3 0 +2 +4 +6 +8 0;"
      "Label16 24 0 +2 +4 +6 +8 0;lblBurstMod 25 0 +1 +2 +3 +4 +5 +6 0;"
      "lblShotgunMod 26 0 +1 +2 +3 +4 +5 +6 0;lblWeaponMod 7 0 -2 0;lblMeleeWounds 18 0 +3 0;"
      "lblBodyWounds 12 0 +3 0;lblGeneralWounds 21 0 +3 0 +3";
  EXPECT_EQ(Captions().size(), Split(cases, ';').size());
  for (const std::string_view line : Split(cases, ';')) {
    const Caption& caption = *FindCaption(Piece(line, ' ', 0));
    const Integer box = LenientInteger(Piece(line, ' ', 1));
    const Integer opposite = LenientInteger(Piece(line, ' ', 2));
    ModifierBoard board;
    for (std::string& text : board.txtRVar) text = "7 or so";
    ModifierBoard expected = board;
    if (opposite != 0) expected.txtRVar[opposite] = "0";
    // What was typed is no step: the first click starts again, but a counter counts on from there,
    // down to 6 or held at its upper limit. The second click sees a 0 as typed.
    const std::string started = opposite == 0 ? "0" : Piece(line, ' ', 3) == "+1" ? "4" : "6";
    for (int click = 2; click == 2 || !Piece(line, ' ', click).empty(); ++click) {
      board.Step(caption, {-2, 3});
      expected.txtRVar[box] = click == 2 ? started : std::string(Piece(line, ' ', click));
      EXPECT_EQ(board.txtRVar, expected.txtRVar) << line << " at " << click;
      if (click == 2) board.txtRVar[box] = "0.0";
    }
  }
}

}  // namespace
}  // namespace ng
