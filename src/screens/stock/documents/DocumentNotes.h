// What the editor tells of a document beside its fields. It warns and hinders nobody.
#pragma once

#include <QWidget>

class QLabel;

namespace kladez {

class DocumentNotes : public QWidget {
  Q_OBJECT

 public:
  explicit DocumentNotes(QWidget* parent);

  // Another document has the number; empty: none has.
  void TellNumber(const QString& number);
  // The document has posted, and stock does not follow what was changed.
  void TellPosted(bool changed);

 signals:
  // The told way that stock follows by is wanted: deletion with reversal and a new entry.
  void EnterAnewAsked();

 private:
  void ShowOrHide();

  QLabel* number_;
  QLabel* posted_;
};

}  // namespace kladez
