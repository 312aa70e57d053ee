#include "screens/printing/WaybillScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QScopeGuard>
#include <QVBoxLayout>

#include "books/printing/AmountInWords.h"
#include "screens/printing/PrintFields.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/FoldButton.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TickedText Ticked(const QCheckBox* tick, const QString& text) { return {text, tick->isChecked()}; }

}  // namespace

WaybillScreen::WaybillScreen(AppContext& context, const PrintSource& source, const QString& name,
                             DocumentKind kind, QWidget* parent)
    : TotalsScreen(context, source, name,
                   kind == DocumentKind::kTransfer ? Taxes::kNone : Taxes::kShown,
                   kind == DocumentKind::kShipment ? kFree.toString() : u"0"_s, parent),
      kind_(kind) {
  Build();
  Reload();
}

QLayout* WaybillScreen::NewHeadBlock() {
  const WaybillLabels labels = WaybillLabelsOf(kind_);
  Text1 = NewText(this, u"Text1"_s);
  Text1->setAccessibleName(u"Заголовок"_s);
  Text1->setFont(look::HeadingFont(font()));
  Check7 = NewTick(this, u"Check7"_s, u"Приме&ч.:"_s, false);
  Text12 = NewText(this, u"Text12"_s);
  Check1 = NewTick(this, u"Check1"_s, u'&' + labels.from, true);
  Text2 = NewTextCombo(this, u"Text2"_s);
  Check2 = NewTick(this, u"Check2"_s, u'&' + labels.to, true);
  Text3 = NewTextCombo(this, u"Text3"_s);
  Check3 = NewTick(this, u"Check3"_s, u"Ос&нование:"_s, false);
  Text4 = NewText(this, u"Text4"_s);

  auto* grid = new QGridLayout;
  FieldGrid fields(grid);
  fields.Add(Check7, Text12, NewHint(u"Примечание", {Check7, Text12}));
  fields.Add(Check1, Text2);
  fields.Add(Check2, Text3);
  fields.Add(Check3, Text4);
  if (kind_ != DocumentKind::kTransfer) {
    Check4 = NewTick(this, u"Check4"_s, u"Ск&лад:"_s, true);
    Text5 = NewText(this, u"Text5"_s);
    fields.Add(Check4, Text5);
  }
  grid->setColumnMinimumWidth(0, FieldGrid::CaptionWidth());
  auto* block = new QVBoxLayout;
  block->setSpacing(look::kGrid);
  block->addWidget(Text1);
  block->addLayout(grid);
  return block;
}

void WaybillScreen::Build() {
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  // The window keeps to what it holds when the panel folds.
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addLayout(NewHeadBlock());
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(NewTotalsBlock());
  layout->addLayout(NewWordsBlock());

  auto* panel = new QWidget(this);
  auto* parameters = NewParametersBlock(kind_ == DocumentKind::kTransfer ? 2 : 3);
  parameters->setContentsMargins(0, 0, 0, 0);
  panel->setLayout(parameters);
  GoldButton1 = new FoldButton(u"GoldButton1"_s, u"Пара&метры"_s, panel, false, this);
  layout->addWidget(GoldButton1);
  layout->addWidget(panel);
  layout->addSpacing(look::kGrid);

  Command1 = NewCommand(this, u"Command1"_s, u"&Печать"_s, look::IconName::kPrint);
  Command2 = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  AddTwin(this, u"Command3"_s, Command1);
  AddTwin(this, u"Command4"_s, Command2);
  layout->addLayout(NewEndingRow(Command1, Command2));
  Text1->setMinimumWidth(86 * look::kGrid);

  connect(Command1, &QPushButton::clicked, this,
          [this] { PrintPage(u"nakl.htm"_s, [this] { return WaybillPage(Form()); }); });
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  SetTabChain({Command1, Command2,    Text1,  Check7, Text12,   Check1, Text2, Check2, Text3,
               Check3,   Text4,       Check4, Text5,  Text6,    Check5, Text9, Check6, Text10,
               Text20,   GoldButton1, Text18, Text19, DecText1, Text7,  Text8});
  Command1->setFocus();
}

void WaybillScreen::Load() {
  LoadRates();
  setWindowTitle(u"Накладная"_s);
  const PrintSource& source = Source();
  Text1->setText(u"Накладная N "_s + source.number + u" от "_s + source.date);
  Text4->clear();
  if (Text5 != nullptr) Text5->setText(source.warehouse);
  LoadParties();
  LoadTotals();
}

void WaybillScreen::LoadTotals() {
  TotalTexts totals = Totals();
  // A failure on the way leaves what was worked out on the screen.
  const auto show = qScopeGuard([&] { ShowTotals(totals); });
  totals.before = TotalBefore(Source().total, Parameters());
  if (kind_ == DocumentKind::kTransfer) {
    totals.words = AmountInWords(totals.before, TheCurrency());
  } else {
    FillTotals(Parameters(), {.grouped = true, .currency = u' ' + Context().session.currency_name},
               TheCurrency(), totals);
  }
}

void WaybillScreen::LoadParties() {
  const Session& session = Context().session;
  const PrintSource& source = Source();
  const auto fill = [](QComboBox* combo, const QStringList& entries, const QString& text) {
    SetEntries(combo, entries);
    combo->setEditText(text);
  };
  switch (kind_) {
    case DocumentKind::kShipment:
      fill(Text2, session.Parties(PartyKind::kFirm), FirstFirm());
      fill(Text3, session.Parties(PartyKind::kClient), source.party);
      break;
    case DocumentKind::kReceipt:
      fill(Text2, session.Parties(PartyKind::kSupplier), source.party);
      fill(Text3, session.Parties(PartyKind::kFirm), FirstFirm());
      break;
    case DocumentKind::kTransfer:
      fill(Text2, session.warehouses, source.party);
      fill(Text3, session.warehouses, source.destination);
      break;
  }
}

WaybillForm WaybillScreen::Form() const {
  WaybillForm form;
  form.kind = kind_;
  form.title = Text1->text();
  form.note = Ticked(Check7, Text12->text());
  form.from = Ticked(Check1, Text2->currentText());
  form.to = Ticked(Check2, Text3->currentText());
  form.grounds = Ticked(Check3, Text4->text());
  if (Check4 != nullptr) form.warehouse = Ticked(Check4, Text5->text());
  form.parameters = Parameters();
  form.totals = Totals();
  if (Check5 != nullptr) {
    form.with_vat = Check5->isChecked();
    form.with_sales_tax = Check6->isChecked();
  }
  form.rub = Context().session.currency_name;
  form.lines = Source().lines;
  return form;
}

}  // namespace kladez
