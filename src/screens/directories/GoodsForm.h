// "Запись": the form of one record of the goods directory, goods or a group.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "books/directories/GoodsExtras.h"
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
  GoodsExtras extras{};
  // The other goods that have a barcode; empty where none have.
  std::function<QString(const QString& barcode)> owner_of{};
};

class GoodsForm : public QDialog {
  Q_OBJECT

 public:
  GoodsForm(const GoodsEntry& entry, QWidget* parent);

  // What was entered; valid after OK.
  GoodsRecord Record() const;
  GoodsExtras Extras() const;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* NewGoodsPage(const GoodsRecord& record, const GoodsExtras& extras);
  QWidget* NewGroupPage(const GoodsEntry& entry);
  bool IsGroupShown() const;
  std::array<TextLine*, 8> Fields() const;
  QStringList Texts() const;  // of all fields, whichever page is shown
  bool ExtrasAreSound();
  void Ok();

  const std::function<QString(const QString& barcode)> owner_of_;

  QTabWidget* tabs_;        // "Товар", "Группа"
  TextLine* name_;          // "Наименование:"
  TextLine* country_;       // "Страна:"
  TextLine* declaration_;   // "N декларации:"
  TextLine* unit_;          // "Единица измерения:"
  TextLineDecimal* price_;  // "Цена:"
  TextLine* barcode_;       // "Штрихкод:"
  TextLine* minimum_;       // "Минимум:"
  TextLine* group_;         // "Наименование группы:"
  QLabel* group_first_;     // why only a group can be added to an empty directory
  QPushButton* ok_;         // "OK"
  QPushButton* cancel_;     // "Отмена"
};

}  // namespace kladez
