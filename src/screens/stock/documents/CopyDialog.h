// "Копия документа": at which prices the lines of a document go into a new one.
#pragma once

#include <QDialog>

#include "books/directories/ClientTerms.h"
#include "books/prices/DocumentCopy.h"
#include "ui/AppContext.h"

class QFormLayout;
class QLabel;
class QRadioButton;

namespace kladez {

class TextChoice;

class CopyDialog : public QDialog {
  Q_OBJECT

 public:
  CopyDialog(AppContext& context, const DocumentDraft& document, QWidget* parent);

  // What was chosen; valid after OK.
  CopyChoice Choice() const;

 private:
  void BuildPrices(QFormLayout* form);
  void ShowNote();

  AppContext& context_;
  const DocumentDraft& document_;
  ClientTerms terms_;            // go with today's prices
  QRadioButton* todays_;         // "Сегодняшние"
  QRadioButton* of_document_;    // "Как в документе"
  TextChoice* lists_ = nullptr;  // "Прайс-лист:", where there is any
  QLabel* note_;                 // of goods that have no price today
};

}  // namespace kladez
