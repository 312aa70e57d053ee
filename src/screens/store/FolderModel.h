// The tree of folders of the machine. A folder is listed when somebody looks into it and not
// before, by the names alone: what lies in files is never read, and a folder of any size takes a
// bounded time and room.
#pragma once

#include <QStandardItemModel>

namespace kladez {

class FolderModel : public QStandardItemModel {
  Q_OBJECT

 public:
  explicit FolderModel(QObject* parent);

  // The path of the machine at a row.
  static QString PathOf(const QModelIndex& index);
  // The row of a folder that is there, by its absolute path; looks into the folders on the way.
  QModelIndex IndexOf(const QString& path);

  bool hasChildren(const QModelIndex& parent = {}) const override;
  bool canFetchMore(const QModelIndex& parent) const override;
  void fetchMore(const QModelIndex& parent) override;
};

}  // namespace kladez
