#include "screens/store/FolderModel.h"

#include <QDir>
#include <algorithm>
#include <filesystem>

#include "formats/Ordering.h"
#include "system/PathNames.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPath = Qt::UserRole;
constexpr int kListed = Qt::UserRole + 1;

// More entries than anybody looks through. A folder beyond them can still be typed.
constexpr int kMostEntries = 100000;
constexpr size_t kMostFolders = 2000;

// The names of the folders in a folder, ordered, without those that begin with a point. What can't
// be read has none. Whether an entry is a folder stands in the listing itself; only links are
// followed.
QStringList FoldersIn(const QString& path) {
  namespace fs = std::filesystem;
  QStringList names;
  std::error_code error;
  fs::directory_iterator entry(EncodePath(path).toStdString(), error);
  for (int count = 0; !error && entry != fs::directory_iterator() && count < kMostEntries;
       ++count, entry.increment(error)) {
    std::error_code unknown;
    const QString name = DecodePath(QByteArray::fromStdString(entry->path().filename().string()));
    if (!name.startsWith(u'.') && entry->is_directory(unknown)) names.append(name);
  }
  std::sort(names.begin(), names.end(),
            [](const QString& a, const QString& b) { return OrderKey(a) < OrderKey(b); });
  if (names.size() > qsizetype(kMostFolders)) names.resize(kMostFolders);
  return names;
}

QStandardItem* NewFolder(const QString& name, const QString& path) {
  auto* item = new QStandardItem(look::Icon(look::IconName::kOpen), name);
  item->setData(path, kPath);
  item->setEditable(false);
  return item;
}

}  // namespace

FolderModel::FolderModel(QObject* parent) : QStandardItemModel(parent) {
  invisibleRootItem()->appendRow(NewFolder(QDir::rootPath(), QDir::rootPath()));
}

QString FolderModel::PathOf(const QModelIndex& index) { return index.data(kPath).toString(); }

bool FolderModel::hasChildren(const QModelIndex& parent) const {
  return canFetchMore(parent) || QStandardItemModel::hasChildren(parent);
}

// Until it is looked into a folder may hold others.
bool FolderModel::canFetchMore(const QModelIndex& parent) const {
  return parent.isValid() && !parent.data(kListed).toBool();
}

void FolderModel::fetchMore(const QModelIndex& parent) {
  if (!canFetchMore(parent)) return;
  setData(parent, true, kListed);
  const QString path = PathOf(parent);
  QList<QStandardItem*> rows;
  for (const QString& name : FoldersIn(path)) {
    rows.append(NewFolder(name, QDir(path).filePath(name)));
  }
  if (!rows.isEmpty()) itemFromIndex(parent)->appendRows(rows);
}

QModelIndex FolderModel::IndexOf(const QString& path) {
  QModelIndex index = this->index(0, 0);
  for (const QString& name : QDir::cleanPath(path).split(u'/', Qt::SkipEmptyParts)) {
    fetchMore(index);
    QStandardItem* item = itemFromIndex(index);
    QStandardItem* next = nullptr;
    for (int row = 0; row < item->rowCount() && next == nullptr; ++row) {
      if (item->child(row)->text() == name) next = item->child(row);
    }
    // One that the listing leaves out, or that came since.
    if (next == nullptr)
      item->appendRow(next = NewFolder(name, QDir(PathOf(index)).filePath(name)));
    index = next->index();
  }
  return index;
}

}  // namespace kladez
