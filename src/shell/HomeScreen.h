// "Главная" while a Database is open: the links to all screens, and on request what was sold.
#pragma once

#include <QWidget>
#include <vector>

#include "shell/Places.h"
#include "ui/AppContext.h"

class QLayout;
class QCheckBox;
class QLabel;

namespace kladez {

class ChartWidget;
class FirstStepsPanel;
class HintPicture;
class MorningList;
struct SalesFigures;
struct Setting;

class HomeScreen : public QWidget {
  Q_OBJECT

 public:
  HomeScreen(AppContext& context, QWidget* parent);

  // Follows the stored choice of the three check boxes; called whenever the screen comes to the
  // front, also after a dialog above it.
  void Activate();

 signals:
  void Chosen(Place place);
  void PanelToggled(bool show);
  void DemonstrationWanted();
  void CopiesWanted();  // the time machine

 private:
  QWidget* NewLinks(PlaceGroup group);
  QWidget* NewFigures();
  QWidget* NewChart();
  QLayout* NewOptions();
  QCheckBox* NewOption(const QString& name, const QString& caption);
  HintPicture* AddHint(QStringView picture, std::initializer_list<QWidget*> about, QWidget* parent);
  void Store(const Setting& setting, const QCheckBox* box);
  void ClickTip();
  void ClickReport();
  void ShowFigures();
  void ShowFirstSteps(const SalesFigures& figures);
  void ShowMorning(const SalesFigures& figures);
  void ClickPanel();

  AppContext& context_;
  std::vector<HintPicture*> hints_;  // Picture4 to Picture23

  QCheckBox* show_hints_;  // "Отображать подсказку "     " на главной"
  QCheckBox* show_figures_;  // "Показывать отчеты на главной странице"
  QCheckBox* show_panel_;    // "Показывать панель Kladez"
  QWidget* figures_;         // the sales block and the chart
  QLabel* sold_today_;       // sold today
  QLabel* sold_this_month_;  // this month
  QLabel* sold_this_year_;   // this year
  MorningList* morning_;     // below the sums
  QWidget* chart_room_;      // the chart and its heading
  FirstStepsPanel* first_steps_;
  ChartWidget* chart_;    // the month by days
  QWidget* chart_cover_;  // hides the chart until it is filled
};

}  // namespace kladez
