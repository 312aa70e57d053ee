#include "shell/controls/Fields.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <QValidator>
#include <functional>

#include "formats/Numbers.h"
#include "formats/TextLines.h"
#include "shell/controls/Look.h"

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
  setValidator(
      new FileTextValidator(this, [this](const QString& characters) { TellRefused(characters); }));
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
  hover_ = !hasFocus();
  emit MouseEnter();
  update();
}

void TextLine::leaveEvent(QEvent* event) {
  QLineEdit::leaveEvent(event);
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
  connect(this, &QLineEdit::textChanged, this, &TextLineNumber::Repair);
}

void TextLineNumber::keyPressEvent(QKeyEvent* event) {
  if (IsTyping(*event) && !Takes(event->text().front())) {
    event->accept();
    return;
  }
  TextLine::keyPressEvent(event);
}

bool TextLineNumber::Takes(QChar key) const {
  if (!u"1234567890."_s.contains(key)) return false;
  return key != u'.' || !text().contains(u'.');
}

int TextLineNumber::InsertionPoint() const {
  return hasSelectedText() ? selectionStart() : cursorPosition();
}

void TextLineNumber::Repair() {
  if (!ParseStrict(text())) setText(ToNumberOr(text()));
}

bool TextLineDecimal::Takes(QChar key) const {
  if (!TextLineNumber::Takes(key)) return false;
  const qsizetype size = text().size();
  const bool two_decimals = size >= 3 && text()[size - 3] == u'.';
  return !two_decimals || InsertionPoint() < size - 2;
}

}  // namespace kladez
