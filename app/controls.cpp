#include "app/controls.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/session.h"
#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

template <typename Texts>
void VisitTexts(ControlVisitor& visitor, const char* name, const Texts& texts) {
  int index = 0;
  for (const std::string& text : texts) visitor.Text({name, index++}, text);
}

/// The controls of a panel that are bound to fields.
template <class Panel>
void VisitBound(ControlVisitor& visitor, const Panel& panel) {
  for (const BoundControl<Panel>& control : Panel::Bound()) {
    for (int element = 0; element < std::max(control.elements, 1); ++element) {
      const ControlName name{control.name, control.elements > 0 ? element : ControlName::kSingle};
      const BoundValue value = control.shown(panel, static_cast<std::size_t>(element));
      if (const bool* checked = std::get_if<bool>(&value)) {
        visitor.Check(name, *checked);
      } else {
        visitor.Text(name, *std::get<const std::string*>(value));
      }
    }
  }
}

void VisitHeader(const MainForm& form, ControlVisitor& visitor) {
  const HeaderPanel& header = form.header;
  visitor.Text({"lblPhase"}, form.sequencer.lblPhase());
  visitor.Text({"lblName2"}, header.lblName2);
  visitor.Text({"lblNameX"}, header.lblNameX);
  visitor.Text({"lblNameY"}, header.lblNameY);
  visitor.Text({"lblNameZ"}, header.lblNameZ);
  visitor.Text({"lblRace2"}, header.lblRace2);
  visitor.Turn({"lblTurn"}, form.TurnBadge());
  visitor.Text({"txtRRSLT"}, header.txtRRSLT);
  visitor.Text({"lblFRSLT"}, header.lblFRSLT);
  VisitTexts(visitor, "txtInit", header.txtInit);
  VisitTexts(visitor, "txtReac", header.txtReac);
  visitor.Choice({"optInitMode"}, header.optInitMode);
}

void VisitCombatPage(const MainForm& form, ControlVisitor& visitor) {
  const DamagePanel& damage = form.damage;
  visitor.Level({"arPBDamage", 0}, damage.arPBDamage[0].Value());
  visitor.Level({"arPBDamage", 1}, damage.arPBDamage[1].Value());
  visitor.Text({"lblPDam"}, damage.lblPDam);
  visitor.Text({"lblSDam"}, damage.lblSDam);
  visitor.Text({"lblPhysical"}, damage.lblPhysical);
  visitor.Text({"lblStun"}, damage.lblStun);
  visitor.Text({"lblOverDamage"}, damage.lblOverDamage);
  visitor.Text({"lblDamMod"}, damage.lblDamMod);
  VisitBound(visitor, damage);

  const WeaponPanel& weapons = form.weapons;
  visitor.Text({"lblPrimary"}, weapons.lblPrimary);
  visitor.Text({"lblSecondary"}, weapons.lblSecondary);
  VisitTexts(visitor, "lblDamage", weapons.lblDamage);
  VisitTexts(visitor, "lblConceal", weapons.lblConceal);
  VisitTexts(visitor, "lblAmmo", weapons.lblAmmo);
  VisitTexts(visitor, "lblPRng", weapons.lblPRng);
  VisitTexts(visitor, "lblSRng", weapons.lblSRng);
  visitor.Choice({"optRangeSel", 0}, weapons.optRangeSel[0]);
  visitor.Choice({"optRangeSel", 1, static_cast<int>(kRanges)}, weapons.optRangeSel[1]);
  VisitBound(visitor, weapons);
  visitor.Text({"lblWPrim"}, weapons.lblWPrim);
  visitor.Text({"lblWSec"}, weapons.lblWSec);
  visitor.Text({"lblTNMod"}, weapons.lblTNMod);
  visitor.Text({"lblLeft", 0}, form.RoundsLeft(Weapon::Primary));
  visitor.Text({"lblLeft", 1}, form.RoundsLeft(Weapon::Secondary));
}

/// The name and the level of the skill that a weapon is fired with.
void VisitSkill(ControlVisitor& visitor, const char* nameLabel, const char* levelLabel,
                const std::string& line, Integer level) {
  visitor.Text({nameLabel}, std::string(Piece(line, '\t', 0)));
  visitor.Text({levelLabel}, line.empty() ? "" : PlainText(level));
}

void VisitSkillsAndPools(const MainForm& form, ControlVisitor& visitor) {
  const PlayerRecord& record = form.fight.RecordOf(form.fight.CurrentPCpointer);
  VisitSkill(visitor, "lblSkillPrimary", "lblSkillPrimaryLevel", record.SkillPrimaryName,
             record.SkillPrimaryValue);
  VisitSkill(visitor, "lblSkillSecondary", "lblSkillSecondaryLevel", record.SkillSecondaryName,
             record.SkillSecondaryValue);

  VisitBound(visitor, form.pools);
  visitor.List({"lstActive"}, form.sheet.lstActive);
  visitor.Text({"lblSkill"}, form.skillTests.lblSkill);
}

void VisitSheet(const MainForm& form, ControlVisitor& visitor) {
  const SheetPanel& sheet = form.sheet;
  visitor.Text({"lblBAL"}, sheet.lblBAL);
  visitor.Text({"lblIMP"}, sheet.lblIMP);
  visitor.Text({"lblQCKmod"}, sheet.lblQCKmod);
  visitor.Text({"lblCPmod"}, sheet.lblCPmod);
  visitor.Text({"lblLWght"}, sheet.lblLWght);
  visitor.Text({"lblWeight"}, sheet.lblWeight);
  visitor.Text({"lblWeight2"}, sheet.lblWeight2);
  visitor.Text({"grpWeapon"}, sheet.grpWeapon);
  visitor.Text({"grpArmor"}, sheet.grpArmor);
  visitor.Text({"grpGear"}, sheet.grpGear);
  visitor.CheckList({"lstWeapon"}, sheet.lstWeapon);
  visitor.CheckList({"lstArmor"}, sheet.lstArmor);
  visitor.CheckList({"lstGear"}, sheet.lstGear);
  VisitTexts(visitor, "lblAttr", sheet.lblAttr);
  VisitTexts(visitor, "lblPool", sheet.lblPool);
  visitor.Text({"lblrace"}, sheet.lblrace);
  visitor.Text({"lblRunMult"}, sheet.lblRunMult);
  visitor.Text({"lblMageType"}, sheet.lblMageType);
  visitor.Text({"lblAttacks"}, sheet.lblAttacks);
  visitor.List({"lstRace"}, sheet.lstRace);
  visitor.List({"lstAugments"}, sheet.lstAugments);
  visitor.List({"lstMagic"}, sheet.lstMagic);
  visitor.List({"lstEdges"}, sheet.lstEdges);
  visitor.List({"lstOther"}, sheet.lstOther);
  visitor.List({"lstContacts"}, sheet.lstContacts);
  visitor.Text({"txtNotes"}, form.txtNotes);
  visitor.Text({"txtNoteFileName"}, form.txtNoteFileName);
}

/// The lines selected in the lists of the pages.
void VisitSelections(const InfoForm& info, ControlVisitor& visitor) {
  static constexpr std::pair<const char*, SheetList> kLists[] = {
      {"lstWeapon", SheetList::Weapon},     {"lstArmor", SheetList::Armor},
      {"lstGear", SheetList::Gear},         {"lstActive", SheetList::Active},
      {"lstOther", SheetList::Other},       {"lstMagic", SheetList::Magic},
      {"lstEdges", SheetList::Edges},       {"lstAugments", SheetList::Augments},
      {"lstContacts", SheetList::Contacts}, {"lstRace", SheetList::Race}};
  static_assert(std::size(kLists) == kSheetLists);
  for (const auto& [name, list] : kLists) visitor.Choice({name}, info.Marked(list));
}

void VisitStatusBar(const Session& session, ControlVisitor& visitor) {
  const MainForm& form = session.main;
  const int combatants = form.GridX.RowCount();
  const Integer pass = form.fight.PhaseCnt;
  visitor.Text({"lblStatus"}, form.statusMessage);
  visitor.Text({"lblLogFailure"}, form.gmLog.lblLogFailure());
  visitor.Text({"lblJournal"}, form.lblJournal);
  visitor.Text({"mnuEditUndo"}, session.history.mnuEditUndo);
  visitor.Text({"mnuEditRedo"}, session.history.mnuEditRedo);
  visitor.Text({"lblCombatants"},
               PlainText(combatants) + (combatants == 1 ? " combatant" : " combatants"));
  visitor.Text({"lblCombatTurn"}, "Combat turn " + PlainText(form.fight.RoundCount));
  visitor.Text({"lblPass"}, pass > kLastPass ? "Turn over" : "Pass " + PlainText(pass));
  visitor.Text({"lblRoller"},
               session.environment.settings.DisableNGDR ? "Roller off" : "Roller on");
  visitor.Check({"statusBar"}, form.statusBarVisible);
}

/// Who is displayed, and whose test and dice they are when they are somebody else's.
std::string WhoRolls(const MainForm& form) {
  const auto nameOf = [&form](Slot slot) -> const std::string& {
    return form.fight.RecordOf(slot).Name;
  };
  const Slot shown = form.fight.CurrentPCpointer;
  const Slot tested = form.ngdr.TestOwner();
  const Slot paying = form.ngdr.PoolOwner();
  std::string name = nameOf(shown);
  // Whoever has been removed since has no name.
  if (tested != shown && !nameOf(tested).empty()) name += ", test of " + nameOf(tested);
  if (paying != shown && paying != tested && !nameOf(paying).empty()) {
    name += ", pool of " + nameOf(paying);
  }
  return name;
}

}  // namespace

void VisitRollerControls(const Session& session, ControlVisitor& visitor) {
  const MainForm& form = session.main;
  const DiceRoller& roller = form.ngdr;
  const PlayerRecord& record = form.fight.RecordOf(roller.Tester());
  visitor.Text({"lblName"}, WhoRolls(form));
  visitor.Text({"lblSkill"}, std::string(Piece(roller.lblSkill, '\t', 0)));
  visitor.Text({"lblDamageCode"}, roller.DamageCode);
  visitor.Text({"lblBulletCount"}, PlainText(roller.BulletCount));
  visitor.Text({"lblBody"}, roller.BodyOfTest());
  visitor.Text({"lblArmour"}, PlainText(record.ArmorBAL) + " / " + PlainText(record.ArmorIMP));
  visitor.Choice({"tabTest"}, static_cast<int>(roller.tabTest));
  visitor.Text({"lblBase"}, roller.BaseCaption());
  visitor.Text({"txtRangeTargetNumber"}, roller.txtRangeTargetNumber);
  visitor.Text({"txtMeleeNumber"}, roller.txtMeleeNumber);
  visitor.List({"cmbVisability"}, roller.visibilityNames);
  visitor.Choice({"cmbVisability"}, roller.cmbVisability.index);
  visitor.List({"cmbVisability2"}, roller.visibilityNames);
  visitor.Choice({"cmbVisability2"}, roller.cmbVisability2.index);
  visitor.Choice({"cmbAttackerMove"}, roller.cmbAttackerMove);
  for (int box = 1; box <= roller.board.txtRVar.kLast; ++box) {
    visitor.Text({"txtRVar", box}, roller.board.txtRVar[box]);
  }
  visitor.Text({"lblSum"}, roller.lblSum);
  visitor.Text({"txtNumDice"}, roller.txtNumDice);
  visitor.Text({"txtTargetNum"}, roller.txtTargetNum);
  visitor.Text({"lblOdds"}, roller.OddsLine());
  visitor.Text({"txtCPx"}, roller.txtCPx);
  visitor.Text({"txtSuccess"}, roller.txtSuccess);
  visitor.Text({"txtHighNumber"}, roller.txtHighNumber);
  visitor.Text({"txtLastSuccesses"}, roller.txtLastSuccesses);
  visitor.Text({"txtResult"}, roller.txtResult);
  visitor.Check({"lblRuleOfOne"}, roller.lblRuleOfOne);
}

void VisitControls(const Session& session, ControlVisitor& visitor) {
  const MainForm& form = session.main;
  visitor.Grid({"GridX"}, form.GridX, form.ShownRow());
  VisitHeader(form, visitor);
  VisitCombatPage(form, visitor);
  VisitSkillsAndPools(form, visitor);
  VisitSheet(form, visitor);
  visitor.Choice({"tabMain"}, form.tabMain);
  visitor.Check({"mnuPDelay"}, form.actions.delayChecked);
  visitor.Check({"mnuPInactive"}, form.actions.inactiveChecked);
  visitor.Check({"mnuViewStatusBar"}, form.statusBarVisible);
  visitor.Check({"mnuViewDark"}, form.darkColours);
  VisitSelections(form.itemInfo, visitor);
  VisitStatusBar(session, visitor);
}

}  // namespace ng
