// "Параметры печати прайса": the options of a printable price list. They are not kept: each time
// the screen opens with its proposals.
#pragma once

#include <QDialog>

#include "books/printing/PricePage.h"
#include "ui/AppContext.h"

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace kladez {

class FoldButton;
class TextLine;
class TextLineNumber;

// The price screen's rows as they stand, and the warehouse chosen there.
struct PricePrintSource {
  QString warehouse;
  PricePageRows rows;
};

class PricePrintScreen : public QDialog {
  Q_OBJECT

 public:
  PricePrintScreen(AppContext& context, const PricePrintSource& source, QWidget* parent = nullptr);

 private:
  // A check box that switches the field beside it.
  struct Choice {
    QCheckBox* PricePrintScreen::*check;
    const char16_t* check_name;
    const char16_t* caption;
    bool on;
    TextLine* PricePrintScreen::*text;
    const char16_t* text_name;
    QString proposal;
  };

  QCheckBox* NewCheck(const char16_t* name, const QString& caption, bool on);
  TextLineNumber* NewNumber(const QString& name, const QString& value, int length);
  struct Frame {
    QGroupBox* box;
    QVBoxLayout* column;  // for what stands in it, beside its question mark
  };
  Frame NewFrame(const QString& title);
  void AddChoices(QGridLayout* grid, const std::vector<Choice>& choices);
  QWidget* NewOther();
  QWidget* NewColumns();
  QWidget* NewBorders();
  QWidget* NewGoods();
  QWidget* NewOrder();
  void BuildLayout();
  void FollowGroups();

  PricePageOptions Options() const;
  void Print();

  AppContext& context_;
  const PricePrintSource source_;
  FoldButton* GoldButton1;  // "Вид"
  QCheckBox* Check1;        // "Распределять по группам"
  QCheckBox* Check2;        // "Ед. изм"
  QCheckBox* Check3;        // "Цена закупа"
  QCheckBox* Check4;        // "Цена реализации"
  QCheckBox* Check5;        // "Остаток на складе"
  QCheckBox* Check6;        // "Фирма:"
  QCheckBox* Check7;        // "Адрес:"
  QCheckBox* Check8;        // "Тел./Факс:"
  QCheckBox* Check9;        // "Дата"
  QCheckBox* Check10;       // "Подпись внизу:"
  QCheckBox* Check11;       // "Заголовок:"
  QCheckBox* Check12;       // "Товары"
  QCheckBox* Check13;       // "Группы"
  QCheckBox* Check14;  // "Промежуток между алфавитными блоками:"
  QCheckBox* Check15;  // "Суммировать кол-во на складах"
  TextLine* Text1;     // firm
  TextLine* Text2;     // address
  TextLine* Text3;     // telephone
  TextLine* Text4;     // date
  TextLine* Text5;     // signature
  TextLine* Text6;     // title
  TextLineNumber* Text7;   // "%:" of the purchase price
  TextLineNumber* Text8;   // "%:" of the sale price
  TextLine* Text9;         // heading of the unit
  TextLine* Text10;        // heading of the purchase price
  TextLine* Text11;        // heading of the sale price
  TextLineNumber* Text12;  // lines of the gap
  TextLineNumber* Text14;  // "не более"
  QRadioButton* Option1;   // "Все"
  QRadioButton* Option2;   // "Присутствующие"
  QRadioButton* Option3;   // "Отсутствующие"
  QRadioButton* Option4;   // "Выделенные"
  QRadioButton* Option5;   // "Отмеченные галочками"
  QRadioButton* Option6;   // "Не отмеченные галочками"
  QPushButton* Command1;   // "OK"
  QPushButton* Command2;   // "Отмена"
};

}  // namespace kladez
