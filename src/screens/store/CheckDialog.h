// "Проверка базы": reads the open Database strictly, lists what is wrong with its place, and mends
// what can be mended safely. Beside it the stock of every goods as documents and ledgers have it.
#pragma once

#include <QDialog>

#include "books/check/BooksCheck.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordList.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace kladez {

class CheckDialog : public QDialog {
  Q_OBJECT

 public:
  CheckDialog(AppContext& context, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;  // the first time the check begins by itself

 private:
  void Run();
  void ShowResult(int row);
  void ShowPlace();
  void Mend();
  void EnableCommands();
  // The selected finding, nullptr without one.
  const Finding* Selected() const;
  // What the place of is shown: the finding, or the first record of a goods in its ledger.
  std::optional<Finding> SelectedPlace() const;

  AppContext& context_;
  CheckResult result_;
  bool started_ = false;

  RecordModel findings_model_;
  RecordModel stock_model_;
  QLabel* summary_;
  QTabWidget* tabs_;
  RecordList* findings_;
  RecordList* stock_;
  QPushButton* mend_;    // "Починить..."
  QPushButton* place_;   // "Показать место"
  QPushButton* again_;   // "Проверить снова"
  QPushButton* help_;    // "Справка"
  QPushButton* cancel_;  // "Закрыть"
};

}  // namespace kladez
