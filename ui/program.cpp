#include "ui/program.h"

#include <QApplication>
#include <clocale>
#include <exception>
#include <memory>
#include <utility>

#include "app/startup.h"
#include "journal/desk.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/journals.h"
#include "platform/native_path.h"
#include "platform/program_directory.h"
#include "platform/seed.h"
#include "platform/user_settings.h"
#include "ui/dialogs/prompts.h"
#include "ui/dialogs/splash.h"
#include "ui/look/icons.h"
#include "ui/look/theme.h"
#include "ui/main/main_window.h"
#include "ui/wiring/file_drop.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

class RealWindows : public StartupWindows {
 public:
  RealWindows(const Session& session, Perform door, QtPrompts& prompts,
              std::function<void(QWidget&)> loaded)
      : session_(session), door_(std::move(door)), prompts_(prompts), loaded_(std::move(loaded)) {}

  void ShowSplash() override {
    splash_ = std::make_unique<Splash>();
    splash_->show();
    splash_->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }

  void LoadMain() override {
    main_ = std::make_unique<MainWindow>(session_, door_);
    prompts_.SetMainWindow(*main_, [this] { main_->PaintAll(); });
    if (loaded_) loaded_(*main_);
  }

  void UnloadSplash() override { splash_.reset(); }

  void ShowMain() override { main_->show(); }

  void Paint() { main_->PaintAll(); }

  /// Opens the files named at the start.
  void Open(const QStringList& paths) {
    const std::string files = FilesToOpen(paths);
    if (!files.empty()) main_->Do({"Form_Drop", 0, files});
  }

 private:
  const Session& session_;
  Perform door_;
  QtPrompts& prompts_;
  std::function<void(QWidget&)> loaded_;
  std::unique_ptr<Splash> splash_;
  std::unique_ptr<MainWindow> main_;
};

ProgramLocation Location() {
  const QStringList arguments = QCoreApplication::arguments();
  return {arguments.size() > 1 ? FromQString(arguments[1]) : std::string(),
          ProgramDirectory(QCoreApplication::applicationDirPath().toStdU16String())};
}

int Run(QApplication& application, std::function<void(QWidget&)> loaded) {
  NativeFiles files;
  NativeUserSettings userSettings;
  NativeClock clock;
  QtPrompts prompts;
  const ProgramLocation location = Location();
  NativeJournals journals(NativePath(location.directory + "\\journals"));
  Desk desk(
      {{files, prompts, userSettings}, clock, journals, {NG_VERSION, RandomSeed(), location}});
  const Perform door = [&desk](const Act& act) { desk.Do(act); };
  prompts.Attach(desk.session(), door);
  if (DesktopIsDark(application)) desk.Do({"mnuViewDark"});
  ApplyTheme(application, desk.session().main.darkColours ? Theme::Dark() : Theme::Light());
  RealWindows windows(desk.session(), door, prompts, std::move(loaded));
  try {
    if (!desk.Start(windows)) return 1;
  } catch (const std::exception& error) {
    windows.UnloadSplash();
    prompts.Message(error.what());
    return 1;
  }
  desk.OfferUnclosed();
  windows.Paint();
  windows.Open(QCoreApplication::arguments().mid(2));
  return QApplication::exec();
}

}  // namespace

void PrepareApplication(QApplication& application) {
  // The toolkit takes the desktop's locale over; numbers are written with a point wherever we are.
  std::setlocale(LC_NUMERIC, "C");
  // Splash and dialogs come and go before the main window is there; its closing ends the program.
  QApplication::setQuitOnLastWindowClosed(false);
  application.setApplicationName(QStringLiteral("NGtracker"));
  QApplication::setWindowIcon(ApplicationIcon());
}

int RunProgram(int argc, char** argv, std::function<void(QWidget&)> loaded) {
  QApplication application(argc, argv);
  PrepareApplication(application);
  return Run(application, std::move(loaded));
}

}  // namespace ng
