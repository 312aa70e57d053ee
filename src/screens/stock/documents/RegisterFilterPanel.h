// The panel over a register: which documents it shows, in which order, of which warehouse. It folds
// away to leave the room to the list.
#pragma once

#include <QWidget>

#include "books/stock/DocumentRegister.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QButtonGroup;
class QLayout;
class QRadioButton;

namespace kladez {

class DateField;
class FoldButton;
class TextChoice;
class TextLine;
class WrapRow;

class RegisterFilterPanel : public QWidget {
  Q_OBJECT

 public:
  RegisterFilterPanel(AppContext& context, const DocumentScreens& screens, QWidget* parent);

  RegisterFilter Filter() const;
  QString Warehouse() const;  // empty for transfers, and where there is no warehouse
  bool Descending() const;
  // Chooses "За число:" with the day, or "с … по …" with all days between the two.
  void ShowDay(QDate day);
  void ShowRange(QDate from, QDate to);
  TextLine* SearchField() const { return search_; }

 signals:
  void Changed();

 private:
  QLayout* NewSearch();
  void BuildPeriod(WrapRow* row);
  void BuildRange(WrapRow* row, QButtonGroup* group);
  void BuildOrder(WrapRow* row);
  QWidget* NewHint(QStringView place, std::initializer_list<QWidget*> about);
  QRadioButton* NewOption(const QString& name, const QString& caption, QButtonGroup* group);
  void Show(QRadioButton* period);
  void EnableInputs();

  AppContext& context_;
  const DocumentScreens& screens_;
  const Setting sort_;
  QWidget* options_;

  FoldButton* fold_;                 // "Фильтр" behind its sign
  TextLine* search_;                 // "Найти:"
  TextChoice* warehouse_ = nullptr;  // "Склад:"
  QRadioButton* by_month_;           // "За месяц:"
  TextChoice* month_;
  QRadioButton* by_year_;  // "За год:"
  TextChoice* year_;
  QRadioButton* by_day_;  // "За число:"
  DateField* day_;
  QRadioButton* by_range_;  // "с"
  DateField* from_;
  DateField* to_;                // "по"
  QRadioButton* first_to_last_;  // "A-Z"
  QRadioButton* last_to_first_;  // "Z-A"
};

}  // namespace kladez
