#include "ui/controls/ScannerKeys.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "ui/controls/FieldNote.h"

namespace kladez {
namespace {

constexpr qint64 kDigitGap = 50;   // milliseconds
constexpr qint64 kEnterGap = 300;  // some take their time; six digits so fast are proof enough
constexpr qsizetype kShortestCode = 6;

bool IsDigit(const QString& text) {
  return text.size() == 1 && u'0' <= text.front() && text.front() <= u'9';
}

}  // namespace

ScannerKeys::ScannerKeys(QWidget* screen, std::function<void(const QString& code)> scanned)
    : QObject(screen), screen_(screen), scanned_(std::move(scanned)) {
  clock_.start();
  // The digits change other controls before any event of the screen's own.
  qApp->installEventFilter(this);
}

bool ScannerKeys::IsListening(const QObject* watched) const {
  const QWidget* focus = QApplication::focusWidget();
  return watched == focus && focus != nullptr && screen_->isVisible() &&
         focus->window() == screen_->window();
}

// By the time at which the key was pressed, where the event tells it: a slow search between two
// digits must not part them.
bool ScannerKeys::IsFast(const QKeyEvent& key, qint64 longest_gap) {
  const qint64 now = key.timestamp() != 0 ? static_cast<qint64>(key.timestamp()) : clock_.elapsed();
  const qint64 gap = now - last_key_;
  last_key_ = now;
  return 0 <= gap && gap <= longest_gap;
}

bool ScannerKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !IsListening(watched)) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (IsDigit(key->text())) {
    if (!IsFast(*key, kDigitGap)) code_.clear();
    if (code_.isEmpty()) Remember();
    code_ += key->text();
    return false;
  }
  if (key->text().isEmpty()) return false;  // Shift and its like
  const QString code = std::exchange(code_, {});
  const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  if (!enter || !IsFast(*key, kEnterGap) || code.size() < kShortestCode) return false;
  TakeBack();
  QMetaObject::invokeMethod(
      this, [this, code] { scanned_(code); }, Qt::QueuedConnection);
  return true;
}

void ScannerKeys::Remember() {
  focus_ = QApplication::focusWidget();
  fields_.clear();
  choices_.clear();
  for (auto* field : screen_->window()->findChildren<QLineEdit*>()) {
    if (field->isVisible()) fields_.push_back({field, field->text()});
  }
  for (auto* choice : screen_->window()->findChildren<QComboBox*>()) {
    if (choice->isVisible()) choices_.push_back({choice, choice->currentIndex()});
  }
}

void ScannerKeys::TakeBack() {
  for (const Choice& choice : choices_) {
    if (choice.choice) choice.choice->setCurrentIndex(choice.index);
  }
  for (const Field& field : fields_) {
    if (field.field && field.field->text() != field.text) field.field->setText(field.text);
  }
  if (!focus_) return;
  focus_->setFocus(Qt::OtherFocusReason);
  // What a list without a search field made of the digits.
  if (qobject_cast<QLineEdit*>(focus_.data()) == nullptr) FieldNote::Show(focus_, {});
}

}  // namespace kladez
