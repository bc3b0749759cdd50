#include "ui/wiring/file_drop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <utility>

#include "ui/wiring/path_text.h"

namespace ng {
namespace {

QStringList LocalFiles(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files += url.toLocalFile();
  }
  return files;
}

}  // namespace

std::string FilesToOpen(const QStringList& paths) {
  std::string joined;
  for (const QString& path : paths) {
    if (!joined.empty()) joined += '|';
    joined += PathText(QFileInfo(path).absoluteFilePath());
  }
  return joined;
}

FileDrop::FileDrop(QWidget& window, Perform perform)
    : QObject(&window), perform_(std::move(perform)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->acceptDrops()) widget->installEventFilter(this);
  }
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
    return QObject::eventFilter(watched, event);
  }
  auto& drop = static_cast<QDropEvent&>(*event);
  const QStringList files = LocalFiles(*drop.mimeData());
  if (files.isEmpty()) return QObject::eventFilter(watched, event);
  // A command that asks something runs to its end first.
  if (QApplication::activeModalWidget() != nullptr) {
    drop.ignore();
    return true;
  }
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (type == QEvent::Drop) perform_({"Form_Drop", 0, FilesToOpen(files)});
  return true;
}

}  // namespace ng
