// A field of the paper form that runs over several ruled lines.
#pragma once

#include <QTextEdit>

namespace kladez {

class SheetText : public QTextEdit {
  Q_OBJECT

 public:
  // `pitch` is the height of a line in pixels.
  SheetText(double pitch, QWidget* parent);

  void SetText(const QString& text);
  // On one line, whatever breaks were typed.
  QString Text() const;

 private:
  double pitch_;
};

}  // namespace kladez
