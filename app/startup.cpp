#include "app/startup.h"

namespace ng {

void Main(Session& session, StartupWindows& windows) {
  Environment& environment = session.environment;
  windows.ShowSplash();
  const std::string directory = ReadCharacterDirectory(environment.files, environment.location);
  if (directory.empty()) session.main.mnuViewOptions();
  // Deliberate: what was picked in the dialog was written to the file and takes effect at the next
  // start; this run goes on with what was read.
  environment.settings.NG3Dir = directory;
  ReadSettings(environment.files, environment.location, environment.settings);
  session.main.Form_Load();
  windows.LoadMain();
  windows.UnloadSplash();
  // The dice roller is hidden, but there for the whole run.
  session.main.ngdr.Form_Load(environment.files, environment.settings.DatDir);
  windows.ShowMain();
}

}  // namespace ng
