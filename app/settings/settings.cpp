#include "app/settings/settings.h"

#include "base/number_text.h"

namespace ng {
namespace {

constexpr const char* kFile = "tracker.ini";
constexpr const char* kSection = "NGtracker";
constexpr const char* kDefaultDatDir = "c:\\Program Files\\Forgekit\\DATA";

std::string ReadSetting(ProfileReader& profile, const char* key) {
  return profile.ReadINI(kFile, kSection, key);
}

/// A switch is on when its text is anything but "0"; a missing one counts as "0".
Boolean ReadSwitch(ProfileReader& profile, const char* key) {
  const std::string text = ReadSetting(profile, key);
  return {!text.empty() && text != "0"};
}

int CheckBoxState(Boolean flag) { return flag ? 1 : 0; }

}  // namespace

std::string ReadCharacterDirectory(ProfileReader& profile) {
  return ReadSetting(profile, "NG3Dir");
}

void ReadSettings(ProfileReader& profile, Settings& settings) {
  settings.DatDir = ReadSetting(profile, "DatDir");
  if (settings.DatDir.empty()) settings.DatDir = kDefaultDatDir;
  settings.CloneInit = ReadSwitch(profile, "CloneInit");
  settings.DisableNGDR = ReadSwitch(profile, "DisableNGDR");
}

std::string SettingsText(const Settings& settings) {
  return "[NGtracker]\r\nNG3Dir=" + settings.NG3Dir + "\r\nDatDir=" + settings.DatDir +
         "\r\nCloneInit=" + PrintForm(CheckBoxState(settings.CloneInit)) +
         "\r\nDisableNGDR=" + PrintForm(CheckBoxState(settings.DisableNGDR)) + "\r\n";
}

void WriteSettings(Files& files, const ProgramLocation& location, const Settings& settings) {
  files.Replace(location.directory + "\\" + kFile, SettingsText(settings));
}

}  // namespace ng
