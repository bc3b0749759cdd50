// Plays a fight with the sample campaign through the real windows, off screen, and writes a picture
// of each window into a folder: ng_tour [--dark] [--scale FACTOR] FOLDER.

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "tour/guide.h"
#include "tour/sample_fight.h"
#include "tour/sample_program.h"
#include "ui/dialogs/splash.h"
#include "ui/look/theme.h"
#include "ui/program.h"

namespace ng {
namespace {

struct Wishes {
  QString folder;
  bool dark = false;
  QByteArray scale = "1";
};

/// Returns whether the arguments make sense. They are needed before there is an application.
bool Understand(const QStringList& arguments, Wishes& wishes) {
  QCommandLineParser parser;
  parser.addOptions({{QStringLiteral("dark"), {}},
                     {QStringLiteral("scale"), {}, QStringLiteral("factor"), QStringLiteral("1")}});
  if (!parser.parse(arguments) || parser.positionalArguments().size() != 1) return false;
  wishes.folder = parser.positionalArguments().constFirst();
  wishes.dark = parser.isSet(QStringLiteral("dark"));
  wishes.scale = parser.value(QStringLiteral("scale")).toLatin1();
  return wishes.scale.toDouble() > 0;
}

/// The platform without a screen complains of all that it leaves out; everything else is heard.
void Hear(QtMsgType /*kind*/, const QMessageLogContext& /*place*/, const QString& message) {
  for (const char* known : {"This plugin does not support ", "QStandardPaths: XDG_RUNTIME_DIR "}) {
    if (message.startsWith(QLatin1String(known))) return;
  }
  std::fprintf(stderr, "%s\n", qPrintable(message));
}

void ShowStart(Guide& guide, const Theme& theme) {
  SampleProgram program(theme);
  Splash splash;
  splash.show();
  guide.Take(splash, "splash");
  splash.hide();
  guide.Say(QStringLiteral("The first start asks for the directories"));
  guide.InNextWindow([&guide](QDialog& dialog) {
    guide.Take(dialog, "first-start");
    dialog.reject();
  });
  program.Run(SampleProgram::Start::First);
}

int Tour(const Wishes& wishes) {
  if (!QDir().mkpath(wishes.folder)) {
    std::fprintf(stderr, "cannot make the folder %s\n", qPrintable(wishes.folder));
    return 2;
  }
  const Theme& theme = wishes.dark ? Theme::Dark() : Theme::Light();
  Guide guide(wishes.folder);
  ShowStart(guide, theme);
  SampleProgram program(theme);
  PlaySampleFight(guide, program);
  return guide.Finish() ? 0 : 1;
}

}  // namespace
}  // namespace ng

int main(int argc, char* argv[]) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments += QString::fromLocal8Bit(argv[i]);
  ng::Wishes wishes;
  if (!ng::Understand(arguments, wishes)) {
    std::fputs("usage: ng_tour [--dark] [--scale FACTOR] FOLDER\n", stderr);
    return 2;
  }
  qputenv("QT_SCALE_FACTOR", wishes.scale);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(ng::Hear);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  ng::PrepareApplication(application);
  // A text cursor that comes and goes would make every picture another one.
  QApplication::setCursorFlashTime(0);
  return ng::Tour(wishes);
}
