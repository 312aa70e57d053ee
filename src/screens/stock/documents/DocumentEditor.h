// The editor of a receipt, shipment or transfer: one dialog for the three, told apart by the table
// of DocumentScreens. It works on a draft; the document's file changes at "OK" only.
#pragma once

#include <QDialog>

#include "books/stock/DocumentDraft.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QCheckBox;
class QFormLayout;
class QHBoxLayout;
class QLayout;
class QPushButton;

namespace kladez {

class DateField;
class RecordList;
class TextChoice;
class TextLine;
class TextLineDecimal;
class TextLineNumber;

class DocumentEditor : public QDialog {
  Q_OBJECT

 protected:
  DocumentEditor(AppContext& context, DocumentKind kind, DocumentDraft draft, QWidget* parent);

 private:
  QLayout* NewHead();
  QLayout* NewListHead();
  QLayout* NewTotals();
  QLayout* NewFoot();
  QLayout* NewPrints();
  void BuildList();
  TextChoice* NewWarehouse(QString DocumentHead::*side);
  void AddField(QHBoxLayout* row, const QString& caption, QWidget* field, const QString& name,
                const QString& hint);
  void AddTotal(QFormLayout* form, const QString& caption, TextLine* field, const QString& name,
                const QString& hint);

  void Add();
  void TakePick(const GoodsPick& pick);
  void Change();
  void Remove();
  void Save();
  void ShowSums();
  void ShowNetSum();
  void TakeFields();
  void Print(const PrintCommand& command);

  AppContext& context_;
  const DocumentScreens& screens_;
  DocumentDraft draft_;

  TextLine* number_;                   // "N:"
  DateField* date_;                    // "Дата:"
  TextChoice* party_;                  // "Поставщик:", "Клиент:", "Откуда:"
  TextChoice* destination_ = nullptr;  // "Куда:"
  RecordList* ListView1;               // the goods lines
  QCheckBox* Check1 = nullptr;         // "Счет закрыт"
  TextLineDecimal* Text2;            // "Сумма по счету:", "Сумма:", "Сумма :"
  TextLineNumber* Text19 = nullptr;  // "Скидка %:"
  TextLineDecimal* DecText1 = nullptr;  // "Сумма со скидкой:"
  QPushButton* add_;                    // "Добавить"
  QPushButton* change_;                 // "Изменить"
  QPushButton* remove_;                 // "Удалить"
  QPushButton* ok_;                     // "OK"
  QPushButton* cancel_;                 // "Отмена"
};

// The editor of the draft's kind: PrihNew, UhodNew or vnutrNew.
DocumentEditor* NewEditor(AppContext& context, DocumentDraft draft, QWidget* parent);

}  // namespace kladez
