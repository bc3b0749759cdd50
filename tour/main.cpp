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

struct TourOptions {
  QString folder;
  bool dark = false;
  QByteArray scale = "1";
};

/// Returns whether the arguments are valid. They are needed before there is an application.
bool ParseArguments(const QStringList& arguments, TourOptions& options) {
  QCommandLineParser parser;
  parser.addOptions({{QStringLiteral("dark"), {}},
                     {QStringLiteral("scale"), {}, QStringLiteral("factor"), QStringLiteral("1")}});
  if (!parser.parse(arguments) || parser.positionalArguments().size() != 1) return false;
  options.folder = parser.positionalArguments().constFirst();
  options.dark = parser.isSet(QStringLiteral("dark"));
  options.scale = parser.value(QStringLiteral("scale")).toLatin1();
  return options.scale.toDouble() > 0;
}

/// Without a screen the toolkit warns of all that it does not support; other warnings are printed.
void PrintWarning(QtMsgType /*kind*/, const QMessageLogContext& /*place*/, const QString& message) {
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

int Tour(const TourOptions& options) {
  if (!QDir().mkpath(options.folder)) {
    std::fprintf(stderr, "cannot make the folder %s\n", qPrintable(options.folder));
    return 2;
  }
  const Theme& theme = options.dark ? Theme::Dark() : Theme::Light();
  Guide guide(options.folder);
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
  ng::TourOptions options;
  if (!ng::ParseArguments(arguments, options)) {
    std::fputs("usage: ng_tour [--dark] [--scale FACTOR] FOLDER\n", stderr);
    return 2;
  }
  qputenv("QT_SCALE_FACTOR", options.scale);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(ng::PrintWarning);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  ng::PrepareApplication(application);
  // With a blinking text cursor no two pictures would be the same.
  QApplication::setCursorFlashTime(0);
  return ng::Tour(options);
}
