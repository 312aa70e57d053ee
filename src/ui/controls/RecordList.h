// The list of every screen: rows of a RecordModel in columns that can be resized, the keys that all
// lists share, search by the beginning of a name, and a word of advice where the list is empty.
#pragma once

#include <QTreeView>

#include "ui/controls/RecordModel.h"

namespace kladez {

class TextLine;

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
  // The first row whose first column begins with the text, letter case aside; false where none
  // does.
  bool SelectFirstBeginning(const QString& text);

  // What stands in an empty list: what to do first.
  void SetEmptyText(const QString& text);
  const QString& EmptyText() const { return empty_text_; }

 signals:
  void InsertPressed();
  void DeletePressed();
  void EnterPressed();
  void DividePressed();  // the division key of the keypad
  void DoubleClicked();
  void CharacterTyped(const QString& text);
  void CurrentRowChanged(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void FitStretchedColumn();

  QString empty_text_;
};

enum class EmptySearch { kStaysInField, kReturnsToList };

// The field "Поиск:" of a list: it selects as the user types, its Up and Down keys pass the focus
// to the list, and a character typed in the list starts a new search in the field.
void WireSearch(TextLine* field, RecordList* list, EmptySearch empty = EmptySearch::kStaysInField);

}  // namespace kladez
