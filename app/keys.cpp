#include "app/keys.h"

#include <algorithm>

namespace ng {
namespace {

constexpr ButtonKey kMainKeys[] = {
    {"Ctrl+1", "cmdLDam_0", "Physical damage: a Light wound, 1 box"},
    {"Ctrl+2", "cmdMDam_0", "Physical damage: a Moderate wound, 3 boxes"},
    {"Ctrl+3", "cmdSDam_0", "Physical damage: a Serious wound, 6 boxes"},
    {"Ctrl+4", "cmdDDam_0", "Physical damage: a Deadly wound, 10 boxes"},
    {"Ctrl+0", "cmdDamZero_0", "Physical damage: clear all"},
    {"Ctrl+5", "cmdLDam_1", "Stun damage: a Light wound, 1 box"},
    {"Ctrl+6", "cmdMDam_1", "Stun damage: a Moderate wound, 3 boxes"},
    {"Ctrl+7", "cmdSDam_1", "Stun damage: a Serious wound, 6 boxes"},
    {"Ctrl+8", "cmdDDam_1", "Stun damage: a Deadly wound, 10 boxes"},
    {"Ctrl+9", "cmdDamZero_1", "Stun damage: clear all"},
    {"Ctrl+Up", "cmdIncrease_0", "Physical damage: one box more"},
    {"Ctrl+Down", "cmdReduce_0", "Physical damage: one box less"},
    {"Ctrl+Shift+Up", "cmdIncrease_1", "Stun damage: one box more"},
    {"Ctrl+Shift+Down", "cmdReduce_1", "Stun damage: one box less"},
    {"F2", "cmdShots1_0", "Primary weapon: fire one round"},
    {"F3", "cmdShots3_0", "Primary weapon: fire three rounds"},
    {"F4", "cmdShotsFA_0", "Primary weapon: full auto, asks for the rounds"},
    {"F6", "cmdShotsZ_0", "Primary weapon: reload"},
    {"Shift+F2", "cmdShots1_1", "Secondary weapon: fire one round"},
    {"Shift+F3", "cmdShots3_1", "Secondary weapon: fire three rounds"},
    {"Shift+F4", "cmdShotsFA_1", "Secondary weapon: full auto, asks for the rounds"},
    {"Shift+F6", "cmdShotsZ_1", "Secondary weapon: reload"},
    {"Ctrl+Y", "Redo", "Do again what was taken back"},
    {"Alt+Left", "cmdCPnegative", "Combat pool: take a die"},
    {"Alt+Right", "cmdCPplus", "Combat pool: add a die"}};

constexpr ButtonKey kRollerKeys[] = {{"Ctrl+R", "Roll", "Roll the test"},
                                     {"Ctrl+D", "NumDice", "To the number of dice"},
                                     {"Ctrl+T", "TargNum", "To the target number"}};

}  // namespace

std::span<const ButtonKey> MainKeys() { return kMainKeys; }

std::span<const ButtonKey> RollerKeys() { return kRollerKeys; }

const ButtonKey& RollerKey(std::string_view entry) {
  return *std::ranges::find(kRollerKeys, entry, &ButtonKey::button);
}

}  // namespace ng
