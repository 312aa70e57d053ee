// The one table model: it shows the rows of a working copy that a screen's book owns, and knows
// nothing of what they mean. Rows of groups are bold and pure blue.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

namespace kladez {

struct Column {
  QString title;
  int twips;             // initial width; 0 hides the column
  bool number = false;   // right-aligned
  bool stretch = false;  // takes the room that is left
  QString sample = {};   // "00.00.0000": a text that must fit, whatever the told width
  bool total = false;    // summed up at the foot of a table that is taken along
};

// Where the rows come from. `count` and `text` are needed; the others may stay empty.
struct RowSource {
  std::function<int()> count;
  std::function<QString(int row, int column)> text;
  std::function<bool(int row)> is_group{};
  std::function<bool(int row)> is_amiss{};  // the row is red
  std::function<bool(int row)> checked{};   // rows have check marks where it is set
  std::function<void(int row, bool on)> set_checked{};
  std::function<bool(int row)> checkable{};  // all rows are where it is not set
};

class RecordModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  RecordModel(std::vector<Column> columns, RowSource source, QObject* parent = nullptr);

  // The working copy was loaded anew, sorted, or changed in a way not told below.
  void Reset();
  // Tell of a change before and after it is made to the working copy; Change makes it.
  void Insert(int row, const std::function<void()>& change);
  void Remove(int row, const std::function<void()>& change);
  void Update(int row);  // the row's texts have changed

  const std::vector<Column>& Columns() const { return columns_; }
  // The whole text, of which a list shows no more than it can.
  QString Text(int row, int column) const { return source_.text(row, column); }
  bool IsGroup(int row) const { return source_.is_group && source_.is_group(row); }
  bool HasChecks() const { return static_cast<bool>(source_.checked); }
  bool HasCheck(int row) const {
    return HasChecks() && (!source_.checkable || source_.checkable(row));
  }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  std::vector<Column> columns_;
  RowSource source_;
};

}  // namespace kladez
