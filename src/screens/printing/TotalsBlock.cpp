#include "screens/printing/TotalsBlock.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QScopeGuard>

#include "screens/printing/ParametersBlock.h"
#include "screens/printing/PrintDialog.h"
#include "screens/printing/PrintFields.h"
#include "ui/controls/Fields.h"
#include "ui/controls/HintPicture.h"

namespace kladez {

using namespace Qt::StringLiterals;

struct TotalField {
  QStringView name;  // of the control
  QStringView caption;
  QStringView hint;
  QString TotalTexts::*value;
  // Of a tax: its box, whether that is ticked at first, and what it says of the paper.
  QStringView tick = {};
  bool ticked = false;
  bool PaperSums::*told_on_paper = nullptr;
};

namespace {

// Figures, and the words last.
constexpr TotalField kTotalFields[] = {
    {u"Text6", u"&Всего:", u"Всего", &TotalTexts::before},
    {u"Text9", u"Включа&я НДС:", u"Включая НДС", &TotalTexts::vat, u"Check5", true,
     &PaperSums::with_vat},
    {u"Text10", u"Нало&г с продаж:", u"Налог с продаж", &TotalTexts::sales_tax, u"Check6", false,
     &PaperSums::with_sales_tax},
    {u"Text20", u"&Итого к оплате:", u"Итого к оплате", &TotalTexts::words},
};

TextLine* NewField(PrintDialog& dialog, const TotalField& told) {
  const QString name = told.name.toString();
  if (told.value == &TotalTexts::before) return NewFigure(&dialog, name);
  const QString start = ParametersBlock::kFree.toString();
  return told.value == &TotalTexts::words ? NewText(&dialog, name, start)
                                          : NewFigure(&dialog, name, start);
}

}  // namespace

TotalsBlock::TotalsBlock(PrintDialog& dialog, Taxes taxes) : dialog_(dialog) {
  for (const TotalField& told : kTotalFields) {
    const bool tax = told.told_on_paper != nullptr;
    if (tax && taxes == Taxes::kNone) continue;
    QCheckBox* tick =
        tax ? NewTick(&dialog, told.tick.toString(), told.caption.toString(), told.ticked)
            : nullptr;
    fields_.push_back({&told, tick, NewField(dialog, told)});
  }
}

QGridLayout* TotalsBlock::NewFiguresGrid() const { return NewGrid(0, fields_.size() - 1); }

QGridLayout* TotalsBlock::NewWordsGrid() const {
  return NewGrid(fields_.size() - 1, fields_.size());
}

QGridLayout* TotalsBlock::NewGrid(size_t first, size_t end) const {
  auto* grid = new QGridLayout;
  FieldGrid rows(grid);
  for (size_t i = first; i < end; ++i) {
    const auto& [told, tick, text] = fields_[i];
    if (told->told_on_paper != nullptr) {
      rows.Add(tick, text, dialog_.NewHint(told->hint, {tick, text}));
    } else {
      rows.Add(NewCaption(&dialog_, told->caption.toString(), text), text,
               dialog_.NewHint(told->hint, {text}));
    }
  }
  grid->setColumnMinimumWidth(0, FieldGrid::CaptionWidth());
  return grid;
}

void TotalsBlock::Fill(const std::function<void(TotalTexts&)>& work) {
  PaperSums sums;
  ReadInto(sums);
  const auto show = qScopeGuard([&] {
    for (const Field& field : fields_) ShowText(field.text, sums.totals.*field.told->value);
  });
  work(sums.totals);
}

void TotalsBlock::ReadInto(PaperSums& sums) const {
  for (const auto& [told, tick, text] : fields_) {
    sums.totals.*told->value = text->text();
    if (told->told_on_paper != nullptr) sums.*told->told_on_paper = tick->isChecked();
  }
}

}  // namespace kladez
