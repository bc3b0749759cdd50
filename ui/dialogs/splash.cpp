#include "ui/dialogs/splash.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/look/icons.h"
#include "ui/look/theme.h"

namespace ng {

Splash::Splash() : QFrame(nullptr, Qt::SplashScreen) {
  setFrameShape(QFrame::Box);
  setFrameShadow(QFrame::Plain);
  setFixedSize(320, 130);
  auto* icon = new QLabel(this);
  icon->setPixmap(ApplicationIcon().pixmap(QSize(48, 48), devicePixelRatio()));
  auto* name = new QLabel(QStringLiteral("NGtracker"), this);
  name->setFont(InterfaceFont(17, true));
  auto* loading = new QLabel("Reading the tables...", this);
  loading->setProperty("tone", "muted");
  auto* words = new QVBoxLayout;
  words->addStretch();
  words->addWidget(name);
  words->addWidget(loading);
  words->addStretch();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(28, 16, 28, 16);
  row->setSpacing(18);
  row->addWidget(icon);
  row->addLayout(words, 1);
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

}  // namespace ng
