// Items side by side over the whole width, in as many columns as have room: with large letters or
// on a small screen the others follow in lines below.
#pragma once

#include <QLayout>
#include <vector>

namespace kladez {

class Columns : public QLayout {
 public:
  explicit Columns(int gap);
  ~Columns() override;

  // The width of a line is shared out by the weights of its items; none gets less than it needs,
  // and one of weight 0 no more.
  void Add(QWidget* widget, int weight = 1);
  void Add(QLayout* layout, int weight = 1);

  void addItem(QLayoutItem* item) override { items_.push_back({item, 1}); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  void setGeometry(const QRect& rect) override;

 private:
  struct Item {
    QLayoutItem* item;
    int weight;
  };
  int MinimumWidth(size_t first, size_t end) const;
  size_t ColumnsIn(int width) const;
  std::vector<int> Widths(size_t first, size_t end, int width) const;
  int LineHeight(size_t first, const std::vector<int>& widths) const;

  std::vector<Item> items_;
  int gap_;
};

}  // namespace kladez
