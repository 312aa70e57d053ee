// A drive and folder chooser inside a screen: the drives of the machine, the tree of folders, and
// the path of the chosen one, which may be typed too. It opens on the user's own folder.
#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QTreeView;

namespace kladez {

class FolderModel;

class FolderChooser : public QWidget {
  Q_OBJECT

 public:
  explicit FolderChooser(QWidget* parent);

  // A path of the machine; empty while the path that was typed is no folder.
  QString Folder() const { return folder_; }
  void SetFolder(const QString& folder);  // no effect where it does not exist

 signals:
  void FolderChanged(const QString& folder);

 private:
  void FillDrives();
  void Typed(const QString& path);
  void Chosen(const QString& folder);

  QString folder_;
  FolderModel* folders_;
  QComboBox* drives_;  // "Диск:"
  QTreeView* tree_;
  QLineEdit* path_;  // "Папка:"
};

}  // namespace kladez
