// The dialogs of the three reports: which documents, and OK writes the page "temp.htm" and shows
// it. They differ in their texts and in what is made.
#pragma once

#include "books/reports/ReportScope.h"
#include "screens/reports/PeriodDialog.h"

class QButtonGroup;
class QRadioButton;

namespace kladez {

class DateField;

inline constexpr QStringView kReportPage = u"temp.htm";

struct ReportForm {
  PeriodTexts texts;
  // Reads the documents and writes kReportPage. Throws filesystem_error and WorkCancelled.
  void (*make)(const AppContext& context, const ReportScope& scope, const Progress& progress);
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
  ReportScope Scope() const;

  const ReportForm& form_;
  QRadioButton* all_;            // "Все"
  QRadioButton* current_month_;  // "Текущий месяц"
  QRadioButton* range_;          // "с:"
  DateField* from_;
  DateField* to_;  // "по:"
};

}  // namespace kladez
