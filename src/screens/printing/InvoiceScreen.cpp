#include "screens/printing/InvoiceScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QScopeGuard>

#include "books/printing/InputError.h"
#include "books/printing/InvoiceParties.h"
#include "screens/printing/PrintFields.h"
#include "ui/controls/Fields.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// What tells the two forms apart on their screen.
struct InvoiceText {
  QStringView title;
  bool keeps_trader;  // Text35 in the settings
};

const InvoiceText& TextOf(InvoiceKind kind) {
  static constexpr InvoiceText kInvoice = {u"Счет-фактура", true};
  static constexpr InvoiceText kBill = {u"Счет", false};
  return kind == InvoiceKind::kBill ? kBill : kInvoice;
}

TickedText Ticked(const InvoiceScreen::TickedField& field) {
  return {field.text->text(), field.tick->isChecked()};
}

InvoiceParty PartyOn(const InvoiceScreen::PartyFields& fields) {
  InvoiceParty party;
  party.name = {fields.name->currentText(), fields.name_tick->isChecked()};
  party.address = Ticked(fields.address);
  party.account = Ticked(fields.account);
  party.bank = fields.bank->text();
  party.correspondent = Ticked(fields.correspondent);
  party.bank_code = Ticked(fields.bank_code);
  party.tax_number = Ticked(fields.tax_number);
  party.industry_code = Ticked(fields.industry_code);
  party.firm_code = Ticked(fields.firm_code);
  party.shipper = Ticked(fields.shipper);
  return party;
}

}  // namespace

InvoiceScreen::InvoiceScreen(AppContext& context, const PrintSource& source, const QString& name,
                             InvoiceKind kind, QWidget* parent)
    : TotalsScreen(context, source, name, Taxes::kShown, kFree.toString(), parent), kind_(kind) {
  setWindowTitle(TextOf(kind).title.toString());
  Build();
  Reload();
}

InvoiceCurrency InvoiceScreen::TheCurrencyOfPage() const {
  return Option2->isChecked() ? InvoiceCurrency::kDollars : InvoiceCurrency::kRoubles;
}

void InvoiceScreen::Load() {
  rows_ready_ = false;
  const PrintSource& source = Source();
  const Session& session = Context().session;
  Text35->clear();
  if (TextOf(kind_).keeps_trader) {
    Text35->setText(Context().settings.Read(settings::kInvoiceTrader));
  }
  LoadRates();
  Text1->setText(TextOf(kind_).title + u" N "_s + source.number + u" от "_s + source.date);
  Text12->setText(source.number);
  Text13->setText(source.date);
  SetEntries(seller.name, session.Parties(PartyKind::kFirm));
  seller.name->setEditText(FirstFirm());
  LoadParty(PartyKind::kFirm);
  SetEntries(buyer.name, session.Parties(PartyKind::kClient));
  buyer.name->setEditText(source.party);
  LoadParty(PartyKind::kClient);
  LoadTotals();
}

void InvoiceScreen::LoadTotals() {
  rows_ready_ = false;
  const PrintSource& source = Source();
  const Session& session = Context().session;
  TotalTexts totals = Totals();
  // A failure on the way leaves what was worked out on the screen.
  const auto show = qScopeGuard([&] { ShowTotals(totals); });
  const PrintParameters parameters = Parameters();
  FillInvoiceTotals(TheCurrencyOfPage(), source.total, parameters, session.currency_name,
                    TheCurrency(), totals);
  rows_ = InvoiceRows(source.lines, InvoiceFactor(TheCurrencyOfPage(), parameters), parameters.vat,
                      Context().data.Read(session.Path(u"spr\\товар.spr")));
  rows_ready_ = true;
}

void InvoiceScreen::LoadParty(PartyKind kind) {
  const bool firm = kind == PartyKind::kFirm;
  const PartyFields& fields = firm ? seller : buyer;
  const QByteArray records = Context().data.Read(Context().session.Path(PartyPath(kind)));
  const Party record = PartyNamed(kind, records, fields.name->currentText());
  const InvoiceParty party = InvoicePartyOf(kind, record);
  ShowText(fields.address.text, party.address.text);
  ShowText(fields.account.text, party.account.text);
  ShowText(fields.bank, party.bank);
  ShowText(fields.correspondent.text, party.correspondent.text);
  ShowText(fields.bank_code.text, party.bank_code.text);
  ShowText(fields.tax_number.text, party.tax_number.text);
  ShowText(fields.industry_code.text, party.industry_code.text);
  ShowText(fields.firm_code.text, party.firm_code.text);
  ShowText(fields.shipper.text, party.shipper.text);
  if (!firm) return;
  ShowText(Text34, FieldOf(kind, record, PartyField::kDirector));
  ShowText(Text36, FieldOf(kind, record, PartyField::kAccountant));
}

void InvoiceScreen::Print() {
  PrintPage(u"chet.htm"_s, [this] {
    // The rows are worked out by the load; a form without all of them is not printed.
    if (!rows_ready_) throw InputError(u"Ошибка ввода"_s);
    const QByteArray page = InvoicePage(Form());
    if (TextOf(kind_).keeps_trader) {
      Context().settings.Write(settings::kInvoiceTrader, Text35->text());
    }
    return page;
  });
}

InvoiceForm InvoiceScreen::Form() const {
  InvoiceForm form;
  form.kind = kind_;
  form.currency = TheCurrencyOfPage();
  form.title = Text1->text();
  form.seller = PartyOn(seller);
  form.buyer = PartyOn(buyer);
  form.payment_number = Ticked({Check8, Text12});
  form.payment_date = Ticked({Check12, Text13});
  form.director = Text34->text();
  form.accountant = Text36->text();
  form.trader = Text35->text();
  form.parameters = Parameters();
  form.totals = Totals();
  form.with_vat = Check5->isChecked();
  form.with_sales_tax = Check6->isChecked();
  form.rub = Context().session.currency_name;
  form.rows = rows_;
  return form;
}

}  // namespace kladez
