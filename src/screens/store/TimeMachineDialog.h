// "Машина времени": the copies of each Database by day, what changed from one to the next, a look
// into one, and the ways back.
#pragma once

#include <QDialog>

#include "books/copies/CopyCompare.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordList.h"

class QCalendarWidget;
class QLabel;
class QPushButton;

namespace kladez {

class TextChoice;

class TimeMachineDialog : public QDialog {
  Q_OBJECT

 public:
  TimeMachineDialog(AppContext& context, QWidget* parent);

  // Whether something was brought back: what is open is to be opened anew.
  bool HasBroughtBack() const { return brought_back_; }

 private:
  QLayout* NewLists();
  void Connect();
  void Load();
  void ShowBase();
  void ShowCopy();
  void ShowChanges();
  void MarkDays();
  void GoToDay();
  void Look();
  void BringBack();
  void MakeCopy();
  void SetOptions();
  bool MayChange();
  const StoredCopy* Selected() const;
  // The one of the same Database before it, nullptr for the first.
  const StoredCopy* Before(const StoredCopy* copy) const;
  QString CopyText(int row, int column) const;

  AppContext& context_;
  std::vector<StoredCopy> all_;     // the oldest first
  std::vector<StoredCopy> copies_;  // of the chosen Database, the newest first
  std::vector<CopyChange> changes_;
  QStringList numbers_;  // of the Databases in the list, "0001"
  bool brought_back_ = false;

  RecordModel copies_model_;
  RecordModel changes_model_;
  TextChoice* base_;
  QCalendarWidget* calendar_;
  RecordList* list_;
  RecordList* changes_list_;
  QLabel* room_;           // how much all copies take
  QPushButton* look_;      // "Посмотреть..."
  QPushButton* whole_;     // "Вернуть всю базу"
  QPushButton* compare_;   // "Сравнить"
  QPushButton* make_;      // "Сделать копию"
  QPushButton* settings_;  // "Настройка..."
  QPushButton* help_;      // "Справка"
  QPushButton* cancel_;    // "Закрыть"
};

}  // namespace kladez
