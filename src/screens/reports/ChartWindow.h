// The chart screen: a chart, the choice of its kind, and its print-out.
#pragma once

#include <QDialog>
#include <vector>

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
  void NewKind(const QString& name, const QString& caption, ChartKind kind, QGroupBox* frame);
  void Print();
  void Copy();
  void Save();
  ChartKind StoredKind() const;

  AppContext& context_;
  QLabel* title_;
  ChartWidget* chart_;
  std::vector<QRadioButton*> kinds_;
  QPushButton* copy_;   // "Копировать"
  QPushButton* save_;   // "Сохранить..."
  QPushButton* print_;  // "Печать"
  QPushButton* close_;  // "Закрыть"
};

}  // namespace kladez
