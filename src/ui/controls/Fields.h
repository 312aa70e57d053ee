// The three input fields of all screens: free text, money with at most two decimals, quantities.
// They differ only in which keys they take and in how they repair their text after a change.
#pragma once

#include <QLineEdit>

namespace kladez {

// Free text. What Windows-1251 cannot hold is refused as it is typed or pasted, in sight of the
// user; the rest goes in. Line breaks become blanks. Entering the field selects the whole text.
class TextLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextLine(QWidget* parent = nullptr);

 signals:
  // The text has changed. What follows from a field listens to this and not to textChanged: a
  // number field repairs its text after it, and then tells of the repaired text by another one.
  void Change();
  void MouseEnter();
  void MouseLeave();
  // The characters that were refused just now.
  void CharactersRefused(const QString& characters);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  // What the field makes of a text that it can't leave as it is.
  virtual void Repair() {}

 private:
  void TellRefused(const QString& characters);
  bool hover_ = false;
};

// Quantities: digits and one point, without a limit on decimals.
class TextLineNumber : public TextLine {
  Q_OBJECT

 public:
  explicit TextLineNumber(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void Repair() override;
  // Whether the field takes the key as its text stands now.
  virtual bool Takes(QChar key) const;
  // Where typing would go in: the start of the selection, or the caret.
  int InsertionPoint() const;
};

// Money: as TextLineNumber, but with two decimals shown a further digit goes in only before the
// point.
class TextLineDecimal : public TextLineNumber {
  Q_OBJECT

 public:
  using TextLineNumber::TextLineNumber;

 protected:
  bool Takes(QChar key) const override;
};

// Fills a field so that its beginning is in sight.
void ShowText(TextLine* field, const QString& text);
// Keeps room for so many figures.
void KeepRoomFor(TextLine* field, int figures);

}  // namespace kladez
