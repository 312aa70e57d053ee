#include <gtest/gtest.h>

#include <functional>

#include "books/printing/PaymentDetails.h"
#include "books/printing/QrPicture.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Invented numbers whose keys are right.
PaymentDetails GoodDetails() {
  return {.payee = u"ООО \"Колодец | Ключ\""_s,
          .account = u"40702810500000012345"_s,
          .bank = u"ОАО \"БАНК\""_s,
          .bank_code = u"044599987"_s,
          .correspondent = u"30101810105000000987"_s,
          .tax_number = u"9900123450"_s,
          .sum = u"1062.10"_s,
          .purpose = u"Оплата: Счет N 5 от 12.03.2026"_s};
}

TEST(PaymentDetails, ASoundBillIsATextWithKopecksAndAFreeSeparator) {
  PaymentDetails details = GoodDetails();
  EXPECT_EQ(PaymentFaults(details), QStringList());
  EXPECT_EQ(QString::fromUtf8(PaymentText(details)),
            u"ST00012~Name=ООО \"Колодец | Ключ\"~PersonalAcc=40702810500000012345"
            u"~BankName=ОАО \"БАНК\"~BIC=044599987~CorrespAcc=30101810105000000987~Sum=106210"
            u"~Purpose=Оплата: Счет N 5 от 12.03.2026~PayeeINN=9900123450");
  details.payee = u"ИП Ключ"_s;
  details.account = u"40702 810 5 0000 0012345"_s;  // as people group it
  details.tax_number = u"990012345668"_s;
  EXPECT_EQ(PaymentFaults(details), QStringList());
  EXPECT_TRUE(PaymentText(details).startsWith("ST00012|Name="));
  EXPECT_TRUE(PaymentText(details).contains("|PersonalAcc=40702810500000012345|"));
}

TEST(PaymentDetails, WhatIsMissingOrWrongIsToldFieldByField) {
  struct Case {
    QString PaymentDetails::*field;
    QString text;
    QString fault;
  };
  const Case cases[] = {
      {&PaymentDetails::payee, u" "_s, u"Продавец не указан"_s},
      {&PaymentDetails::bank, u""_s, u"Банк не указан"_s},
      {&PaymentDetails::bank_code, u"04459998"_s, u"БИК: цифр 8, а нужно 9"_s},
      {&PaymentDetails::account, u""_s, u"Расч.счет не указан"_s},
      {&PaymentDetails::account, u"40702810500000012346"_s,
       u"Расч.счет: контрольная цифра не сходится, проверьте номер"_s},
      {&PaymentDetails::account, u"4070281050000001234А"_s,
       u"Расч.счет содержит не только цифры"_s},
      {&PaymentDetails::correspondent, u"30101810105000000988"_s,
       u"Кор.счет: контрольная цифра не сходится, проверьте номер"_s},
      {&PaymentDetails::tax_number, u"9900123451"_s,
       u"ИНН: контрольная цифра не сходится, проверьте номер"_s},
      {&PaymentDetails::tax_number, u"990012345669"_s,
       u"ИНН: контрольная цифра не сходится, проверьте номер"_s},
      {&PaymentDetails::tax_number, u"990012345"_s, u"ИНН: цифр 9, а нужно 10 или 12"_s},
      {&PaymentDetails::sum, u"0.00"_s, u"Сумма к оплате не больше нуля"_s},
  };
  for (const Case& wrong : cases) {
    PaymentDetails details = GoodDetails();
    details.*wrong.field = wrong.text;
    EXPECT_EQ(PaymentFaults(details), QStringList{wrong.fault}) << wrong.fault.toStdString();
  }
}

TEST(PaymentDetails, APictureIsABlackAndWhiteBitmapAndTooMuchTextIsNone) {
  const QByteArray picture = QrPicture(PaymentText(GoodDetails()));
  EXPECT_TRUE(picture.startsWith("BM"));
  EXPECT_EQ(QrPicture(QByteArray(4000, 'x')), QByteArray());
}

}  // namespace
}  // namespace kladez
