// The list of every screen: rows of a RecordModel in columns that can be resized, the keys that all
// lists share, search by name, and a word of advice where the list is empty. A column of numbers
// is never narrower than the numbers in sight; what is cut elsewhere shows whole under the pointer.
#pragma once

#include <QTreeView>

#include "formats/NameSearch.h"
#include "ui/controls/RecordModel.h"

namespace kladez {

class TextLine;
class TypeAhead;

class RecordList : public QTreeView {
  Q_OBJECT

 public:
  explicit RecordList(QWidget* parent = nullptr);

  // The list does not own the model. Columns get their told widths; hidden ones have width 0.
  void SetRecords(RecordModel* model);
  RecordModel* Records() const;
  // Widths as the user sees them now, in twips, column by column.
  std::vector<int> ColumnTwips() const;

  int CurrentRow() const;                 // -1 without one
  std::vector<int> SelectedRows() const;  // in list order
  void SelectRow(int row);                // also scrolls it into view; -1 selects none
  // Goes to the first or next row whose first column the text finds (formats/NameSearch.h); false
  // where there is none.
  bool SelectFirst(const QString& text);
  bool SelectNext(const QString& text);
  // The field "Поиск:" of the list, where it has one (ListSearch.h).
  void SetSearchField(TextLine* field) { search_field_ = field; }
  TextLine* SearchField() const { return search_field_; }

  // What stands in an empty list: what to do first.
  void SetEmptyText(const QString& text);
  const QString& EmptyText() const { return empty_text_; }

 signals:
  void InsertPressed();
  void DeletePressed();
  void EnterPressed();
  void DividePressed();  // the division key of the keypad
  void DoubleClicked();
  void CharacterTyped(const QString& text);  // in a list with a search field
  void CurrentRowChanged(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;  // own commands, then ListTable.h
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void FitStretchedColumn();
  void FitNumbersSoon();
  void FitNumbers();
  int NumberWidth(int column) const;
  bool IsCut(const QModelIndex& index) const;
  QStyleOptionViewItem ViewOptions() const;
  const NameSearch& Names();
  void TakeModelChange();

  QString empty_text_;
  TextLine* search_field_ = nullptr;
  TypeAhead* type_ahead_;
  NameSearch names_;  // made when first asked for
  bool fit_waits_ = false;
};

}  // namespace kladez
