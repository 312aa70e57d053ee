// What forms are made of besides their fields: labels, fields with their question mark, the list
// of a few texts.
#pragma once

#include <QComboBox>
#include <QLabel>

#include "formats/NameSearch.h"
#include "ui/controls/HintPicture.h"

class QBoxLayout;
class QLineEdit;

namespace kladez {

class TypeAhead;

// Shows the text as it is, never as markup; its letter to press with Alt leads to the field.
QLabel* NewLabel(const QString& text, QWidget* field, QWidget* parent);

// The field with the question mark beside it.
QBoxLayout* WithHint(QWidget* field, const Hint& hint);

// Fields that only show: they look it, and the tab key passes them by.
void MakeReadOnly(QLineEdit* field);

// A list to choose one text from, the first one chosen; typing goes to the name that it finds. A
// text that it lacks, as the name of a party that has left its directory, is added so that it can
// be shown and kept.
class TextChoice : public QComboBox {
  Q_OBJECT

 public:
  explicit TextChoice(const QStringList& texts, QWidget* parent = nullptr);
  void Choose(const QString& text);
  // The whole text, however much of it is shown.
  QString Chosen() const { return currentData().toString(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;  // of the open list
  bool event(QEvent* event) override;

 private:
  const NameSearch& Names();
  void Go(int row);

  NameSearch names_;
  TypeAhead* type_ahead_;
};

}  // namespace kladez
