// A row that goes on in the next line where its width ends, as words do: filters and commands stay
// whole on a small screen or with large letters.
#pragma once

#include <QLayout>
#include <QList>

namespace kladez {

class WrapRow : public QLayout {
 public:
  // `gap` pixels lie between neighbours, `line_gap` between lines.
  WrapRow(int gap, int line_gap);
  ~WrapRow() override;

  // Puts the widgets into one item that is not torn apart, `gap` pixels from each other.
  void AddGroup(std::initializer_list<QWidget*> widgets, int gap);
  // What is added from here on stands at the right end of its line.
  void AddStretch() { first_right_ = count(); }

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  void setGeometry(const QRect& rect) override;

 private:
  // Places the items within the width, when `apply`; gives the height that they take.
  int Arrange(const QRect& rect, bool apply) const;
  void PlaceLine(const QRect& rect, int top, int height, int first, int end) const;

  QList<QLayoutItem*> items_;
  int gap_;
  int line_gap_;
  int first_right_ = -1;  // -1: all at the left
};

}  // namespace kladez
