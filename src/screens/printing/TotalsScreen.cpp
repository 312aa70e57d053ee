#include "screens/printing/TotalsScreen.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include "screens/printing/PrintFields.h"
#include "ui/controls/Fields.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

TotalsScreen::TotalsScreen(AppContext& context, const PrintSource& source, const QString& name,
                           Taxes taxes, const QString& discount, QWidget* parent)
    : PrintScreen(context, source, name, parent) {
  const PrintParameters start;
  Text18 = NewFigure(this, u"Text18"_s, start.percent);
  Text6 = NewFigure(this, u"Text6"_s);
  Text20 = NewText(this, u"Text20"_s, kFree.toString());
  FollowWhenLeft(Text18);
  if (taxes == Taxes::kNone) return;
  Text19 = NewFigure(this, u"Text19"_s, discount);
  Text7 = NewFigure(this, u"Text7"_s, start.vat);
  Text8 = NewFigure(this, u"Text8"_s, start.sales_tax);
  Text9 = NewFigure(this, u"Text9"_s, kFree.toString());
  Text10 = NewFigure(this, u"Text10"_s, kFree.toString());
  Check5 = NewTick(this, u"Check5"_s, u"Включа&я НДС:"_s, true);
  Check6 = NewTick(this, u"Check6"_s, u"Нало&г с продаж:"_s, false);
  FollowWhenLeft(Text19);
  ReloadWhenLeft(Text7);
  ReloadWhenLeft(Text8);
}

QGridLayout* TotalsScreen::NewTotalsBlock() {
  auto* grid = new QGridLayout;
  FieldGrid fields(grid);
  fields.Add(NewCaption(this, u"&Всего:"_s, Text6), Text6, NewHint(u"Всего", {Text6}));
  if (Check5 != nullptr) {
    fields.Add(Check5, Text9, NewHint(u"Включая НДС", {Check5, Text9}));
    fields.Add(Check6, Text10, NewHint(u"Налог с продаж", {Check6, Text10}));
  }
  grid->setColumnMinimumWidth(0, FieldGrid::CaptionWidth());
  return grid;
}

QGridLayout* TotalsScreen::NewWordsBlock() {
  auto* grid = new QGridLayout;
  FieldGrid fields(grid);
  fields.Add(NewCaption(this, u"&Итого к оплате:"_s, Text20), Text20,
             NewHint(u"Итого к оплате", {Text20}));
  grid->setColumnMinimumWidth(0, FieldGrid::CaptionWidth());
  return grid;
}

QGridLayout* TotalsScreen::NewParametersBlock(int groups_a_row) {
  auto* grid = new QGridLayout;
  FieldGrid fields(grid, groups_a_row);
  fields.Add(NewCaption(this, u"&Цены:"_s, Text18), Text18, NewHint(u"Цены", {Text18}));
  if (Text19 != nullptr) {
    fields.Add(NewCaption(this, u"Скидк&а %:"_s, Text19), Text19, NewHint(u"Скидка", {Text19}));
  }
  fields.Add(NewCaption(this, u"К&урс $:"_s, DecText1), DecText1,
             NewHint(u"Курс доллара", {DecText1}));
  if (Text7 != nullptr) {
    fields.Add(NewCaption(this, u"Н&ДС:"_s, Text7), Text7, NewHint(u"НДС", {Text7}));
    fields.Add(NewCaption(this, u"Н&СП:"_s, Text8), Text8, NewHint(u"НСП", {Text8}));
  }
  return grid;
}

void TotalsScreen::FollowWhenLeft(TextLine* percentage) {
  WhenLeft(percentage, [this, percentage] {
    if (!percentage->isModified()) return;
    percentage->setModified(false);
    Attempt([this] { LoadTotals(); });
  });
}

void TotalsScreen::SaveRates() {
  SettingsStore& settings = Context().settings;
  settings.Write(settings::kRate, DecText1->text());
  if (Text7 == nullptr) return;
  settings.Write(settings::kVat, Text7->text());
  settings.Write(settings::kSalesTax, Text8->text());
}

void TotalsScreen::LoadRates() {
  DecText1->setText(Context().settings.Read(settings::kRate));
  if (Text19 != nullptr && Text19->text() == kFree) Text19->setText(Source().discount);
}

PrintParameters TotalsScreen::Parameters() const {
  PrintParameters parameters;
  parameters.percent = Text18->text();
  parameters.rate = DecText1->text();
  if (Text7 != nullptr) {
    parameters.discount = Text19->text();
    parameters.vat = Text7->text();
    parameters.sales_tax = Text8->text();
  }
  return parameters;
}

TotalTexts TotalsScreen::Totals() const {
  TotalTexts totals;
  totals.before = Text6->text();
  totals.words = Text20->text();
  if (Text9 != nullptr) {
    totals.vat = Text9->text();
    totals.sales_tax = Text10->text();
  }
  return totals;
}

void TotalsScreen::ShowTotals(const TotalTexts& totals) {
  Text6->setText(totals.before);
  ShowText(Text20, totals.words);
  if (Text9 == nullptr) return;
  Text9->setText(totals.vat);
  Text10->setText(totals.sales_tax);
}

}  // namespace kladez
