// A report as a list: its rows open the documents behind them, and it has a chart and the page of
// the report beside.
#pragma once

#include <QDialog>
#include <functional>

#include "books/reports/TableReport.h"
#include "ui/AppContext.h"

class QPushButton;

namespace kladez {

class RecordList;

// In what the windows of this kind differ.
struct ReportWindowTexts {
  QStringView name = u"otlist";  // of the screen
  QStringView empty = u"За выбранное время документов нет.";
};

class ReportWindow : public QDialog {
  Q_OBJECT

 public:
  // `print` writes the report's page and throws what can go wrong.
  ReportWindow(AppContext& context, TableReport report, const ReportScope& scope,
               std::function<void(QWidget* over)> print, QWidget* parent = nullptr,
               const ReportWindowTexts& texts = {});

 private:
  void BuildList();
  QString SumsText(const TableReport::Cells& cells) const;
  void OpenDocuments();
  void ShowChart();
  void Print();

  AppContext& context_;
  const TableReport report_;
  const ReportScope scope_;
  const std::function<void(QWidget* over)> print_page_;
  RecordList* list_;
  QPushButton* documents_;  // "Документы"
  QPushButton* chart_;      // "График"
  QPushButton* print_;      // "Печать"
  QPushButton* close_;
};

}  // namespace kladez
