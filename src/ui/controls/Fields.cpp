#include "ui/controls/Fields.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <QValidator>
#include <algorithm>
#include <functional>
#include <limits>

#include "formats/Numbers.h"
#include "formats/TextLines.h"
#include "ui/controls/FieldNote.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Takes out what a file cannot hold. A validator sees typing, pastes, drops and input methods
// alike.
class FileTextValidator : public QValidator {
 public:
  FileTextValidator(QObject* parent, std::function<void(const QString&)> refused)
      : QValidator(parent), refused_(std::move(refused)) {}

  State validate(QString& text, int& caret) const override {
    QString kept;
    QString refused;
    int shift = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
      QChar c = text[i];
      if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
        if (i < caret) ++shift;
        continue;  // the line break's second half is its blank
      }
      if (c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator ||
          c == u'\t' || (c.isSpace() && !CanEncode(c))) {
        c = u' ';
      }
      if (CanEncode(c) && c.unicode() >= u' ') {
        kept.append(c);
      } else {
        refused.append(c);
        if (i < caret) ++shift;
      }
    }
    text = kept;
    caret -= shift;
    if (!refused.isEmpty()) refused_(refused);
    return Acceptable;
  }

 private:
  std::function<void(const QString&)> refused_;
};

bool IsTyping(const QKeyEvent& event) {
  const bool command =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

QChar PointFor(QChar key) { return key == u',' ? QChar(u'.') : key; }

}  // namespace

TextLine::TextLine(QWidget* parent) : QLineEdit(parent) {
  // The toolkit would cut at 32767 characters, and saving would lose the rest.
  setMaxLength(std::numeric_limits<int>::max());
  setValidator(
      new FileTextValidator(this, [this](const QString& characters) { TellRefused(characters); }));
  connect(this, &QLineEdit::textChanged, this, [this] {
    emit Change();
    Repair();
  });
}

void TextLine::TellRefused(const QString& characters) {
  emit CharactersRefused(characters);
  const QString text = characters.size() == 1
                           ? u"Знак «%1» нельзя сохранить в файлах базы, он пропущен."_s
                           : u"Знаки «%1» нельзя сохранить в файлах базы, они пропущены."_s;
  Tell(text.arg(characters.left(look::kLongestText)));
}

void TextLine::Tell(const QString& word) {
  if (fault_.isEmpty()) FieldNote::Show(this, word, FieldNote::Stays::kForAMoment);
}

void TextLine::SetFault(const QString& why) {
  if (why != fault_) update();
  fault_ = why;
  FieldNote::Show(this, why);
}

// A text longer than its field shows whole under the pointer.
bool TextLine::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
      fontMetrics().horizontalAdvance(text()) > width() - look::kGrid) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       look::PlainToolTip(text().left(look::kLongestText)), this);
    return true;
  }
  return QLineEdit::event(event);
}

void TextLine::keyPressEvent(QKeyEvent* event) {
  Tell({});
  QLineEdit::keyPressEvent(event);
}

void TextLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  hover_ = false;
  if (!fault_.isEmpty()) FieldNote::Show(this, fault_);
  // The field's own menu gives back what it only borrowed: its "Вставить" goes where the caret is.
  if (event->reason() == Qt::PopupFocusReason) return;
  // A click would set the caret after this event and undo the selection.
  if (event->reason() == Qt::MouseFocusReason) {
    QTimer::singleShot(0, this, [this] {
      if (!hasSelectedText()) selectAll();
    });
  } else {
    selectAll();
  }
}

void TextLine::enterEvent(QEnterEvent* event) {
  QLineEdit::enterEvent(event);
  if (hasFocus()) return;
  hover_ = true;
  emit MouseEnter();
  update();
}

void TextLine::leaveEvent(QEvent* event) {
  QLineEdit::leaveEvent(event);
  if (!hover_) return;
  hover_ = false;
  emit MouseLeave();
  update();
}

void TextLine::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  const bool fault = !fault_.isEmpty();
  if ((!hover_ && !fault) || !isEnabled()) return;
  QPainter painter(this);
  painter.setPen(fault ? QPen(QColor(look::kWarning), 2) : QPen(QColor(look::kAccent)));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

TextLineNumber::TextLineNumber(QWidget* parent) : TextLine(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(this, &QLineEdit::textEdited, this, &TextLineNumber::TidyEdited);
}

void TextLineNumber::keyPressEvent(QKeyEvent* event) {
  if (!IsTyping(*event) || isReadOnly()) return TextLine::keyPressEvent(event);
  const QChar key = event->text().front();
  event->accept();
  if (Refuses(key)) return;
  Tell({});
  insert(PointFor(key) == u'.' && Unselected().isEmpty() ? u"0."_s : QString(PointFor(key)));
}

// Dead keys and input methods bring their characters past the keys.
void TextLineNumber::inputMethodEvent(QInputMethodEvent* event) {
  const QString typed = event->commitString();
  QInputMethodEvent rest;
  TextLine::inputMethodEvent(typed.isEmpty() ? event : &rest);
  for (const QChar key : typed) {
    if (Refuses(key)) return;
    insert(PointFor(key) == u'.' && Unselected().isEmpty() ? u"0."_s : QString(PointFor(key)));
  }
}

// The text as the next key meets it: what is selected goes.
QString TextLineNumber::Unselected() const {
  return hasSelectedText() ? text().remove(selectionStart(), selectionLength()) : text();
}

bool TextLineNumber::Refuses(QChar key) {
  const QString why = Refusal(PointFor(key));
  if (!why.isEmpty()) Tell(why);
  return !why.isEmpty();
}

QString TextLineNumber::Refusal(QChar key) const {
  if (!u"1234567890."_s.contains(key)) return u"Здесь пишут цифры и точку."_s;
  if (key == u'.' && Unselected().contains(u'.')) return u"Точка уже стоит."_s;
  return {};
}

// A paste is no key: its blanks and comma are taken out here, and what is no number then is told
// before Repair makes it one.
void TextLineNumber::TidyEdited() {
  if (ParseStrict(text()) && !text().contains(u' ')) return;
  const QString number = UngroupedNumber(text());
  if (ParseStrict(number)) {
    setText(number);
  } else if (text().size() > 1) {
    Tell(u"«%1» — не число."_s.arg(text().left(look::kLongestText)));
  }
}

int TextLineNumber::InsertionPoint() const {
  return hasSelectedText() ? selectionStart() : cursorPosition();
}

// The caret stays: an emptied field has it before the zero, which the next digit replaces.
void TextLineNumber::Repair() {
  if (ParseStrict(text())) return;
  const int caret = cursorPosition();
  setText(ToNumberOr(text()));
  setCursorPosition(caret);
  if (caret == 0) selectAll();
}

QString TextLineDecimal::Refusal(QChar key) const {
  const QString why = TextLineNumber::Refusal(key);
  const qsizetype size = text().size();
  const bool two_decimals = size >= 3 && text()[size - 3] == u'.';
  if (!why.isEmpty() || !two_decimals || InsertionPoint() < size - 2) return why;
  return u"После точки две цифры."_s;
}

bool FieldsAreSound(QWidget* screen) {
  for (TextLine* field : screen->findChildren<TextLine*>()) {
    if (field->IsSound() || !field->isEnabled() || !field->isVisible()) continue;
    field->setFocus(Qt::OtherFocusReason);
    return false;
  }
  return true;
}

void ShowText(TextLine* field, const QString& text) {
  field->setText(text);
  field->setCursorPosition(0);
}

void KeepRoomFor(TextLine* field, int figures) {
  const int text = field->fontMetrics().horizontalAdvance(u'0') * figures;
  field->setMinimumWidth(text + look::kMargin);
}

}  // namespace kladez
