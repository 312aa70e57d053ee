// The chart screen: a chart, the choice of its kind, and its print-out.
#pragma once

#include <QDialog>

#include "books/reports/ChartGrid.h"
#include "ui/AppContext.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace kladez {

class ChartWidget;

class ChartWindow : public QDialog {
  Q_OBJECT

 public:
  ChartWindow(AppContext& context, const ChartGrid& grid, QWidget* parent = nullptr);

 private:
  QGroupBox* NewKinds();
  QRadioButton* NewKind(const QString& name, const QString& caption, ChartKind kind,
                        QGroupBox* frame);
  void Print();

  AppContext& context_;
  QLabel* title_;
  ChartWidget* chart_;
  QRadioButton* Option1;     // "3D/Колонки"
  QRadioButton* Option2;     // "3D/Линии"
  QRadioButton* Option3;     // "2D/Колонки"
  QRadioButton* Option4;     // "2D/Линии"
  QPushButton* GoldButton1;  // "Печать"
  QPushButton* Command1;     // "Закрыть"
};

}  // namespace kladez
