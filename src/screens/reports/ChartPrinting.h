// "График": makes the print-out of a chart, the picture "temp.gif" and the page "temp.htm" around
// it. It works as soon as it is active, and closes itself.
#pragma once

#include <QDialog>

#include "books/reports/ChartGrid.h"
#include "ui/AppContext.h"

namespace kladez {

class ChartPrinting : public QDialog {
  Q_OBJECT

 public:
  // The grid must outlive the screen.
  ChartPrinting(AppContext& context, const ChartGrid& grid, ChartKind kind,
                QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;

 private:
  void Work();
  void DeleteOldPicture();

  AppContext& context_;
  const ChartGrid& grid_;
  const ChartKind kind_;
  bool started_ = false;
};

}  // namespace kladez
