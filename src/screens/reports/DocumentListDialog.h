// "Документы": those behind a row of a report; Enter opens one.
#pragma once

#include <QDialog>

#include "books/reports/DocumentSearch.h"
#include "ui/AppContext.h"

class QPushButton;

namespace kladez {

class RecordList;

class DocumentListDialog : public QDialog {
  Q_OBJECT

 public:
  // `of` is what the row stands for.
  DocumentListDialog(AppContext& context, const QString& of, std::vector<FoundDocument> documents,
                     QWidget* parent = nullptr);

 private:
  QString Cell(int row, int column) const;
  void Open();

  AppContext& context_;
  const std::vector<FoundDocument> documents_;
  RecordList* list_;
  QPushButton* open_;  // "Открыть"
  QPushButton* close_;
};

}  // namespace kladez
