// What the dialogs of reports and charts have in common: the warehouse or all of them, the frame
// that chooses the period, and the commands that end the dialog.
#pragma once

#include <QDialog>

#include "ui/AppContext.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QPushButton;

namespace kladez {

class TextChoice;

// What differs between them.
struct PeriodTexts {
  QStringView name;  // of the screen
  QStringView caption;
  QStringView yes;  // captions of the two commands
  QStringView no;
};

class PeriodDialog : public QDialog {
  Q_OBJECT

 protected:
  PeriodDialog(AppContext& context, const PeriodTexts& texts, QWidget* parent);

  AppContext& Context() const { return context_; }
  QString Warehouse() const;

  QGridLayout* Fields() const { return fields_; }  // caption, field, question mark; row 0 is taken
  QGroupBox* Frame() const { return frame_; }      // "     Документы", still empty

  // Puts a command before the one that makes the report.
  void AddCommand(QPushButton* command);

  virtual void Ok() = 0;

  TextChoice* warehouse_;  // "Склад:"
  QPushButton* yes_;       // makes the report or chart
  QPushButton* no_;        // closes

 private:
  QGroupBox* NewFrame();

  AppContext& context_;
  QGridLayout* fields_;
  QGroupBox* frame_;
  QBoxLayout* ending_;
};

}  // namespace kladez
