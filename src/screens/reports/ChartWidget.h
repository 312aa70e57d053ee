// A chart on a screen. The pointer, or Left, Right, Home and End, mark a row and show its exact
// values.
#pragma once

#include <QWidget>

#include "books/reports/ChartGrid.h"
#include "screens/reports/ChartLayout.h"

namespace kladez {

class ChartWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  // The grid's title becomes the accessible name.
  void SetGrid(const ChartGrid& grid);
  void SetKind(ChartKind kind);
  const ChartGrid& Grid() const { return grid_; }
  ChartKind Kind() const { return kind_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  ChartLayout Layout() const;
  int RowAt(QPointF point) const;
  void MarkRow(int row);
  void ShowRowTip(int row, QPoint global_position);
  // The row's label and, a line each, the name and value of every column.
  QString RowText(int row) const;

  ChartGrid grid_;
  ChartKind kind_ = ChartKind::k3DBars;
  ChartStyle style_;
};

}  // namespace kladez
