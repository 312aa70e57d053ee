// The three input fields of all screens: free text, money with at most two decimals, quantities.
// They differ only in which keys they take and in how they repair their text after a change.
#pragma once

#include <QLineEdit>

namespace kladez {

// Free text. What Windows-1251 cannot hold is refused as it is typed or pasted, in sight of the
// user; the rest goes in. A line break becomes one blank. Entering the field selects the whole
// text.
class TextLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit TextLine(QWidget* parent = nullptr);

  // A red frame, and why, for as long as the text can't be taken; an empty `why` takes both back.
  void SetFault(const QString& why);
  const QString& Fault() const { return fault_; }
  // Whether a command may take the text as it stands.
  virtual bool IsSound() const { return true; }

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
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

  // What the field makes of a text that it can't leave as it is.
  virtual void Repair() {}
  // A word by the field that goes by itself, and with the next key.
  void Tell(const QString& word);

 private:
  void TellRefused(const QString& characters);
  bool hover_ = false;
  QString fault_;
};

// Quantities: digits and one point, without a limit on decimals. A comma is the point, and a point
// before all digits is "0."; a pasted number may have blanks between its thousands. What the field
// does not take it tells by a word.
class TextLineNumber : public TextLine {
  Q_OBJECT

 public:
  explicit TextLineNumber(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void Repair() override;
  // Why the field does not take the key as its text stands now; empty where it does.
  virtual QString Refusal(QChar key) const;
  // Where typing would go in: the start of the selection, or the caret.
  int InsertionPoint() const;

 private:
  QString Unselected() const;
  bool Refuses(QChar key);
  void TidyEdited();
};

// Money: as TextLineNumber, but with two decimals shown a further digit goes in only before the
// point.
class TextLineDecimal : public TextLineNumber {
  Q_OBJECT

 public:
  using TextLineNumber::TextLineNumber;

 protected:
  QString Refusal(QChar key) const override;
};

// False while a field of the screen that is in use can't be taken as it stands; the keyboard goes
// to it. Asked by each command that takes what the fields hold.
bool FieldsAreSound(QWidget* screen);

// Fills a field so that its beginning is in sight.
void ShowText(TextLine* field, const QString& text);
// Keeps room for so many figures.
void KeepRoomFor(TextLine* field, int figures);

}  // namespace kladez
