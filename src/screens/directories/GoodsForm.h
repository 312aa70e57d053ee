// "Запись": the form of one record of the goods directory, goods or a group.
#pragma once

#include <QDialog>
#include <array>

#include "formats/GoodsFile.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace kladez {

class TextLine;
class TextLineDecimal;

struct GoodsEntry {
  bool group_only = false;  // the first record of a directory must be a group
  GoodsRecord record;       // what the fields show at first
};

class GoodsForm : public QDialog {
  Q_OBJECT

 public:
  GoodsForm(const GoodsEntry& entry, QWidget* parent);

  // What was entered; valid after OK.
  GoodsRecord Record() const;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* NewGoodsPage(const GoodsRecord& record);
  QWidget* NewGroupPage(const GoodsEntry& entry);
  bool IsGroupShown() const;
  std::array<TextLine*, 6> Fields() const;
  QStringList Texts() const;  // of all fields, whichever page is shown
  void Ok();

  QTabWidget* tabs_;        // "Товар", "Группа"
  TextLine* name_;          // "Наименование:"
  TextLine* country_;       // "Страна:"
  TextLine* declaration_;   // "N декларации:"
  TextLine* unit_;          // "Единица измерения:"
  TextLineDecimal* price_;  // "Цена:"
  TextLine* group_;         // "Наименование группы:"
  QLabel* group_first_;     // why only a group can be added to an empty directory
  QPushButton* ok_;         // "OK"
  QPushButton* cancel_;     // "Отмена"
};

}  // namespace kladez
