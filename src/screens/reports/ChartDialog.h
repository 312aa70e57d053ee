// The dialogs of the two charts: a year by month or a month by day; the chart is shown on the
// screen `graphic`. They differ in their texts, in what is collected, and in that one asks for the
// goods.
#pragma once

#include "books/reports/ChartSeries.h"
#include "screens/reports/PeriodDialog.h"

class QRadioButton;

namespace kladez {

class TextLine;

struct ChartForm {
  PeriodTexts texts;
  bool asks_goods;
  QStringView build_twin;  // names of the hidden twins of the two commands
  QStringView close_twin;
  // Throws filesystem_error and WorkCancelled.
  ChartGrid (*collect)(const DataDir& data, const Session& session, const QString& goods,
                       const ChartScope& scope, const Progress& progress);
};

class ChartDialog : public PeriodDialog {
  Q_OBJECT

 public:
  // With the name of the goods filled in, where they are asked for.
  ChartDialog(AppContext& context, const ChartForm& form, const QString& goods = {},
              QWidget* parent = nullptr);

 protected:
  void Ok() override;

 private:
  QWidget* BuildGoods(const QString& goods);
  void BuildPeriod();
  void PickGoods();
  ChartScope Scope() const;
  QString Goods() const;

  const ChartForm& form_;
  TextLine* goods_ = nullptr;    // "Товар"
  QPushButton* pick_ = nullptr;  // picks the goods
  QRadioButton* by_year_;        // "За год"
  QRadioButton* by_month_;       // "За месяц"
  TextChoice* year_;             // year
  TextChoice* month_;            // month
};

}  // namespace kladez
