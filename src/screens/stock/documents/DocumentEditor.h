// The editor of a receipt, shipment or transfer: one dialog for the three, told apart by the table
// of DocumentScreens. It works on a draft; the document's file changes at "OK" only.
#pragma once

#include <QDialog>
#include <functional>

#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QCheckBox;
class QFormLayout;
class QHBoxLayout;
class QLayout;
class QPushButton;

namespace kladez {

class DateField;
class DocumentLines;
class DocumentNotes;
class TextChoice;
class TextLine;
class TextLineDecimal;
class TextLineNumber;

class DocumentEditor : public QDialog {
  Q_OBJECT

 public:
  // Tells how many documents of the register bear a number.
  using NumberCount = std::function<int(const QString& number)>;

  // The editor of the draft's kind.
  DocumentEditor(AppContext& context, DocumentDraft draft, QWidget* parent = nullptr,
                 NumberCount count_of_number = {});

  // The file that was saved: another than the draft's where that one was taken or the document was
  // entered anew.
  const DocumentDraft& Draft() const { return draft_; }

 private:
  QLayout* NewHead();
  QLayout* NewTotals();
  void AddPriceList(QFormLayout* form);
  void ProposePriceList();
  void ProposeDiscount();
  QLayout* NewFoot();
  QLayout* NewPrints();
  TextChoice* NewWarehouse(QString DocumentHead::*side);
  void AddField(QHBoxLayout* row, const QString& caption, QWidget* field, const QString& name,
                const QString& hint);
  void AddTotal(QFormLayout* form, const QString& caption, TextLine* field, const QString& name,
                const QString& hint);

  void Save();
  bool TrySave();
  bool SaveUnasked();
  void EnterAnew();
  void OrderTabs();
  void ShowNotes();
  void ShowSums();
  void ShowNetSum();
  void TakeFields();
  void Print(const PrintCommand& command);

  AppContext& context_;
  const DocumentScreens& screens_;
  DocumentDraft draft_;
  const QString first_number_;
  const NumberCount count_of_number_;

  DocumentNotes* notes_;
  DocumentLines* lines_;
  std::vector<QWidget*> prints_;       // the commands at the foot
  TextLine* number_;                   // "N:"
  DateField* date_;                    // "Дата:"
  TextChoice* party_;                  // "Поставщик:", "Клиент:", "Откуда:"
  TextChoice* destination_ = nullptr;  // "Куда:"
  QCheckBox* closed_ = nullptr;        // "Счет закрыт"
  TextLineDecimal* sum_;       // "Сумма по счету:", "Сумма:", "Сумма :"
  QString proposed_discount_;  // that of the client chosen last
  TextChoice* price_list_ = nullptr;    // "Прайс:"
  TextLineNumber* discount_ = nullptr;  // "Скидка %:"
  TextLineDecimal* net_sum_ = nullptr;  // "Сумма со скидкой:"
  QPushButton* ok_;                     // "OK"
  QPushButton* cancel_;                 // "Отмена"
};

}  // namespace kladez
