#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QString>
#include <string>
#include <vector>

class QComboBox;
class QFileSystemModel;
class QTreeView;
class QWidget;

namespace ng {

/// A list of drives and a tree of directories that belong together. The picker says what the user
/// chose; what is shown comes from outside.
class DirectoryPicker : public QObject {
  Q_OBJECT

 public:
  /// Makes the two widgets as children of `parent`, under these object names.
  DirectoryPicker(const QString& drivesName, const QString& treeName, QWidget* parent);

  QComboBox* Drives() const { return drives_; }
  QTreeView* Tree() const { return tree_; }

  /// Selects the directory in the tree and its drive in the list; for one that is not there the
  /// tree opens at the user's home and nothing is selected.
  void ShowDirectory(const std::string& directory);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  /// The drive's root.
  void DriveChosen(const QString& root);
  void DirectoryChosen(const QString& directory);

 private:
  void FillDrives();
  void BuildTree();
  void ShowDrive(const QString& directory);
  QModelIndex Marked() const;
  void Follow();

  QComboBox* drives_;
  QTreeView* tree_;
  QFileSystemModel* model_;
  bool painting_ = false;
  /// The directory that the tree was opened at. It is kept in sight while those round it are still
  /// being read, until the user chooses another.
  QPersistentModelIndex sought_;
  bool follow_ = false;
};

}  // namespace ng
