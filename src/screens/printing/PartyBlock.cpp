#include "screens/printing/PartyBlock.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "books/printing/InvoiceParties.h"
#include "screens/printing/PrintDialog.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

// The names of the controls and the captions of one side.
struct PartyControls {
  QStringView tick;  // empty: a caption without a box
  QStringView text;
  QStringView caption;
};

struct PartyRow {
  PartyField field;
  PartyControls seller;
  PartyControls buyer;
  int figures = 0;      // for which there is room at least
  bool beside = false;  // in the line of the row before
};

namespace {

using F = PartyField;

// Figures of a tax number, a bank code, and the two classifiers.
constexpr int kTaxFigures = 12;
constexpr int kBankFigures = 9;
constexpr int kIndustryFigures = 6;
constexpr int kFirmFigures = 10;

constexpr PartyRow kPartyRows[] = {
    {F::kName, {u"Check1", u"Text2", u"&Поставщик:"}, {u"Check9", u"Text14", u"Покупате&ль:"}},
    {F::kLegalAddress, {u"Check2", u"Text3", u"Адрес:"}, {u"Check10", u"Text15", u"Адрес:"}},
    {F::kTaxNumber, {u"Check3", u"Text4", u"ИНН:"}, {u"Check11", u"Text16", u"ИНН:"}, kTaxFigures},
    {F::kBankCode,
     {u"Check21", u"Text31", u"БИК"},
     {u"Check22", u"Text32", u"БИК"},
     kBankFigures,
     true},
    {F::kAccount, {u"Check13", u"Text21", u"Расч.счет:"}, {u"Check17", u"Text27", u"Расч.счет:"}},
    {F::kBank, {u"", u"Text22", u"в"}, {u"", u"Text26", u"в"}},
    {F::kCorrespondent,
     {u"Check14", u"Text23", u"Кор.счет:"},
     {u"Check20", u"Text30", u"Кор.счет:"}},
    {F::kIndustryCode,
     {u"Check15", u"Text24", u"Код по ОКОНХ:"},
     {u"Check19", u"Text28", u"Код по ОКОНХ:"},
     kIndustryFigures},
    {F::kFirmCode,
     {u"Check16", u"Text25", u"Код по ОКПО:"},
     {u"Check18", u"Text29", u"Код по ОКПО:"},
     kFirmFigures,
     true},
    {F::kShipper,
     {u"Check4", u"Text5", u"Грузоотправитель:"},
     {u"Check7", u"Text11", u"Грузополучатель:"}},
};

const PartyControls& ControlsOf(const PartyRow& row, PartyKind kind) {
  return kind == PartyKind::kFirm ? row.seller : row.buyer;
}

}  // namespace

PartyBlock::PartyBlock(PrintDialog& dialog, PartyKind kind, const Shown& shown)
    : dialog_(dialog), kind_(kind), shown_(shown) {
  for (const PartyRow& row : kPartyRows) {
    const PartyControls& told = ControlsOf(row, kind);
    const QString caption = told.caption.toString();
    Field made{&row, {}};
    if (!told.tick.isEmpty())
      made.field.tick = NewTick(&dialog, told.tick.toString(), caption, true);
    if (row.field == F::kName) {
      name_ = NewTextCombo(&dialog, told.text.toString());
      made.field.text = LineOf(name_);
    } else {
      TextLine* text = NewText(&dialog, told.text.toString());
      if (row.figures > 0) KeepRoomFor(text, row.figures);
      text->setAccessibleName(caption);
      made.field.text = text;
    }
    fields_.push_back(made);
  }
  QObject::connect(name_, &QComboBox::activated, &dialog,
                   [this] { Guarded(&dialog_, [this] { ShowRecord(); }); });
}

QGroupBox* PartyBlock::NewBox() const {
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  for (size_t i = 0; i < fields_.size(); ++i) {
    const auto& [told, field] = fields_[i];
    if (field.tick == nullptr) {
      QLabel* caption =
          NewCaption(&dialog_, ControlsOf(*told, kind_).caption.toString(), field.text);
      caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      rows.Add(caption, field.text);
    } else if (told->field == F::kName) {
      rows.Add(field.tick, name_);
    } else if (i + 1 < fields_.size() && fields_[i + 1].told->beside) {
      const TickedField& beside = fields_[++i].field;
      rows.Add(field.tick, SideBySide({field.text, beside.tick, beside.text}));
    } else {
      rows.Add(field.tick, field.text);
    }
  }
  return NewBoxOf(&dialog_, kind_ == PartyKind::kFirm ? u"Продавец"_s : u"Покупатель"_s, grid);
}

void PartyBlock::Load(const QStringList& names, const QString& name) {
  SetEntries(name_, names);
  name_->setEditText(name);
  ShowRecord();
}

void PartyBlock::ShowRecord() {
  const QByteArray records = dialog_.FileOf(PartyPath(kind_));
  const InvoiceParty party =
      InvoicePartyOf(kind_, PartyNamed(kind_, records, name_->currentText()));
  for (const auto& [told, field] : fields_) {
    if (told->field != F::kName) ShowText(field.text, party[told->field].text);
  }
  if (shown_) shown_(party);
}

InvoiceParty PartyBlock::Read() const {
  InvoiceParty party;
  for (const auto& [told, field] : fields_) party[told->field] = field.Read();
  return party;
}

}  // namespace kladez
