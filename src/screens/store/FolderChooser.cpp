#include "screens/store/FolderChooser.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLineEdit>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "screens/store/FolderModel.h"
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
      folders_(new FolderModel(this)),
      drives_(new QComboBox(this)),
      tree_(new QTreeView(this)),
      path_(new QLineEdit(this)) {
  drives_->setObjectName(u"Drive1"_s);
  tree_->setObjectName(u"Dir1"_s);
  path_->setObjectName(u"Path1"_s);
  tree_->setModel(folders_);
  tree_->setHeaderHidden(true);
  tree_->setAccessibleName(u"Папки"_s);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FillDrives();

  auto* fields = new QFormLayout;
  fields->addRow(u"Д&иск:"_s, drives_);
  fields->addRow(u"&Папка:"_s, path_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  layout->addWidget(tree_, 1);
  layout->addLayout(fields);

  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            if (index.isValid()) Chosen(FolderModel::PathOf(index));
          });
  connect(drives_, &QComboBox::activated, this,
          [this] { SetFolder(drives_->currentData().toString()); });
  // A click on the current row chooses it again, after a typed path that led nowhere.
  connect(tree_, &QTreeView::clicked, this,
          [this](const QModelIndex& index) { Chosen(FolderModel::PathOf(index)); });
  connect(path_, &QLineEdit::textEdited, this, &FolderChooser::Typed);
  SetFolder(QDir::homePath());
}

void FolderChooser::FillDrives() {
  drives_->addItem(u"Домашняя папка"_s, QDir::homePath());
  drives_->addItem(u"Весь компьютер"_s, QDir::rootPath());
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (IsDriveOfAPerson(volume)) drives_->addItem(volume.displayName(), volume.rootPath());
  }
}

void FolderChooser::SetFolder(const QString& folder) {
  if (!QDir(folder).exists()) return;
  const QString path = QDir::cleanPath(folder);
  const QModelIndex index = folders_->IndexOf(path);
  tree_->setCurrentIndex(index);
  tree_->expand(index);
  tree_->scrollTo(index, QAbstractItemView::PositionAtCenter);
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
  if (!path_->hasFocus()) path_->setText(QDir::toNativeSeparators(folder));
  emit FolderChanged(folder);
}

}  // namespace kladez
