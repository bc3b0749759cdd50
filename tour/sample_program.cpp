#include "tour/sample_program.h"

#include <QApplication>
#include <QSettings>

#include "ui/look/theme.h"
#include "ui/wiring/path_text.h"

namespace ng {

SampleProgram::SampleProgram(const Theme& theme)
    : journals_(folder_.filePath(QStringLiteral("journals")).toStdU16String()),
      desk({{files_, prompts_, userSettings_},
            clock_,
            journals_,
            {NG_VERSION, 20461, {{}, PathText(folder_.path())}}}) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
  prompts_.Attach(session, door_);
  if (theme.dark) desk.Do({"mnuViewDark"});
  ApplyTheme(*qApp, theme);
}

void SampleProgram::Run(Start start) {
  std::string settings = "[NGtracker]\r\n";
  const std::string sample = PathText(QStringLiteral(NG_SAMPLE));
  if (start == Start::Later) settings += "NG3Dir=" + sample + "/characters\r\n";
  settings += "DatDir=" + sample + "/DATA\r\n";
  files_.Replace(PathText(OwnFile("tracker.ini")), settings);
  if (!desk.Start(*this)) qFatal("the program does not start");
}

void SampleProgram::LoadMain() {
  window = std::make_unique<MainWindow>(session, door_);
  prompts_.SetMainWindow(*window, [this] { window->PaintAll(); });
}

}  // namespace ng
