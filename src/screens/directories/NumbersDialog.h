// What the dialogs that ask for the numbers of one line share: the name of the goods, the fields in
// aligned columns, what is told about the numbers below them, "OK" and "Отмена".
#pragma once

#include <QDialog>
#include <functional>

#include "books/stock/LineNotes.h"

class QFormLayout;
class QLabel;
class QVBoxLayout;

namespace kladez {

class TextLine;

class NumbersDialog : public QDialog {
  Q_OBJECT

 protected:
  // Without a name of goods it has no line for it.
  NumbersDialog(const QString& name, const QString& title, const QString& goods, QWidget* parent);

  void AddField(const QString& caption, TextLine* field, const QString& text);
  // A line below the fields that says what `note` makes of the field's text as it is typed.
  void AddNote(const QString& name, TextLine* field,
               const std::function<LineNote(const QString& text)>& note);
  // After all fields: the commands, and the keyboard in the first field.
  void Finish(TextLine* first);

 private:
  QVBoxLayout* layout_;
  QFormLayout* form_;
};

}  // namespace kladez
