// What a bank's app needs to pay a bill, and the text of the code that it scans: the payment order
// of ГОСТ Р 56042-2014, version "ST00012" (UTF-8).
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace kladez {

// Texts as the bill prints them.
struct PaymentDetails {
  QString payee;
  QString account;        // of the payee, 20 digits
  QString bank;           // its name
  QString bank_code;      // БИК, 9 digits
  QString correspondent;  // the bank's account, 20 digits; none at the Bank of Russia itself
  QString tax_number;     // ИНН, 10 or 12 digits
  QString sum;            // roubles, "#0.00"
  QString purpose;
};

// Why the code can't be made, one sentence a field: what is missing, has a wrong count of digits or
// a wrong check digit. Empty where all is well. The key of an account is that of the Bank of
// Russia's rule 515 of 8 September 1997, those of an ИНН are the tax service's.
QStringList PaymentFaults(const PaymentDetails& details);

// The text of the code: fields parted by a character that none of them holds, texts cut where the
// standard ends them, the sum in kopecks. `details` must have no faults.
QByteArray PaymentText(const PaymentDetails& details);

}  // namespace kladez
