#include "screens/store/FolderChooser.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Where a desktop mounts what is plugged in; the many other mounts are the system's own.
bool IsDriveOfAPerson(const QStorageInfo& volume) {
  const QString path = volume.rootPath();
  return volume.isValid() && volume.isReady() &&
         (path.startsWith("/media/"_L1) || path.startsWith("/run/media/"_L1) ||
          path.startsWith("/mnt/"_L1));
}

}  // namespace

FolderChooser::FolderChooser(QWidget* parent)
    : QWidget(parent),
      folders_(new QFileSystemModel(this)),
      Drive1(new QComboBox(this)),
      Dir1(new QTreeView(this)),
      Path1(new QLineEdit(this)) {
  Drive1->setObjectName(u"Drive1"_s);
  Dir1->setObjectName(u"Dir1"_s);
  Path1->setObjectName(u"Path1"_s);
  folders_->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
  folders_->setRootPath(QDir::rootPath());
  Dir1->setModel(folders_);
  for (int column = 1; column < folders_->columnCount(); ++column) Dir1->hideColumn(column);
  Dir1->setHeaderHidden(true);
  Dir1->setAccessibleName(u"Папки"_s);
  Dir1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FillDrives();

  auto* fields = new QFormLayout;
  fields->addRow(u"Д&иск:"_s, Drive1);
  fields->addRow(u"&Папка:"_s, Path1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  layout->addWidget(Dir1, 1);
  layout->addLayout(fields);

  connect(Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            if (index.isValid()) Chosen(folders_->filePath(index));
          });
  // Folders come in bit by bit and are sorted later, which moves the chosen one out of sight;
  // not while a person looks around in the tree.
  const auto show_chosen = [this] {
    if (Dir1->hasFocus()) return;
    Dir1->scrollTo(folders_->index(folder_), QAbstractItemView::PositionAtCenter);
  };
  connect(folders_, &QFileSystemModel::directoryLoaded, this, show_chosen);
  connect(folders_, &QFileSystemModel::layoutChanged, this, show_chosen, Qt::QueuedConnection);
  connect(Drive1, &QComboBox::activated, this,
          [this] { SetFolder(Drive1->currentData().toString()); });
  // A click on the current row chooses it again, after a typed path that led nowhere.
  connect(Dir1, &QTreeView::clicked, this,
          [this](const QModelIndex& index) { Chosen(folders_->filePath(index)); });
  connect(Path1, &QLineEdit::textEdited, this, &FolderChooser::Typed);
  SetFolder(QDir::homePath());
}

void FolderChooser::FillDrives() {
  Drive1->addItem(u"Домашняя папка"_s, QDir::homePath());
  Drive1->addItem(u"Весь компьютер"_s, QDir::rootPath());
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (IsDriveOfAPerson(volume)) Drive1->addItem(volume.displayName(), volume.rootPath());
  }
}

void FolderChooser::SetFolder(const QString& folder) {
  if (!QDir(folder).exists()) return;
  const QString path = QDir::cleanPath(folder);
  const QModelIndex index = folders_->index(path);
  Dir1->setCurrentIndex(index);
  Dir1->expand(index);
  Dir1->scrollTo(index);
  if (folder_ != path) Chosen(path);  // its row was the current one already
}

void FolderChooser::Typed(const QString& path) {
  if (QDir::isAbsolutePath(path) && QDir(path).exists()) {
    SetFolder(path);
    return;
  }
  // It is kept in the field, and the folder of before is not taken for it.
  folder_.clear();
  emit FolderChanged(folder_);
}

void FolderChooser::Chosen(const QString& folder) {
  folder_ = folder;
  if (!Path1->hasFocus()) Path1->setText(QDir::toNativeSeparators(folder));
  emit FolderChanged(folder);
}

}  // namespace kladez
