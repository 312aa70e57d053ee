// How the fields of an invoice stand on their screen.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "screens/printing/InvoiceScreen.h"
#include "screens/printing/PrintFields.h"
#include "ui/Help.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct FieldNames {
  QStringView tick, text;
};

// The control names of a party's fields, and the captions that differ.
struct PartyNames {
  QStringView box, name_caption, shipper_caption, bank;
  FieldNames name, address, tax_number, bank_code, account, correspondent, industry_code, firm_code,
      shipper;
};

constexpr PartyNames kSeller = {.box = u"Продавец",
                                .name_caption = u"&Поставщик:",
                                .shipper_caption = u"Грузоотправитель:",
                                .bank = u"Text22",
                                .name = {u"Check1", u"Text2"},
                                .address = {u"Check2", u"Text3"},
                                .tax_number = {u"Check3", u"Text4"},
                                .bank_code = {u"Check21", u"Text31"},
                                .account = {u"Check13", u"Text21"},
                                .correspondent = {u"Check14", u"Text23"},
                                .industry_code = {u"Check15", u"Text24"},
                                .firm_code = {u"Check16", u"Text25"},
                                .shipper = {u"Check4", u"Text5"}};

constexpr PartyNames kBuyer = {.box = u"Покупатель",
                               .name_caption = u"Покупате&ль:",
                               .shipper_caption = u"Грузополучатель:",
                               .bank = u"Text26",
                               .name = {u"Check9", u"Text14"},
                               .address = {u"Check10", u"Text15"},
                               .tax_number = {u"Check11", u"Text16"},
                               .bank_code = {u"Check22", u"Text32"},
                               .account = {u"Check17", u"Text27"},
                               .correspondent = {u"Check20", u"Text30"},
                               .industry_code = {u"Check19", u"Text28"},
                               .firm_code = {u"Check18", u"Text29"},
                               .shipper = {u"Check7", u"Text11"}};

// Figures of a tax number, a bank code, and the two classifiers.
constexpr int kTaxFigures = 12;
constexpr int kBankFigures = 9;
constexpr int kIndustryFigures = 6;
constexpr int kFirmFigures = 10;

}  // namespace

QWidget* InvoiceScreen::NewBox(const QString& title, QLayout* content) {
  auto* box = new QGroupBox(title, this);
  content->setContentsMargins(look::kGrid, look::kGrid, look::kGrid, look::kGrid);
  box->setLayout(content);
  return box;
}

QWidget* InvoiceScreen::NewHeadBlock() {
  Text1 = NewText(this, u"Text1"_s);
  Text1->setAccessibleName(u"Заголовок"_s);
  Text1->setFont(look::HeadingFont(font()));
  Option1 = new QRadioButton(u"Печать в &рублях"_s, this);
  Option1->setObjectName(u"Option1"_s);
  Option1->setChecked(true);
  Option2 = new QRadioButton(u"Пе&чать в USD"_s, this);
  Option2->setObjectName(u"Option2"_s);
  for (QRadioButton* option : {Option1, Option2}) {
    connect(option, &QRadioButton::clicked, this, &InvoiceScreen::Reload);
  }
  auto* block = new QWidget(this);
  QHBoxLayout* row = SideBySide({Text1, Option1, NewHint(u"Печатать в рублях", {Option1}), Option2,
                                 NewHint(u"Печатать в USD", {Option2})});
  row->setContentsMargins(0, 0, 0, 0);
  block->setLayout(row);
  return block;
}

QWidget* InvoiceScreen::NewPartyBlock(PartyKind kind) {
  const bool firm = kind == PartyKind::kFirm;
  const PartyNames& names = firm ? kSeller : kBuyer;
  PartyFields& fields = firm ? seller : buyer;
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  const auto ticked = [this](const FieldNames& field, QStringView caption, int figures = 0) {
    TickedField made = {NewTick(this, field.tick.toString(), caption.toString(), true),
                        NewText(this, field.text.toString())};
    made.text->setAccessibleName(caption.toString());
    if (figures > 0) KeepRoomFor(made.text, figures);
    return made;
  };
  fields.name_tick = NewTick(this, names.name.tick.toString(), names.name_caption.toString(), true);
  fields.name = NewTextCombo(this, names.name.text.toString());
  fields.address = ticked(names.address, u"Адрес:");
  fields.tax_number = ticked(names.tax_number, u"ИНН:", kTaxFigures);
  fields.bank_code = ticked(names.bank_code, u"БИК", kBankFigures);
  fields.account = ticked(names.account, u"Расч.счет:");
  fields.bank = NewText(this, names.bank.toString());
  fields.correspondent = ticked(names.correspondent, u"Кор.счет:");
  fields.industry_code = ticked(names.industry_code, u"Код по ОКОНХ:", kIndustryFigures);
  fields.firm_code = ticked(names.firm_code, u"Код по ОКПО:", kFirmFigures);
  fields.shipper = ticked(names.shipper, names.shipper_caption);

  rows.Add(fields.name_tick, fields.name);
  rows.Add(fields.address.tick, fields.address.text);
  rows.Add(fields.tax_number.tick,
           SideBySide({fields.tax_number.text, fields.bank_code.tick, fields.bank_code.text}));
  rows.Add(fields.account.tick, fields.account.text);
  QLabel* in_bank = NewCaption(this, u"в"_s, fields.bank);
  in_bank->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  rows.Add(in_bank, fields.bank);
  rows.Add(fields.correspondent.tick, fields.correspondent.text);
  rows.Add(fields.industry_code.tick,
           SideBySide({fields.industry_code.text, fields.firm_code.tick, fields.firm_code.text}));
  rows.Add(fields.shipper.tick, fields.shipper.text);
  connect(fields.name, &QComboBox::activated, this,
          [this, kind] { Guarded(this, [&] { LoadParty(kind); }); });
  return NewBox(names.box.toString(), grid);
}

QWidget* InvoiceScreen::NewPaymentBlock() {
  Check8 = NewTick(this, u"Check8"_s, u"К плате&жно-расчетному документу N:"_s, true);
  Text12 = NewText(this, u"Text12"_s);
  Check12 = NewTick(this, u"Check12"_s, u"от:"_s, true);
  Text13 = NewText(this, u"Text13"_s);
  Text33 = NewText(this, u"Text33"_s);
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  Text12->setAccessibleName(Check8->text().remove(u'&'));
  Text13->setAccessibleName(Check12->text().remove(u'&'));
  rows.Add(Check8, SideBySide({Text12, Check12, Text13}));
  rows.Add(NewCaption(this, u"При&мечание:"_s, Text33), Text33, NewHint(u"Примечание", {Text33}));
  grid->setContentsMargins(0, 0, 0, 0);
  auto* block = new QWidget(this);
  block->setLayout(grid);
  return block;
}

QWidget* InvoiceScreen::NewSignatureBlock() {
  Text34 = NewText(this, u"Text34"_s);
  Text36 = NewText(this, u"Text36"_s);
  Text35 = NewText(this, u"Text35"_s);
  auto* grid = new QGridLayout;
  FieldGrid rows(grid, 3);
  rows.Add(NewCaption(this, u"Рук&оводитель:"_s, Text34), Text34);
  rows.Add(NewCaption(this, u"Главный &бухгалтер:"_s, Text36), Text36);
  rows.Add(NewCaption(this, u"ИП:"_s, Text35), Text35);
  return NewBox(u"Расшифровка подписей"_s, grid);
}

void InvoiceScreen::BuildSheet(QWidget* sheet) {
  auto* parties = new Columns(look::kGrid);
  parties->Add(NewPartyBlock(PartyKind::kFirm));
  parties->Add(NewPartyBlock(PartyKind::kClient));
  auto* blocks = new QVBoxLayout(sheet);
  look::SetDialogMargins(blocks);
  blocks->addWidget(NewHeadBlock());
  blocks->addLayout(parties);
  blocks->addWidget(NewPaymentBlock());
  auto* sums = new Columns(look::kGrid);
  sums->Add(NewBox(u"Параметры"_s, NewParametersBlock(2)));
  sums->Add(NewBox(u"Итоги"_s, NewTotalsBlock()));
  blocks->addLayout(sums);
  blocks->addLayout(NewWordsBlock());
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
  BuildCommands(layout);
  ChainTabs();

  // All of it in sight where the display allows it.
  QSize size = sheet->sizeHint() + QSize(scroll->verticalScrollBar()->sizeHint().width(), 0);
  size.rheight() += layout->sizeHint().height() - scroll->sizeHint().height();
  resize(size.boundedTo(screen()->availableSize() * 0.95));
  Command1->setFocus();
}

void InvoiceScreen::BuildCommands(QVBoxLayout* layout) {
  Command1 = NewCommand(this, u"Command1"_s, u"П&ечать"_s, look::IconName::kPrint);
  Command2 = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  Command5 = NewHelpCommand(this, Context().data, u"uhodchfakt.htm", u"Command5");
  AddTwin(this, u"Command3"_s, Command1);
  AddTwin(this, u"Command4"_s, Command2);
  QBoxLayout* row = NewEndingRow(Command1, Command2);
  row->insertWidget(0, Command5);
  row->setContentsMargins(look::kMargin, 0, look::kMargin, 0);
  layout->addLayout(row);
  connect(Command1, &QPushButton::clicked, this, &InvoiceScreen::Print);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
}

void InvoiceScreen::ChainTabs() {
  QWidget* last = Text1;
  const auto follow = [&last](std::initializer_list<QWidget*> widgets) {
    for (QWidget* widget : widgets) {
      QWidget::setTabOrder(last, widget);
      last = widget;
    }
  };
  follow({Option1, Option2});
  for (const PartyFields* party : {&seller, &buyer}) {
    follow({party->name_tick, party->name, party->address.tick, party->address.text,
            party->tax_number.tick, party->tax_number.text, party->bank_code.tick,
            party->bank_code.text, party->account.tick, party->account.text, party->bank,
            party->correspondent.tick, party->correspondent.text, party->industry_code.tick,
            party->industry_code.text, party->firm_code.tick, party->firm_code.text,
            party->shipper.tick, party->shipper.text});
  }
  follow({Check8, Text12, Check12, Text13,   Text33,   Text18,  Text19, DecText1,
          Text7,  Text8,  Text34,  Text36,   Text35,   Text6,   Check5, Text9,
          Check6, Text10, Text20,  Command1, Command2, Command5});
}

}  // namespace kladez
