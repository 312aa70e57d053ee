#include "screens/printing/WaybillScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/Fields.h"
#include "ui/controls/FoldButton.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

struct WaybillHeadRow {
  QStringView tick;
  QStringView text;
  QStringView caption;  // empty: the label of the kind's paper
  bool ticked;
  TickedText WaybillForm::*value;
  QString WaybillLabels::*label = nullptr;  // of a party, picked from a list
};

namespace {

constexpr WaybillHeadRow kHeadRows[] = {
    {u"Check7", u"Text12", u"Приме&ч.:", false, &WaybillForm::note},
    {u"Check1", u"Text2", u"", true, &WaybillForm::from, &WaybillLabels::from},
    {u"Check2", u"Text3", u"", true, &WaybillForm::to, &WaybillLabels::to},
    {u"Check3", u"Text4", u"Ос&нование:", false, &WaybillForm::grounds},
    {u"Check4", u"Text5", u"Ск&лад:", true, &WaybillForm::warehouse},
};

using P = PrintParameters;
constexpr ParameterField kPercent{u"Text18", u"&Цены:", u"Цены", &P::percent};
constexpr ParameterField kRate{u"DecText1", u"К&урс $:", u"Курс доллара", &P::rate,
                               &settings::kRate};
constexpr ParameterField kParameters[] = {
    kPercent,
    {u"Text19", u"Скидк&а %:", u"Скидка", &P::discount},
    kRate,
    {u"Text7", u"Н&ДС:", u"НДС", &P::vat, &settings::kVat},
    {u"Text8", u"Н&СП:", u"НСП", &P::sales_tax, &settings::kSalesTax},
};
constexpr ParameterField kTransferParameters[] = {kPercent, kRate};

// What tells the three screens apart. The parties are picked from a directory, or else from the
// warehouses.
struct WaybillKindText {
  QStringView name;  // of the screen
  TotalsBlock::Taxes taxes;
  std::span<const ParameterField> parameters;
  int parameters_a_row;
  QStringView discount;  // at first
  std::optional<PartyKind> from;
  std::optional<PartyKind> to;
};

const WaybillKindText& TextOf(DocumentKind kind) {
  using Taxes = TotalsBlock::Taxes;
  static constexpr WaybillKindText kShipment = {
      u"PrihNakl",      Taxes::kShown,     kParameters, 3, ParametersBlock::kFree,
      PartyKind::kFirm, PartyKind::kClient};
  static constexpr WaybillKindText kReceipt = {
      u"prihnokl", Taxes::kShown, kParameters, 3, u"0", PartyKind::kSupplier, PartyKind::kFirm};
  static constexpr WaybillKindText kTransfer = {
      u"vnNakl", Taxes::kNone, kTransferParameters, 2, u"0", {}, {}};
  switch (kind) {
    case DocumentKind::kReceipt:
      return kReceipt;
    case DocumentKind::kTransfer:
      return kTransfer;
    default:
      return kShipment;
  }
}

PrintParameters StartOf(const PrintDialog& dialog) {
  PrintParameters start = dialog.Start();
  start.discount = TextOf(dialog.Source().kind).discount.toString();
  return start;
}

}  // namespace

WaybillScreen::WaybillScreen(AppContext& context, const PrintSource& source, QWidget* parent)
    : PrintDialog(context, source, TextOf(source.kind).name.toString(), parent),
      title_(NewText(this, u"Text1"_s)),
      head_(NewHead()),
      totals_(*this, TextOf(source.kind).taxes),
      parameters_(*this, TextOf(source.kind).parameters, StartOf(*this),
                  {.reload = [this] { Attempt([this] { Load(); }); },
                   .recount = [this] { Attempt([this] { LoadTotals(); }); }}),
      notes_(*this, parameters_) {
  Build();
  Attempt([this] { Load(); });
}

std::vector<WaybillScreen::HeadField> WaybillScreen::NewHead() {
  const WaybillLabels labels = WaybillLabelsOf(Source().kind);
  std::vector<HeadField> head;
  for (const WaybillHeadRow& row : kHeadRows) {
    // The head of a transfer's tells both its warehouses already.
    if (row.value == &WaybillForm::warehouse && Source().kind == DocumentKind::kTransfer) continue;
    const QString caption =
        row.label != nullptr ? QString(u'&' + labels.*row.label) : row.caption.toString();
    HeadField field{&row, nullptr, {NewTick(this, row.tick.toString(), caption, row.ticked)}};
    if (row.label != nullptr) {
      QComboBox* combo = NewTextCombo(this, row.text.toString());
      field.editor = combo;
      field.field.text = LineOf(combo);
    } else {
      field.editor = field.field.text = NewText(this, row.text.toString());
    }
    head.push_back(field);
  }
  return head;
}

QLayout* WaybillScreen::NewHeadBlock() {
  title_->setAccessibleName(u"Заголовок"_s);
  title_->setFont(look::HeadingFont(font()));
  title_->setMinimumWidth(86 * look::kGrid);
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  for (const auto& [told, editor, field] : head_) {
    const bool note = told->value == &WaybillForm::note;
    rows.Add(field.tick, editor, note ? NewHint(u"Примечание", {field.tick, editor}) : nullptr);
  }
  grid->setColumnMinimumWidth(0, FieldGrid::CaptionWidth());
  auto* block = new QVBoxLayout;
  block->setSpacing(look::kGrid);
  block->addWidget(title_);
  block->addLayout(grid);
  return block;
}

void WaybillScreen::Build() {
  setWindowTitle(u"Накладная"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  // The window keeps to what it holds when the panel folds.
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addLayout(NewHeadBlock());
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(totals_.NewFiguresGrid());
  layout->addLayout(totals_.NewWordsGrid());
  layout->addWidget(notes_.WordsNote());

  auto* panel = new QWidget(this);
  QGridLayout* parameters = parameters_.NewGrid(TextOf(Source().kind).parameters_a_row);
  parameters->setContentsMargins(0, 0, 0, 0);
  panel->setLayout(parameters);
  auto* fold = new FoldButton(u"GoldButton1"_s, u"Пара&метры"_s, panel, false, this);
  setTabOrder(totals_.Words(), fold);
  layout->addWidget(fold);
  layout->addWidget(panel);
  layout->addSpacing(look::kGrid);
  layout->addLayout(notes_.NewRows());
  layout->addLayout(NewCommands(u"&Печать"_s, [this] { Print(); }));
}

void WaybillScreen::Load() {
  parameters_.Load();
  const PrintSource& source = Source();
  const Session& session = Context().session;
  const WaybillKindText& text = TextOf(source.kind);
  title_->setText(u"Накладная N "_s + source.number + u" от "_s + source.date);
  const bool transfer = source.kind == DocumentKind::kTransfer;
  // The own firm is at the other end.
  const QString own = transfer ? source.destination : FirstFirm();
  const bool to_party = source.kind == DocumentKind::kShipment;
  for (const auto& [told, editor, field] : head_) {
    if (told->label != nullptr) {
      const bool from = told->value == &WaybillForm::from;
      const std::optional<PartyKind>& kind = from ? text.from : text.to;
      SetEntries(static_cast<QComboBox*>(editor),
                 kind ? session.Parties(*kind) : session.warehouses);
      field.text->setText(from == to_party ? own : source.party);
    } else if (told->value == &WaybillForm::grounds) {
      field.text->clear();
    } else if (told->value == &WaybillForm::warehouse) {
      field.text->setText(source.warehouse);
    }
  }
  LoadTotals();
}

void WaybillScreen::LoadTotals() {
  notes_.Clear();
  totals_.Fill([this](TotalTexts& totals) {
    const PrintParameters parameters = parameters_.Read();
    FillWaybillTotals(Source().kind, Source().total, parameters, Context().session.currency_name,
                      ReadCurrencyForms(), totals);
    notes_.Show({.total = Source().total,
                 .parameters = parameters,
                 .due = AmountDue(totals.before, parameters),
                 .waybill_discount = parameters.discount},
                true);
  });
}

void WaybillScreen::Print() {
  PrintPage(u"nakl.htm"_s, [this] {
    WaybillForm form;
    form.kind = Source().kind;
    form.title = title_->text();
    for (const HeadField& field : head_) form.*field.told->value = field.field.Read();
    form.sums.parameters = parameters_.Read();
    form.sums.rub = Context().session.currency_name;
    totals_.ReadInto(form.sums);
    form.lines = Source().lines;
    return WaybillPage(form);
  });
}

}  // namespace kladez
