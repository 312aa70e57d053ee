#include "screens/printing/PrintDialog.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

#include "books/directories/MainCurrency.h"
#include "books/printing/InputError.h"
#include "formats/DatabaseFiles.h"
#include "formats/PartyFile.h"
#include "formats/TextLines.h"
#include "screens/printing/CloseAndShow.h"
#include "screens/printing/PrintFields.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

std::optional<TaxRates> TaxesOf(const AppContext& context) {
  FileState file;
  return LoadTaxRates(context.data, context.session, file);
}

}  // namespace

PrintDialog::PrintDialog(AppContext& context, const PrintSource& source, const QString& name,
                         QWidget* parent)
    : QDialog(parent), context_(context), source_(source), taxes_(TaxesOf(context)) {
  setObjectName(name);
}

QByteArray PrintDialog::FileOf(QStringView path) const {
  return context_.data.Read(context_.session.Path(path));
}

Currency PrintDialog::ReadCurrencyForms() const { return ReadCurrency(FileOf(files::kCurrency)); }

QString PrintDialog::FirstFirm() const {
  const QByteArray firms = FileOf(PartyPath(PartyKind::kFirm));
  return LineReader(firms).Next();
}

PrintParameters PrintDialog::Start() const {
  PrintParameters start;
  const TaxRates taxes = taxes_.value_or(TaxRates());
  if (!taxes.vat.isEmpty()) start.vat = taxes.vat;
  if (!taxes.sales_tax.isEmpty()) start.sales_tax = taxes.sales_tax;
  return start;
}

HintPicture* PrintDialog::NewHint(QStringView place, std::initializer_list<QWidget*> about) {
  return new HintPicture(HintFor(objectName(), place), about, this);
}

QCheckBox* PrintDialog::NewKeptTick(const QString& name, const QString& caption,
                                    const Setting& setting, const std::function<void()>& follow) {
  QCheckBox* tick = NewTick(this, name, caption, context_.settings.ReadBool(setting));
  connect(tick, &QCheckBox::clicked, this, [this, setting, follow](bool on) {
    context_.settings.WriteBool(setting, on);
    follow();
  });
  return tick;
}

void PrintDialog::Attempt(const std::function<void()>& load) {
  try {
    load();
  } catch (const InputError&) {
    TellLater(u"Ошибка ввода"_s);
  } catch (const std::exception& error) {
    TellLater(ErrorText(error));
  }
}

void PrintDialog::TellLater(const QString& text) {
  if (untold_failure_) return;
  untold_failure_ = true;
  QTimer::singleShot(0, this, [this, text] {
    untold_failure_ = false;
    ShowError(this, text);
  });
}

void PrintDialog::WhenLeft(QLineEdit* field, const std::function<void()>& follow) {
  when_left_[field] = follow;
  field->installEventFilter(this);
}

void PrintDialog::WhenTypedAndLeft(QLineEdit* field, const std::function<void()>& follow) {
  WhenLeft(field, [field, follow] {
    if (!field->isModified()) return;
    field->setModified(false);
    follow();
  });
}

bool PrintDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut && isVisible()) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Another window or a context menu does not leave the field.
    const bool left = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    const auto follow = when_left_.find(watched);
    if (left && follow != when_left_.end()) follow->second();
  }
  return QDialog::eventFilter(watched, event);
}

bool PrintDialog::LeaveFields() {
  QWidget* focus = focusWidget();
  if (when_left_.contains(focus)) focus->clearFocus();
  return !untold_failure_;
}

void PrintDialog::PrintPage(const QString& file, const std::function<QByteArray()>& page) {
  if (!LeaveFields()) return;
  Guarded(this, [&] { CloseAndShow(*this, context_.print_outs, file, page()); });
}

QBoxLayout* PrintDialog::NewCommands(const QString& print_caption,
                                     const std::function<void()>& print) {
  auto* yes = NewCommand(this, u"Command1"_s, print_caption, look::IconName::kPrint);
  auto* no = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  AddTwin(this, u"Command3"_s, yes);
  AddTwin(this, u"Command4"_s, no);
  connect(yes, &QPushButton::clicked, this, print);
  connect(no, &QPushButton::clicked, this, &QDialog::reject);
  QBoxLayout* row = NewEndingRow(yes, no);
  yes->setFocus();
  return row;
}

}  // namespace kladez
