#include "screens/printing/PrintScreen.h"

#include <QFocusEvent>
#include <QTimer>

#include "books/printing/InputError.h"
#include "formats/TextLines.h"
#include "screens/printing/CloseAndShow.h"
#include "ui/Hints.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

PrintScreen::PrintScreen(AppContext& context, const PrintSource& source, const QString& name,
                         QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(name);
  DecText1 = new TextLineDecimal(this);
  DecText1->setObjectName(u"DecText1"_s);
  ReloadWhenLeft(DecText1);
}

void PrintScreen::Reload() {
  Attempt([this] { Load(); });
}

void PrintScreen::Attempt(const std::function<void()>& load) {
  try {
    load();
  } catch (const InputError&) {
    TellLater(u"Ошибка ввода"_s);
  } catch (const std::exception& error) {
    TellLater(ErrorText(error));
  }
}

void PrintScreen::TellLater(const QString& text) {
  if (untold_failure_) return;
  untold_failure_ = true;
  QTimer::singleShot(0, this, [this, text] {
    untold_failure_ = false;
    ShowError(this, text);
  });
}

void PrintScreen::ReloadWhenLeft(QLineEdit* rate) {
  WhenLeft(rate, [this] {
    SaveRates();
    Reload();
  });
}

void PrintScreen::WhenLeft(QLineEdit* field, const std::function<void()>& follow) {
  when_left_[field] = follow;
  field->installEventFilter(this);
}

bool PrintScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut && isVisible()) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Another window or a context menu does not leave the field.
    const bool left = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    const auto follow = when_left_.find(watched);
    if (left && follow != when_left_.end()) follow->second();
  }
  return QDialog::eventFilter(watched, event);
}

bool PrintScreen::LeaveRates() {
  QWidget* focus = focusWidget();
  if (when_left_.contains(focus)) focus->clearFocus();
  return !untold_failure_;
}

void PrintScreen::PrintPage(const QString& file, const std::function<QByteArray()>& page) {
  if (!LeaveRates()) return;
  Guarded(this, [&] { CloseAndShow(*this, context_.print_outs, file, page()); });
}

Currency PrintScreen::TheCurrency() const {
  return ReadCurrency(context_.data.Read(context_.session.Path(u"currency.usd")));
}

QString PrintScreen::FirstFirm() const {
  const QByteArray firms = context_.data.Read(context_.session.Path(u"spr\\firma.spr"));
  return LineReader(firms).Next();
}

HintPicture* PrintScreen::NewHint(QStringView place, std::initializer_list<QWidget*> about) {
  return new HintPicture(HintFor(objectName(), place), about, this);
}

}  // namespace kladez
