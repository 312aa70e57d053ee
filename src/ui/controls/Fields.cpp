#include "ui/controls/Fields.h"

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
      if (c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator ||
          c == u'\t') {
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
  if (isVisible()) {
    QToolTip::showText(mapToGlobal(QPoint(0, height())), text.arg(characters.toHtmlEscaped()),
                       this);
  }
}

void TextLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  hover_ = false;
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
  if (!hover_ || !isEnabled()) return;
  QPainter painter(this);
  painter.setPen(look::kAccent);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

TextLineNumber::TextLineNumber(QWidget* parent) : TextLine(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void TextLineNumber::keyPressEvent(QKeyEvent* event) {
  if (IsTyping(*event) && !Takes(event->text().front())) {
    event->accept();
    return;
  }
  TextLine::keyPressEvent(event);
}

// Dead keys and input methods bring their characters past the keys.
void TextLineNumber::inputMethodEvent(QInputMethodEvent* event) {
  const QString typed = event->commitString();
  if (std::all_of(typed.begin(), typed.end(), [this](QChar key) { return Takes(key); })) {
    TextLine::inputMethodEvent(event);
  }
}

bool TextLineNumber::Takes(QChar key) const {
  if (!u"1234567890."_s.contains(key)) return false;
  return key != u'.' || !text().contains(u'.');
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

bool TextLineDecimal::Takes(QChar key) const {
  if (!TextLineNumber::Takes(key)) return false;
  const qsizetype size = text().size();
  const bool two_decimals = size >= 3 && text()[size - 3] == u'.';
  return !two_decimals || InsertionPoint() < size - 2;
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
