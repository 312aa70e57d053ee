// The panel above every list of goods: the search and the choice between "Группы" and "Только
// товары", kept between runs by the pair of settings of the screen's family.
#pragma once

#include <QWidget>

#include "books/directories/GoodsView.h"
#include "ui/controls/Fields.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/RecordList.h"

class QHBoxLayout;
class QRadioButton;

namespace kladez {

class GoodsFilter : public QWidget {
  Q_OBJECT

 public:
  struct Settings {
    Setting groups;
    Setting goods_only;
  };

  // Starts with the view that the settings hold. `screen` names the hints of the panel.
  GoodsFilter(SettingsStore& store, const Settings& settings, QStringView screen, QWidget* parent);

  // Wires the search to the list.
  void SearchIn(RecordList* list, EmptySearch empty = EmptySearch::kStaysInField);

  GoodsView View() const;
  // Goes back to a view without the signal, as after a switch that failed.
  void SetView(GoodsView view);
  // Writes both settings, as each screen does when it closes.
  void Remember();

  // The panel's one row, for what a screen has besides.
  QHBoxLayout* Row() const { return row_; }
  QRadioButton* Groups() const { return groups_; }

 signals:
  void ViewChosen(GoodsView view);

 private:
  SettingsStore& store_;
  const Settings settings_;
  QHBoxLayout* row_;
  TextLine* search_;          // "Поиск:"
  QRadioButton* groups_;      // "Группы"
  QRadioButton* goods_only_;  // "Только товары"
};

}  // namespace kladez
