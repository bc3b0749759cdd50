#include "app/startup.h"

namespace ng {

void Main(Session& session, StartupWindows& windows) {
  Environment& environment = session.environment;
  windows.ShowSplash();
  ProfileReader profile(environment.files, environment.location);
  const std::string directory = ReadCharacterDirectory(profile);
  if (directory.empty()) {
    session.main.mnuViewOptions();
    profile.Forget();
  }
  // What was picked in the dialog stands in the file and counts from the next start on; this run
  // goes on with what was read. That is deliberate.
  environment.settings.NG3Dir = directory;
  ReadSettings(profile, environment.settings);
  session.main.Form_Load();
  windows.LoadMain();
  windows.UnloadSplash();
  // The dice roller is hidden, but there for the whole run.
  session.main.ngdr.Form_Load(environment.files, environment.settings.DatDir);
  windows.ShowMain();
}

}  // namespace ng
