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
class HintPicture;
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

 private:
  QWidget* NewLinks(PlaceGroup group);
  QWidget* NewFigures();
  QLayout* NewOptions();
  QCheckBox* NewOption(const QString& name, const QString& caption);
  HintPicture* AddHint(QStringView picture, std::initializer_list<QWidget*> about, QWidget* parent);
  void Store(const Setting& setting, const QCheckBox* box);
  void ClickTip();
  void ClickReport();
  void ShowFigures();
  void ClickPanel();

  AppContext& context_;
  std::vector<HintPicture*> hints_;  // Picture4 to Picture23

  QCheckBox* Check1;  // "Отображать подсказку "     " на главной"
  QCheckBox* Check2;  // "Показывать отчеты на главной странице"
  QCheckBox* Check3;  // "Показывать панель Kladez"
  QWidget* figures_;  // the sales block and the chart
  QLabel* Label18;    // sold today
  QLabel* Label20;    // this month
  QLabel* Label15;    // this year
  ChartWidget* MSChart1;  // the month by days
  QWidget* Picture3;      // hides the chart until it is filled
};

}  // namespace kladez
