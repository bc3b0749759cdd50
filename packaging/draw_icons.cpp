// Draws the program's icon for the desktop: DIRECTORY SIZE... writes DIRECTORY/SIZE.png, each SIZE
// pixels wide. Needs neither a display nor an application object, so that it runs while building.

#include <QImage>
#include <QPainter>
#include <cstdio>

#include "ui/look/icons.h"

namespace {

bool Draw(const QString& file, int size) {
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  ng::ApplicationIcon().paint(&painter, picture.rect());
  painter.end();
  return picture.save(file);
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) {
    std::fputs("usage: draw_icons DIRECTORY SIZE...\n", stderr);
    return 2;
  }
  for (int i = 2; i < argc; ++i) {
    const QString size = QString::fromLocal8Bit(argv[i]);
    const QString file = QString::fromLocal8Bit(argv[1]) + '/' + size + ".png";
    if (!Draw(file, size.toInt())) {
      std::fprintf(stderr, "draw_icons: cannot write %s\n", qPrintable(file));
      return 1;
    }
  }
  return 0;
}
