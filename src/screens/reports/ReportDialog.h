// The dialogs of the reports: which documents, and OK writes the page "temp.htm" and shows it; or
// the report comes as a list whose rows open their documents. They differ in their texts and in
// what is made.
#pragma once

#include "books/reports/TableReport.h"
#include "screens/reports/PeriodDialog.h"

class QCheckBox;
class QHBoxLayout;
class QRadioButton;

namespace kladez {

class DateField;

inline constexpr QStringView kReportPage = u"temp.htm";

struct ReportForm {
  PeriodTexts texts;
  // Reads the documents and writes kReportPage; null where the page is that of the table. Both
  // throw filesystem_error and WorkCancelled.
  void (*make)(const AppContext& context, const ReportScope& scope, const Progress& progress);
  TableReport (*table)(const DataDir& data, const Session& session, const ReportScope& scope,
                       const Progress& progress);
};

class ReportDialog : public PeriodDialog {
  Q_OBJECT

 public:
  ReportDialog(AppContext& context, const ReportForm& form, QWidget* parent = nullptr);

 protected:
  void Ok() override;

 private:
  QRadioButton* NewOption(const QString& name, const QString& caption);
  void BuildPeriod();
  QHBoxLayout* NewQuickChoice();
  void ChooseQuickly(int named_period);
  ReportScope Scope() const;
  bool Compares() const;
  TableReport Table(const ReportScope& scope, const Progress& progress) const;
  void WritePage(ReportScope scope, const Progress& progress) const;
  void ShowList();

  const ReportForm& form_;
  QRadioButton* all_;            // "Все"
  QRadioButton* current_month_;  // "Текущий месяц"
  QRadioButton* range_;          // "с:"
  DateField* from_;
  DateField* to_;      // "по:"
  TextChoice* quick_;  // "Быстрый выбор:"
  QCheckBox* compare_;
  QPushButton* list_;  // "Списком"
};

}  // namespace kladez
