#include "ui/controls/RecordModel.h"

#include <QBrush>
#include <QFont>

#include "ui/controls/Look.h"

namespace kladez {

RecordModel::RecordModel(std::vector<Column> columns, RowSource source, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)), source_(std::move(source)) {}

void RecordModel::Reset() {
  beginResetModel();
  endResetModel();
}

void RecordModel::Insert(int row, const std::function<void()>& change) {
  beginInsertRows({}, row, row);
  change();
  endInsertRows();
}

void RecordModel::Remove(int row, const std::function<void()>& change) {
  beginRemoveRows({}, row, row);
  change();
  endRemoveRows();
}

void RecordModel::Update(int row) {
  emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int RecordModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : source_.count();
}

int RecordModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const int row = index.row();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return Text(row, index.column()).left(look::kLongestText);
    case Qt::TextAlignmentRole:
      return int(Qt::AlignVCenter |
                 (columns_[index.column()].number ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole:
      if (!IsGroup(row)) return {};
      {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
    case Qt::ForegroundRole:
      if (IsGroup(row)) return QBrush(QColor(look::kGroupRow));
      if (source_.is_amiss && source_.is_amiss(row)) return QBrush(QColor(look::kWarning));
      return {};
    case Qt::CheckStateRole:
      if (index.column() != 0 || !HasCheck(row)) return {};
      return int(source_.checked(row) ? Qt::Checked : Qt::Unchecked);
    default:
      return {};
  }
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return columns_[section].title;
  if (role == Qt::TextAlignmentRole) {
    return int(Qt::AlignVCenter | (columns_[section].number ? Qt::AlignRight : Qt::AlignLeft));
  }
  return {};
}

Qt::ItemFlags RecordModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (index.column() == 0 && source_.set_checked && HasCheck(index.row()))
    flags |= Qt::ItemIsUserCheckable;
  return flags;
}

bool RecordModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !(flags(index) & Qt::ItemIsUserCheckable)) return false;
  source_.set_checked(index.row(), value.toInt() == Qt::Checked);
  emit dataChanged(index, index, {Qt::CheckStateRole});
  return true;
}

}  // namespace kladez
