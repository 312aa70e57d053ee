// A look into a copy: its documents, goods and stock as they were, read only, and its lists; a
// document or a list of them can be brought back.
#pragma once

#include <QDialog>
#include <memory>

#include "books/copies/UnpackedCopy.h"
#include "books/stock/OnHand.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordList.h"

class QPushButton;
class QTabWidget;

namespace kladez {

class CopyLookDialog : public QDialog {
  Q_OBJECT

 public:
  // The copy outlives it. Throws filesystem_error where its lists can't be read.
  CopyLookDialog(AppContext& context, const UnpackedCopy& copy, QWidget* parent);

  bool HasBroughtBack() const { return brought_back_; }

 private:
  RecordList* AddList(const QString& name, const QString& title, RecordModel* model);
  void EnableCommands();
  void BringBack();

  AppContext& context_;
  const UnpackedCopy& copy_;
  const std::vector<CopiedDocument> documents_;
  const OnHandList stock_rows_;
  const std::vector<CopiedList> lists_;
  bool brought_back_ = false;

  RecordModel documents_model_;
  RecordModel stock_model_;
  RecordModel lists_model_;
  QTabWidget* tabs_;
  RecordList* documents_list_;
  RecordList* stock_;
  RecordList* lists_list_;
  QPushButton* back_;    // "Вернуть..."
  QPushButton* help_;    // "Справка"
  QPushButton* cancel_;  // "Закрыть"
};

}  // namespace kladez
