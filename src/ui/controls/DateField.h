// A date, typed as people write one (formats/TypedDate.h), stepped through by the arrow keys and
// the wheel, or picked from a Russian calendar on every machine.
#pragma once

#include <QDate>

#include "ui/controls/Fields.h"

class QCalendarWidget;
class QTimer;

namespace kladez {

class Clock;

// What is typed stays as it is typed; once it is left it is written out, "dd.MM.yyyy". While it is
// no date the field says so.
class DateField : public TextLine {
  Q_OBJECT
  Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged USER true)

 public:
  // The clock outlives the field.
  DateField(QDate date, const Clock& clock, QWidget* parent = nullptr);

  // The last date that the text was; a command asks FieldsAreSound() first.
  QDate date() const { return date_; }
  // Shows any valid date, however old.
  void setDate(QDate date);

  bool IsSound() const override { return Fault().isEmpty(); }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  // Another date is meant; of a typed one once the field is left, or Enter pressed, or for a while
  // nothing more was typed.
  void dateChanged(QDate date);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Read();
  void Finish();
  void Step(int days, int months = 0);
  void TellChange();
  void OpenCalendar();

  const Clock& clock_;
  QDate date_;
  QDate told_;
  QTimer* pause_;
  QCalendarWidget* calendar_ = nullptr;
  int wheel_ = 0;
};

}  // namespace kladez
