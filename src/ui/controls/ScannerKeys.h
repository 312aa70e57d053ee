// A barcode scanner types like a keyboard, only faster than anybody: six digits or more, with less
// than 50 milliseconds from digit to digit, and soon Enter. Whatever the digits did meanwhile to
// the fields of the window is taken back, the Enter goes nowhere, and the code is handed over.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace kladez {

class ScannerKeys : public QObject {
 public:
  // Listens while the screen's window has the keyboard; the screen owns this.
  ScannerKeys(QWidget* screen, std::function<void(const QString& code)> scanned);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsListening(const QObject* watched) const;
  bool IsFast(const QKeyEvent& key, qint64 longest_gap);
  void Remember();
  void TakeBack();

  struct Field {
    QPointer<QLineEdit> field;
    QString text;
  };
  struct Choice {
    QPointer<QComboBox> choice;
    int index;
  };

  QWidget* screen_;
  std::function<void(const QString& code)> scanned_;
  QString code_;
  QElapsedTimer clock_;
  qint64 last_key_ = 0;  // milliseconds, of the event or of the clock
  // As they were before the first digit.
  QPointer<QWidget> focus_;
  std::vector<Field> fields_;
  std::vector<Choice> choices_;
};

}  // namespace kladez
