// Plays a fight with the sample campaign through the real windows and writes pictures of them into
// the folder given as argument: ng_pictures FOLDER. They stand in the documentation.

#include <QDir>
#include <cstdio>

#include "gui/gui_program.h"
#include "ui/icons.h"

namespace ng {
namespace {

constexpr QSize kSize(1280, 800);

class Album {
 public:
  Album(GuiProgram& program, const QString& folder) : program_(program), folder_(folder) {}

  bool Take(QWidget& window, const char* name) const {
    QCoreApplication::processEvents();
    const QString file = folder_.filePath(QString::fromLatin1(name) + QLatin1String(".png"));
    const bool written = window.grab().save(file);
    std::printf("%s%s\n", written ? "" : "could not write ", qPrintable(file));
    return written;
  }

  bool TakePage(int page, const char* name) const {
    program_.window->Do({"tabMain", page});
    return Take(*program_.window, name);
  }

 private:
  GuiProgram& program_;
  QDir folder_;
};

/// Eight combatants in the first pass: two wounded, one delaying, one out of it.
void PlayFight(GuiProgram& program) {
  MainWindow& window = *program.window;
  program.ImportEight();
  window.Do({"mnuTReroll"});
  window.Do({"mnuTNext"});
  window.Do({"mnuTNext"});
  window.Do({"mnuPDelay"});
  window.Do({"mnuTNext"});
  window.Do({"GridX_Click", program.RowOf(QStringLiteral("Ganger"))});
  window.Do({"cmdMDam", 0});
  window.Do({"GridX_Click", program.RowOf(QStringLiteral("Tollkeeper"))});
  window.Do({"mnuPInactive"});
  window.Do({"GridX_Click", program.RowOf(QStringLiteral("Vex"))});
  window.Do({"lstWeapon_Select", 1});
  window.Do({"cmdSetPrim"});
  window.Do({"lstWeapon_Select", 2});
  window.Do({"cmdSetSecond"});
  window.Do({"cmdLDam", 0});
  window.Do({"cmdMDam", 1});
}

int TakePictures(const QString& folder) {
  GuiProgram program;
  program.InstallSample();
  program.Start();
  program.window->resize(kSize);
  PlayFight(program);
  const Album album(program, folder);
  bool well = album.TakePage(1, "gear-page") && album.TakePage(2, "person-page") &&
              album.TakePage(3, "notes-page") && album.TakePage(0, "main-window");
  program.window->Do({"mnuViewDark"});
  well = album.Take(*program.window, "main-window-dark") && well;
  return well ? 0 : 1;
}

}  // namespace
}  // namespace ng

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(ng::ApplicationIcon());
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
    std::fputs("usage: ng_pictures FOLDER\n", stderr);
    return 2;
  }
  return ng::TakePictures(arguments[1]);
}
