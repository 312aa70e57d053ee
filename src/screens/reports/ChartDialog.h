// The dialogs of the two charts: a year by month or a month by day; the chart is shown on the
// screen `graphic`. They differ in their texts, in what is collected, and in that one asks for the
// goods.
#pragma once

#include <optional>

#include "books/reports/ChartSeries.h"
#include "screens/reports/PeriodDialog.h"

class QRadioButton;

namespace kladez {

class TextLine;

struct ChartForm {
  PeriodTexts texts;
  bool asks_goods;
  QStringView build_twin;  // names of the hidden twins of Command1 and Command2
  QStringView close_twin;
  // Nothing when the progress ended it. Throws filesystem_error.
  std::optional<ChartGrid> (*collect)(const DataDir& data, const Session& session,
                                      const QString& goods, const ChartScope& scope,
                                      const Progress& progress);
};

class ChartDialog : public PeriodDialog {
  Q_OBJECT

 protected:
  ChartDialog(AppContext& context, const ChartForm& form, const QString& goods, QWidget* parent);

  void Ok() override;

 private:
  QWidget* BuildGoods(const QString& goods);
  void BuildPeriod();
  void PickGoods();
  ChartScope Scope() const;
  QString Goods() const;

  const ChartForm& form_;
  TextLine* Text1 = nullptr;        // "Товар"
  QPushButton* Command3 = nullptr;  // picks the goods
  QRadioButton* Option1;            // "За год"
  QRadioButton* Option2;            // "За месяц"
  TextChoice* Combo2;               // year
  TextChoice* Combo3;               // month
};

}  // namespace kladez
