#include "ui/widgets/directory_picker.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QScrollBar>
#include <QStorageInfo>
#include <QTreeView>
#include <utility>

#include "ui/wiring/path_text.h"
#include "ui/wiring/shows.h"

namespace ng {
namespace {

/// Where removable and further disks are mounted on systems without drive letters.
constexpr const char* kMountPlaces[] = {"/media/", "/mnt", "/run/media/", "/Volumes/", "/home"};

bool IsMountedDisk(const QString& root) {
  for (const char* place : kMountPlaces) {
    if (root.startsWith(QLatin1String(place)) && QFileInfo(root).isDir()) return true;
  }
  return false;
}

/// "C: [System]".
QString DriveText(const QString& root) {
  const QString letter = QDir::toNativeSeparators(root).chopped(root.endsWith(QLatin1Char('/')));
  const QString name = QStorageInfo(root).name();
  return name.isEmpty() ? letter : QStringLiteral("%1 [%2]").arg(letter, name);
}

bool IsWithin(const QString& path, const QString& root) {
  const QString end = root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/');
  return (path + QLatin1Char('/')).startsWith(end, Qt::CaseInsensitive);
}

/// The tree as the one of the picker's widgets that is told the directory.
class DirectoryTree : public QTreeView, public ShowsText {
 public:
  DirectoryTree(DirectoryPicker& picker, QWidget* parent) : QTreeView(parent), picker_(picker) {}
  void ShowText(const std::string& text) override { picker_.ShowDirectory(text); }

 private:
  DirectoryPicker& picker_;
};

}  // namespace

DirectoryPicker::DirectoryPicker(const QString& drivesName, const QString& treeName,
                                 QWidget* parent)
    : QObject(parent),
      drives_(new QComboBox(parent)),
      tree_(new DirectoryTree(*this, parent)),
      model_(new QFileSystemModel(this)) {
  drives_->setObjectName(drivesName);
  drives_->setAccessibleName("Drives");
  tree_->setObjectName(treeName);
  tree_->setAccessibleName("Directory");
  FillDrives();
  BuildTree();
  connect(drives_, &QComboBox::activated, this,
          [this](int index) { emit DriveChosen(drives_->itemData(index).toString()); });
  // The selection and not the current row, which the tree sets by itself when it takes the focus.
  connect(tree_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (painting_ || !Marked().isValid()) return;
    follow_ = false;
    emit DirectoryChosen(model_->filePath(Marked()));
  });
  connect(tree_, &QTreeView::expanded, this, [this] { follow_ = follow_ && painting_; });
  // Directories are read in the background, and sorting what came in moves the selected one.
  connect(model_, &QFileSystemModel::layoutChanged, this, &DirectoryPicker::Follow,
          Qt::QueuedConnection);
}

void DirectoryPicker::FillDrives() {
  for (const QFileInfo& drive : QDir::drives()) {
    const QString root = drive.absoluteFilePath();
    drives_->addItem(root == QLatin1String("/") ? root : DriveText(root), root);
  }
  if (QDir::separator() != QLatin1Char('/')) return;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (volume.isReady() && IsMountedDisk(volume.rootPath())) {
      drives_->addItem(volume.rootPath(), volume.rootPath());
    }
  }
}

void DirectoryPicker::BuildTree() {
  static QFileIconProvider icons;
  model_->setIconProvider(&icons);
  model_->setOption(QFileSystemModel::DontWatchForChanges);
  model_->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
  model_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
  model_->setRootPath(QDir::rootPath());
  tree_->setModel(model_);
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->header()->setStretchLastSection(false);
  tree_->viewport()->installEventFilter(this);
  tree_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  for (int column = 1; column < model_->columnCount(); ++column) tree_->hideColumn(column);
}

bool DirectoryPicker::eventFilter(QObject* watched, QEvent* event) {
  // A deep tree scrolls sideways, and the selection of a short name still covers the whole row.
  if (event->type() == QEvent::Resize) {
    tree_->header()->setMinimumSectionSize(tree_->viewport()->width());
  }
  return QObject::eventFilter(watched, event);
}

void DirectoryPicker::ShowDirectory(const std::string& directory) {
  const bool outer = std::exchange(painting_, true);
  const bool there = IsDirectory(directory);
  const QString path = there ? QDir(NativeText(directory)).absolutePath() : QDir::homePath();
  const QModelIndex index = model_->index(path);
  if (!there) tree_->clearSelection();
  if (!there || Marked() != index) {
    if (there) tree_->setCurrentIndex(index);
    for (QModelIndex i = index; i.isValid(); i = i.parent()) tree_->expand(i);
    sought_ = index;
    follow_ = true;
    Follow();
  }
  ShowDrive(path);
  painting_ = outer;
}

QModelIndex DirectoryPicker::Marked() const {
  const QModelIndexList selected = tree_->selectionModel()->selectedRows();
  return selected.isEmpty() ? QModelIndex() : selected.front();
}

void DirectoryPicker::ShowDrive(const QString& directory) {
  int best = -1;
  qsizetype length = -1;
  for (int i = 0; i < drives_->count(); ++i) {
    const QString root = drives_->itemData(i).toString();
    if (root.size() > length && IsWithin(directory, root)) {
      best = i;
      length = root.size();
    }
  }
  if (best >= 0) drives_->setCurrentIndex(best);
}

void DirectoryPicker::Follow() {
  if (!follow_ || !sought_.isValid()) return;
  tree_->scrollTo(sought_, QAbstractItemView::PositionAtCenter);
  // The names of the directories above say where this one is.
  tree_->horizontalScrollBar()->setValue(0);
}

}  // namespace ng
