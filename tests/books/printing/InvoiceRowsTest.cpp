#include <gtest/gtest.h>

#include "books/printing/InputError.h"
#include "books/printing/InvoiceParties.h"
#include "books/printing/InvoiceRows.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

DocumentLine Line(const QString& name, const QString& quantity, const QString& price) {
  return {name, quantity, u"шт."_s, u"1"_s, price, {}};
}

TEST(InvoiceRows, EachFigureIsWorkedOutFromTheTextsBeforeIt) {
  struct Case {
    QString quantity;
    QString price;
    double factor;
    QString vat;
    InvoiceRow row;
  };
  const Case cases[] = {
      {u"10"_s,
       u"118"_s,
       1,
       u"18"_s,
       {{}, {}, {}, {}, {}, u"100.00"_s, u"1000.00"_s, {}, u"180.00"_s, u"1180.00"_s}},
      // The net sum is that of the rounded net price, so it does not make up gross less tax.
      {u"1000"_s,
       u"1.005"_s,
       1,
       u"18"_s,
       {{}, {}, {}, {}, {}, u"0.85"_s, u"850.00"_s, {}, u"153.31"_s, u"1005.00"_s}},
      {u"0.125"_s,
       u"1.005"_s,
       1,
       u"0"_s,
       {{}, {}, {}, {}, {}, u"1.01"_s, u"0.13"_s, {}, u"0.00"_s, u"0.13"_s}},
      {u"- 5"_s,
       u"60"_s,
       0.9 * 31.5,
       u"20"_s,
       {{}, {}, {}, {}, {}, u"1417.50"_s, u"-7087.50"_s, {}, u"-1417.50"_s, u"-8505.00"_s}},
  };
  for (const Case& c : cases) {
    const auto rows = InvoiceRows({Line(u"Чай"_s, c.quantity, c.price)}, c.factor, c.vat, {});
    ASSERT_EQ(rows.size(), 1u);
    InvoiceRow want = c.row;
    want.name = u"Чай"_s;
    want.unit = u"шт."_s;
    want.quantity = c.quantity;
    want.rate = c.vat;
    EXPECT_EQ(rows[0].net_price.toStdString(), want.net_price.toStdString());
    EXPECT_EQ(rows[0].net_sum.toStdString(), want.net_sum.toStdString());
    EXPECT_EQ(rows[0].tax.toStdString(), want.tax.toStdString());
    EXPECT_EQ(rows[0].gross.toStdString(), want.gross.toStdString());
    EXPECT_EQ(rows[0], want);
  }
}

TEST(InvoiceRows, OriginsComeFromTheLastLineThatEqualsTheName) {
  const QByteArray goods = EncodeLines(
      {u" Напитки"_s, u"Чай"_s, u"Индия"_s, u"ГТД 1"_s, u"шт."_s, u"1.00"_s, u"Кофе"_s, u"Чай"_s,
       u"ГТД 2"_s, u"шт."_s, u"1.00"_s, u"Соль"_s, u"Соль"_s, u"Соль"_s, u"пач."_s, u"1.00"_s});
  const auto rows = InvoiceRows({Line(u"Чай"_s, u"1"_s, u"1"_s), Line(u"Соль"_s, u"1"_s, u"1"_s),
                                 Line(u"Мёд"_s, u"1"_s, u"1"_s)},
                                1, u"18"_s, goods);
  // The country of the coffee reads like the tea's name, and stands later.
  EXPECT_EQ(rows[0].country, u"ГТД 2"_s);
  EXPECT_EQ(rows[0].declaration, u"шт."_s);
  // A record that was found is passed over whole.
  EXPECT_EQ(rows[1].country, u"Соль"_s);
  EXPECT_EQ(rows[1].declaration, u"Соль"_s);
  EXPECT_EQ(rows[2].country, u""_s);
  EXPECT_EQ(rows[2].declaration, u""_s);
}

TEST(InvoiceRows, TheDiscountStandsInRoublePricesOnly) {
  const PrintParameters parameters{u"100"_s, u"30"_s, u"10"_s, u"20"_s, u"5"_s};
  TotalTexts totals;
  FillInvoiceTotals(InvoiceCurrency::kRoubles, u"200.00"_s, parameters, u"руб."_s, RoubleCurrency(),
                    totals);
  EXPECT_EQ(totals, (TotalTexts{u"5400.00"_s, u"810.00 руб."_s, u"243.00 руб."_s,
                                u"Четыре тысячи восемьсот шестьдесят рублей 00 копеек"_s}));
  FillInvoiceTotals(InvoiceCurrency::kDollars, u"200.00"_s, parameters, u"руб."_s, RoubleCurrency(),
                    totals);
  EXPECT_EQ(totals, (TotalTexts{u"6000.00"_s, u"900.00$"_s, u"270.00$"_s,
                                u"Пять тысяч четыреста рублей 00 копеек"_s}));
}

TEST(InvoiceRows, SumsAddThePrintedFigures) {
  const InvoiceSums sums = SumsOf(InvoiceRows(
      {Line(u"А"_s, u"1"_s, u"1.005"_s), Line(u"Б"_s, u"1"_s, u"1.005"_s)}, 1, u"0"_s, {}));
  EXPECT_EQ(sums.net, u"2.02"_s);
  EXPECT_EQ(sums.gross, u"2.02"_s);
  EXPECT_EQ(sums.tax, u"0.00"_s);
}

TEST(InvoiceRows, ATextThatIsNoNumberStopsTheLoad) {
  EXPECT_THROW(InvoiceRows({Line({}, u"2 шт"_s, u"1"_s)}, 1, u"18"_s, {}), InputError);
  EXPECT_THROW(InvoiceRows({Line({}, u"2"_s, u""_s)}, 1, u"18"_s, {}), InputError);
  EXPECT_THROW(InvoiceRows({Line({}, u"2"_s, u"1"_s)}, 1, u"восемнадцать"_s, {}), InputError);
  PrintParameters parameters;
  parameters.discount = u"free"_s;
  EXPECT_THROW(InvoiceFactor(InvoiceCurrency::kRoubles, parameters), InputError);
  EXPECT_EQ(InvoiceFactor(InvoiceCurrency::kDollars, parameters), 1);
}

TEST(InvoiceParties, FieldsGoToTheirPlaceByMeaning) {
  QStringList lines;
  for (const auto& name : {u"Первая"_s, u"Вторая"_s}) {
    for (int i = 1; i <= 15; ++i) lines << (i == 1 ? name : name + QString::number(i));
  }
  const QByteArray firms = EncodeLines(lines);
  const InvoiceParty seller =
      InvoicePartyOf(PartyKind::kFirm, PartyNamed(PartyKind::kFirm, firms, u"Вторая"_s));
  EXPECT_EQ(seller[PartyField::kAccount].text, u"Вторая6"_s);
  EXPECT_EQ(seller[PartyField::kBank].text, u"Вторая7"_s);
  EXPECT_EQ(seller[PartyField::kFirmCode].text, u"Вторая12"_s);
  EXPECT_EQ(seller[PartyField::kShipper].text, u"Вторая13"_s);

  lines.clear();
  for (int i = 1; i <= 14; ++i) lines << (i == 1 ? u"Клиент"_s : u"к"_s + QString::number(i));
  const InvoiceParty buyer = InvoicePartyOf(
      PartyKind::kClient, PartyNamed(PartyKind::kClient, EncodeLines(lines), u"Клиент"_s));
  EXPECT_EQ(buyer[PartyField::kAccount].text, u"к7"_s);
  EXPECT_EQ(buyer[PartyField::kBankCode].text, u"к11"_s);
  EXPECT_EQ(buyer[PartyField::kFirmCode].text, u"к14"_s);
  EXPECT_EQ(buyer[PartyField::kShipper].text, u"он же"_s);
}

TEST(InvoiceParties, AnUnknownNameAndANewDatabaseLeaveNoStrayTexts) {
  const InvoiceParty nobody = InvoicePartyOf(PartyKind::kClient, {});
  EXPECT_EQ(nobody[PartyField::kLegalAddress].text, u""_s);
  QStringList seed = {u"Ваша фирма"_s};
  while (seed.size() < 15) seed << u"-"_s;
  const Party firm = PartyNamed(PartyKind::kFirm, EncodeLines(seed), u"Ваша фирма"_s);
  EXPECT_EQ(InvoicePartyOf(PartyKind::kFirm, firm)[PartyField::kShipper].text, u"он же"_s);
}

}  // namespace
}  // namespace kladez
