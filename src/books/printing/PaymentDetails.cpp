#include "books/printing/PaymentDetails.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kAccountDigits = 20;
constexpr int kBankCodeDigits = 9;
constexpr int kFirmTaxDigits = 10;
constexpr int kPersonTaxDigits = 12;

// Texts may be longer on paper than in the code.
constexpr int kPayeeLetters = 160;
constexpr int kBankLetters = 45;
constexpr int kPurposeLetters = 210;

bool AreDigits(QStringView text) {
  return std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

int Digit(QChar c) { return c.unicode() - u'0'; }

// Banks of the Bank of Russia itself have no correspondent account: the last three digits of their
// codes are 000, 001 or 002.
bool IsBankOfRussia(const QString& bank_code) {
  return bank_code.endsWith(u"000") || bank_code.endsWith(u"001") || bank_code.endsWith(u"002");
}

// `office`: the three digits that stand for the bank in the key.
bool HasAccountKey(const QString& office, const QString& account) {
  static constexpr std::array kWeights = {7, 1, 3};
  const QString digits = office + account;
  int sum = 0;
  for (qsizetype i = 0; i < digits.size(); ++i) {
    sum += Digit(digits[i]) * kWeights[static_cast<size_t>(i) % kWeights.size()];
  }
  return sum % 10 == 0;
}

bool HasTaxDigit(const QString& number, std::span<const int> weights) {
  int sum = 0;
  for (size_t i = 0; i < weights.size(); ++i) {
    sum += Digit(number[static_cast<qsizetype>(i)]) * weights[i];
  }
  return sum % 11 % 10 == Digit(number[static_cast<qsizetype>(weights.size())]);
}

bool IsTaxNumber(const QString& number) {
  static constexpr std::array kFirm = {2, 4, 10, 3, 5, 9, 4, 6, 8};
  static constexpr std::array kPerson = {7, 2, 4, 10, 3, 5, 9, 4, 6, 8};
  static constexpr std::array kPersonLast = {3, 7, 2, 4, 10, 3, 5, 9, 4, 6, 8};
  return number.size() == kFirmTaxDigits
             ? HasTaxDigit(number, kFirm)
             : HasTaxDigit(number, kPerson) && HasTaxDigit(number, kPersonLast);
}

// Accounts and codes are often written in groups.
QString Compact(QString text) { return text.remove(u' ').remove(QChar::Nbsp).remove(u'.'); }

// "" or what is wrong with a number that must be there.
QString DigitsFault(QStringView what, const QString& number, std::initializer_list<int> counts) {
  if (number.isEmpty()) return what + u" не указан"_s;
  if (!AreDigits(number)) return what + u" содержит не только цифры"_s;
  if (std::ranges::find(counts, number.size()) == counts.end()) {
    QStringList wanted;
    for (const int count : counts) wanted << QString::number(count);
    return what + u": цифр "_s + QString::number(number.size()) + u", а нужно "_s +
           wanted.join(u" или "_s);
  }
  return {};
}

constexpr QStringView kWrongKey = u": контрольная цифра не сходится, проверьте номер";

QString AccountFault(QStringView what, const QString& number, const QString& office) {
  const QString fault = DigitsFault(what, number, {kAccountDigits});
  if (!fault.isEmpty()) return fault;
  return HasAccountKey(office, number) ? QString() : what + kWrongKey;
}

std::optional<qint64> Kopecks(const QString& sum) {
  const std::optional<double> roubles = ParseStrict(sum);
  if (!roubles || !(*roubles > 0)) return std::nullopt;
  return qRound64(*roubles * 100);
}

}  // namespace

QStringList PaymentFaults(const PaymentDetails& details) {
  QStringList faults;
  const auto tell = [&faults](const QString& fault) {
    if (!fault.isEmpty()) faults << fault;
  };
  if (details.payee.trimmed().isEmpty()) tell(u"Продавец не указан"_s);
  if (details.bank.trimmed().isEmpty()) tell(u"Банк не указан"_s);
  const QString bank_code = Compact(details.bank_code);
  const QString code_fault = DigitsFault(u"БИК", bank_code, {kBankCodeDigits});
  tell(code_fault);
  if (code_fault.isEmpty()) {
    const QString centre = u'0' + bank_code.mid(4, 2);
    const bool central = IsBankOfRussia(bank_code);
    tell(
        AccountFault(u"Расч.счет", Compact(details.account), central ? centre : bank_code.last(3)));
    const QString correspondent = Compact(details.correspondent);
    if (!central || !correspondent.isEmpty()) {
      tell(AccountFault(u"Кор.счет", correspondent, centre));
    }
  }
  const QString tax_number = Compact(details.tax_number);
  const QString tax_fault = DigitsFault(u"ИНН", tax_number, {kFirmTaxDigits, kPersonTaxDigits});
  tell(tax_fault);
  if (tax_fault.isEmpty() && !IsTaxNumber(tax_number)) tell(u"ИНН"_s + kWrongKey);
  if (!Kopecks(details.sum)) tell(u"Сумма к оплате не больше нуля"_s);
  return faults;
}

QByteArray PaymentText(const PaymentDetails& details) {
  const QString correspondent = Compact(details.correspondent);
  const std::pair<QStringView, QString> fields[] = {
      {u"Name", details.payee.simplified().left(kPayeeLetters)},
      {u"PersonalAcc", Compact(details.account)},
      {u"BankName", details.bank.simplified().left(kBankLetters)},
      {u"BIC", Compact(details.bank_code)},
      {u"CorrespAcc", correspondent.isEmpty() ? u"0"_s : correspondent},
      {u"Sum", QString::number(Kopecks(details.sum).value_or(0))},
      {u"Purpose", details.purpose.simplified().left(kPurposeLetters)},
      {u"PayeeINN", Compact(details.tax_number)},
  };
  const auto is_free = [&fields](QChar c) {
    return std::ranges::none_of(fields,
                                [c](const auto& field) { return field.second.contains(c); });
  };
  constexpr QStringView kSeparators = u"|~^;#";
  const auto* separator = std::ranges::find_if(kSeparators, is_free);
  const QChar between = separator == kSeparators.end() ? u'|' : *separator;
  QString text = u"ST00012"_s;
  for (const auto& [name, value] : fields) text += between + name + u'=' + value;
  return text.toUtf8();
}

}  // namespace kladez
