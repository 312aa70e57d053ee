// What the directories shown as dialogs have in common: a list in the order of its file, the
// commands on the selected row with their keys, and the commands that end the dialog.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "ui/controls/RecordList.h"

class QPushButton;

namespace kladez {

class FollowedFiles;

class DirectoryDialog : public QDialog {
  Q_OBJECT

 protected:
  enum class Ending { kOk, kOkAndCancel };

  DirectoryDialog(const QString& name, const QString& title, Ending ending, QWidget* parent);

  // Called once, when what the rows come from is there.
  void SetRows(std::vector<Column> columns, RowSource rows);
  // The rows have changed; selects one of them, the last where there is none so far down.
  void ShowAnew(int row);

  virtual void Add() = 0;
  virtual void Change(int row) = 0;
  virtual void Remove(int row) = 0;
  // Makes the changes last; throws when that fails, and the dialog stays.
  virtual void Save() = 0;
  // Whether there are changes that Save has not made last.
  virtual bool IsChanged() const = 0;
  // Whether the file is still the one that was read; reads it again, may throw.
  virtual bool IsCurrent() const = 0;
  virtual void ReadAgain() = 0;

  // Runs a command that writes the file, and offers to read again where that is refused.
  bool Write(const std::function<void()>& command);

 private:
  void ShowRead();
  void OnRow(void (DirectoryDialog::*command)(int row));

  RecordList* list_;
  RecordModel* model_ = nullptr;
  FollowedFiles* files_ = nullptr;
  QPushButton* add_;     // "Добавить"
  QPushButton* change_;  // "Изменить"
  QPushButton* remove_;  // "Удалить"
  QPushButton* ok_;      // "OK"
};

}  // namespace kladez
