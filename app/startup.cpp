#include "app/startup.h"

namespace ng {

bool Main(Session& session, StartupWindows& windows) {
  Environment& environment = session.environment;
  windows.ShowSplash();
  ProfileReader profile(environment.files, environment.location);
  const std::string directory = ReadCharacterDirectory(profile);
  if (directory.empty()) {
    if (!session.Do({"mnuViewOptions"})) return false;
    profile.Forget();
  }
  // Deliberate: what was picked in the dialog was written to the file and takes effect at the next
  // start; this run goes on with what was read.
  environment.settings.NG3Dir = directory;
  ReadSettings(profile, environment.settings);
  if (!session.Do({"Form_Load"})) return false;
  windows.LoadMain();
  windows.UnloadSplash();
  // The dice roller is hidden, but there for the whole run.
  if (!session.Do({"ngdr.Form_Load"})) return false;
  windows.ShowMain();
  return true;
}

}  // namespace ng
