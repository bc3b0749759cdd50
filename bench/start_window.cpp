// The program from its start to the first painting of the main window: what ui/main.cpp does, and
// then the end. The argument is the settings file.

#include <QApplication>
#include <clocale>
#include <memory>

#include "app/startup.h"
#include "base/seeded_uniform.h"
#include "bench/first_paint.h"
#include "platform/files.h"
#include "platform/seed.h"
#include "platform/user_settings.h"
#include "ui/icons.h"
#include "ui/main_window.h"
#include "ui/prompts.h"
#include "ui/splash.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace ng {
namespace {

class MeasuredWindows : public StartupWindows {
 public:
  MeasuredWindows(Session& session, QtPrompts& prompts) : session_(session), prompts_(prompts) {}

  void ShowSplash() override {
    splash_ = std::make_unique<Splash>();
    splash_->show();
    splash_->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  void LoadMain() override {
    main_ = std::make_unique<MainWindow>(session_);
    prompts_.SetMainWindow(*main_, [this] { main_->PaintAll(); });
  }
  void UnloadSplash() override { splash_.reset(); }
  void ShowMain() override {
    new FirstPaint(*main_);
    main_->show();
  }

 private:
  Session& session_;
  QtPrompts& prompts_;
  std::unique_ptr<Splash> splash_;
  std::unique_ptr<MainWindow> main_;
};

int Run(QApplication& application) {
  NativeFiles files;
  NativeUserSettings userSettings;
  SeededUniform uniform(RandomSeed());
  QtPrompts prompts;
  const ProgramLocation location{FromQString(QCoreApplication::arguments().value(1)),
                                 FromQString(QCoreApplication::applicationDirPath())};
  Session session(Environment{files, uniform, prompts, userSettings, location, {}});
  prompts.Attach(session);
  session.main.darkColours = DesktopIsDark(application);
  ApplyTheme(application, session.main.darkColours ? Theme::Dark() : Theme::Light());
  MeasuredWindows windows(session, prompts);
  Main(session, windows);
  return QApplication::exec();
}

}  // namespace
}  // namespace ng

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationName(QStringLiteral("NGtracker"));
  QApplication::setWindowIcon(ng::ApplicationIcon());
  return ng::Run(application);
}
