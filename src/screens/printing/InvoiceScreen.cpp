#include "screens/printing/InvoiceScreen.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "books/printing/InputError.h"
#include "books/printing/QrPicture.h"
#include "formats/DatabaseFiles.h"
#include "ui/Help.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Fields.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// What tells the two forms apart on their screen.
struct InvoiceText {
  QStringView name;
  QStringView title;
  bool keeps_trader;  // "ИП:", in the settings
};

const InvoiceText& TextOf(InvoiceKind kind) {
  static constexpr InvoiceText kInvoice = {u"chFactPrint", u"Счет-фактура", true};
  static constexpr InvoiceText kBill = {u"UhodSch", u"Счет", false};
  return kind == InvoiceKind::kBill ? kBill : kInvoice;
}

using P = PrintParameters;
constexpr ParameterField kInvoiceParameters[] = {
    {u"Text18", u"&Цены:", u"Цены", &P::percent},
    {u"Text19", u"Скидк&а %:", u"Скидка", &P::discount},
    {u"DecText1", u"К&урс $:", u"Курс доллара", &P::rate, &settings::kRate},
    {u"Text7", u"Н&ДС:", u"НДС", &P::vat, &settings::kVat},
    {u"Text8", u"Н&СП:", u"НСП", &P::sales_tax, &settings::kSalesTax},
};

PrintParameters InvoiceStart(const PrintDialog& dialog) {
  PrintParameters start = dialog.Start();
  start.discount = ParametersBlock::kFree.toString();
  return start;
}

TickedField NewTicked(QWidget* parent, const QString& tick, const QString& caption,
                      const QString& text) {
  TickedField field{NewTick(parent, tick, caption, true), NewText(parent, text)};
  field.text->setAccessibleName(QString(caption).remove(u'&'));
  return field;
}

}  // namespace

InvoiceScreen::InvoiceScreen(AppContext& context, InvoiceKind kind, const PrintSource& source,
                             QWidget* parent)
    : PrintDialog(context, source, TextOf(kind).name.toString(), parent),
      kind_(kind),
      title_(NewText(this, u"Text1"_s)),
      in_roubles_(NewOption(u"Option1"_s, u"Печать в &рублях"_s)),
      in_dollars_(NewOption(u"Option2"_s, u"Пе&чать в USD"_s)),
      seller_(*this, PartyKind::kFirm,
              [this](const InvoiceParty& party) {
                ShowText(director_, party[PartyField::kDirector].text);
                ShowText(accountant_, party[PartyField::kAccountant].text);
                CheckPaymentCode();
              }),
      buyer_(*this, PartyKind::kClient),
      payment_number_(
          NewTicked(this, u"Check8"_s, u"К плате&жно-расчетному документу N:"_s, u"Text12"_s)),
      payment_date_(NewTicked(this, u"Check12"_s, u"от:"_s, u"Text13"_s)),
      note_(NewText(this, u"Text33"_s)),
      parameters_(*this, kInvoiceParameters, InvoiceStart(*this),
                  {.reload = [this] { Reload(); },
                   .recount = [this] { Attempt([this] { LoadTotals(); }); }}),
      discount_once_(NewKeptTick(u"discount_once"_s, u"С&кидка один раз"_s, settings::kDiscountOnce,
                                 [this] { Attempt([this] { LoadTotals(); }); })),
      payment_code_(kind == InvoiceKind::kBill
                        ? NewKeptTick(u"payment_code"_s, u"&QR-код для оплаты"_s,
                                      settings::kPaymentCode, [this] { CheckPaymentCode(); })
                        : nullptr),
      totals_(*this, TotalsBlock::Taxes::kShown),
      director_(NewText(this, u"Text34"_s)),
      accountant_(NewText(this, u"Text36"_s)),
      trader_(NewText(this, u"Text35"_s)),
      notes_(*this, parameters_) {
  setWindowTitle(TextOf(kind).title.toString());
  Build();
  for (const QLineEdit* field : findChildren<QLineEdit*>()) {
    connect(field, &QLineEdit::textEdited, this, &InvoiceScreen::CheckPaymentCode);
  }
  Reload();
}

QRadioButton* InvoiceScreen::NewOption(const QString& name, const QString& caption) {
  auto* option = new QRadioButton(caption, this);
  option->setObjectName(name);
  connect(option, &QRadioButton::clicked, this, &InvoiceScreen::Reload);
  return option;
}

QLayout* InvoiceScreen::NewHeadBlock() {
  title_->setAccessibleName(u"Заголовок"_s);
  title_->setFont(look::HeadingFont(font()));
  in_roubles_->setChecked(true);
  return SideBySide({title_, in_roubles_, NewHint(u"Печатать в рублях", {in_roubles_}), in_dollars_,
                     NewHint(u"Печатать в USD", {in_dollars_})});
}

QLayout* InvoiceScreen::NewPaymentBlock() {
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  rows.Add(payment_number_.tick,
           SideBySide({payment_number_.text, payment_date_.tick, payment_date_.text}));
  rows.Add(NewCaption(this, u"При&мечание:"_s, note_), note_, NewHint(u"Примечание", {note_}));
  return grid;
}

QWidget* InvoiceScreen::NewSignatureBlock() {
  auto* grid = new QGridLayout;
  FieldGrid rows(grid, 3);
  rows.Add(NewCaption(this, u"Рук&оводитель:"_s, director_), director_);
  rows.Add(NewCaption(this, u"Главный &бухгалтер:"_s, accountant_), accountant_);
  rows.Add(NewCaption(this, u"ИП:"_s, trader_), trader_);
  return NewBoxOf(this, u"Расшифровка подписей"_s, grid);
}

void InvoiceScreen::BuildSheet(QWidget* sheet) {
  auto* parties = new Columns(look::kGrid);
  parties->Add(seller_.NewBox());
  parties->Add(buyer_.NewBox());
  auto* blocks = new QVBoxLayout(sheet);
  look::SetDialogMargins(blocks);
  blocks->addLayout(NewHeadBlock());
  blocks->addLayout(parties);
  blocks->addLayout(NewPaymentBlock());
  auto* sums = new Columns(look::kGrid);
  auto* parameters = new QVBoxLayout;
  parameters->addLayout(parameters_.NewGrid(2));
  parameters->addLayout(
      SideBySide({discount_once_, NewHint(u"Скидка один раз", {discount_once_})}));
  if (payment_code_ != nullptr) {
    parameters->addLayout(
        SideBySide({payment_code_, NewHint(u"QR-код для оплаты", {payment_code_})}));
  }
  sums->Add(NewBoxOf(this, u"Параметры"_s, parameters));
  sums->Add(NewBoxOf(this, u"Итоги"_s, totals_.NewFiguresGrid()));
  blocks->addLayout(sums);
  blocks->addLayout(totals_.NewWordsGrid());
  blocks->addWidget(notes_.WordsNote());
  blocks->addWidget(NewSignatureBlock());
  blocks->addStretch(1);
}

void InvoiceScreen::Build() {
  auto* sheet = new QWidget(this);
  BuildSheet(sheet);
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setWidget(sheet);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, look::kMargin);
  layout->addWidget(scroll);
  layout->addWidget(look::NewSeparator(this));
  QLayout* notes = notes_.NewRows();
  notes->setContentsMargins(look::kMargin, 0, look::kMargin, 0);
  layout->addLayout(notes);
  QBoxLayout* row = NewCommands(u"П&ечать"_s, [this] { Print(); });
  row->insertWidget(0, NewHelpCommand(this, Context().data, u"Command5"));
  row->setContentsMargins(look::kMargin, 0, look::kMargin, 0);
  layout->addLayout(row);

  // All of it in sight where the display allows it.
  QSize size = sheet->sizeHint() + QSize(scroll->verticalScrollBar()->sizeHint().width(), 0);
  size.rheight() += layout->sizeHint().height() - scroll->sizeHint().height();
  resize(size.boundedTo(screen()->availableSize() * 0.95));
}

InvoiceCurrency InvoiceScreen::PageCurrency() const {
  return in_dollars_->isChecked() ? InvoiceCurrency::kDollars : InvoiceCurrency::kRoubles;
}

PrintParameters InvoiceScreen::Parameters() const {
  PrintParameters parameters = parameters_.Read();
  parameters.discount_in_prices = discount_once_->isChecked() && !in_dollars_->isChecked();
  return parameters;
}

void InvoiceScreen::Reload() {
  Attempt([this] { Load(); });
}

void InvoiceScreen::Load() {
  rows_ready_ = false;
  const PrintSource& source = Source();
  const Session& session = Context().session;
  trader_->clear();
  if (TextOf(kind_).keeps_trader) {
    trader_->setText(Context().settings.Read(settings::kInvoiceTrader));
  }
  parameters_.Load();
  title_->setText(TextOf(kind_).title + u" N "_s + source.number + u" от "_s + source.date);
  payment_number_.text->setText(source.number);
  payment_date_.text->setText(source.date);
  seller_.Load(session.Parties(PartyKind::kFirm), FirstFirm());
  buyer_.Load(session.Parties(PartyKind::kClient), source.party);
  LoadTotals();
}

void InvoiceScreen::LoadTotals() {
  rows_ready_ = false;
  notes_.Clear();
  discount_once_->setEnabled(PageCurrency() == InvoiceCurrency::kRoubles);
  const PrintSource& source = Source();
  totals_.Fill([&](TotalTexts& totals) {
    const PrintParameters parameters = Parameters();
    FillInvoiceTotals(PageCurrency(), source.total, parameters, Context().session.currency_name,
                      ReadCurrencyForms(), totals);
    rows_ = InvoiceRows(source.lines, InvoiceFactor(PageCurrency(), parameters), parameters.vat,
                        FileOf(files::kGoods));
    due_ = AmountDue(totals.before, parameters);
    rows_ready_ = true;
    notes_.Show({.total = source.total,
                 .parameters = parameters,
                 .due = due_,
                 .waybill_discount = parameters.discount},
                PageCurrency() == InvoiceCurrency::kRoubles);
  });
  CheckPaymentCode();
}

bool InvoiceScreen::HasPaymentCode() const {
  return payment_code_ != nullptr && payment_code_->isChecked() &&
         PageCurrency() == InvoiceCurrency::kRoubles;
}

PaymentDetails InvoiceScreen::Payment(const InvoiceForm& form) const {
  using F = PartyField;
  const InvoiceParty& seller = form.seller;
  return {.payee = seller[F::kName].text,
          .account = seller[F::kAccount].text,
          .bank = seller[F::kBank].text,
          .bank_code = seller[F::kBankCode].text,
          .correspondent = seller[F::kCorrespondent].text,
          .tax_number = seller[F::kTaxNumber].text,
          .sum = due_,
          .purpose = u"Оплата: "_s + form.title};
}

void InvoiceScreen::CheckPaymentCode() {
  if (payment_code_ == nullptr) return;
  payment_code_->setEnabled(PageCurrency() == InvoiceCurrency::kRoubles);
  notes_.ShowCodeFaults(HasPaymentCode() && rows_ready_ ? PaymentFaults(Payment(Form()))
                                                        : QStringList());
}

void InvoiceScreen::Print() {
  PrintPage(u"chet.htm"_s, [this] {
    // The rows are worked out by the load; a form without all of them is not printed.
    if (!rows_ready_) throw InputError(u"Ошибка ввода"_s);
    InvoiceForm form = Form();
    if (HasPaymentCode()) {
      const PaymentDetails payment = Payment(form);
      const QByteArray picture =
          PaymentFaults(payment).isEmpty() ? QrPicture(PaymentText(payment)) : QByteArray();
      if (!picture.isEmpty()) {
        form.payment_picture = u"oplata.bmp"_s;
        Context().print_outs.Write(form.payment_picture, picture);
      }
    }
    const QByteArray page = InvoicePage(form);
    if (TextOf(kind_).keeps_trader) {
      Context().settings.Write(settings::kInvoiceTrader, trader_->text());
    }
    return page;
  });
}

InvoiceForm InvoiceScreen::Form() const {
  InvoiceForm form;
  form.kind = kind_;
  form.currency = PageCurrency();
  form.title = title_->text();
  form.seller = seller_.Read();
  form.buyer = buyer_.Read();
  form.payment_number = payment_number_.Read();
  form.payment_date = payment_date_.Read();
  form.director = director_->text();
  form.accountant = accountant_->text();
  form.trader = trader_->text();
  form.sums.parameters = Parameters();
  form.sums.rub = Context().session.currency_name;
  totals_.ReadInto(form.sums);
  form.rows = rows_;
  return form;
}

}  // namespace kladez
