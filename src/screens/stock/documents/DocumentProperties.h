// The read-only view of a document's file: its lines, sums and flag, and the prints of a register.
#pragma once

#include <QDialog>

#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QFormLayout;
class QHBoxLayout;
class QPushButton;

namespace kladez {

class RecordList;
class TextLine;

class DocumentProperties : public QDialog {
  Q_OBJECT

 public:
  // Throws filesystem_error when the file can't be read.
  DocumentProperties(AppContext& context, DocumentKind kind, const QString& warehouse,
                     const QString& file, QWidget* parent = nullptr);

 private:
  TextLine* AddField(QFormLayout* form, const QString& caption, const QString& name,
                     const QString& text);
  QFormLayout* NewFields(const DocumentHead& head);
  void AddPrints(QHBoxLayout* row);

  AppContext& context_;
  const DocumentScreens& screens_;
  const QString warehouse_;
  DocumentHead head_;
  std::vector<DraftLine> lines_;

  RecordList* list_;
  TextLine* sum_;                 // "Сумма по накладной:", "Сумма:"
  TextLine* discount_ = nullptr;  // "Скидка %:"
  TextLine* net_sum_ = nullptr;   // "Сумма со скидкой:"
  TextLine* closed_ = nullptr;    // "Счет закрыт:"
  QPushButton* print_ = nullptr;  // "Печать"
  QPushButton* close_;            // "Закрыть"
};

}  // namespace kladez
