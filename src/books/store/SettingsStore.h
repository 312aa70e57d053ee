// The per-user settings: text values by application root, section and key, kept in one file of the
// user's configuration directory. They follow the user from one Database to another. The file is
// always the old one or the new one, whole; one that can't be read, or is no plain file, is not
// written, and the settings last as long as the program.
#pragma once

#include <QString>

#include "formats/IniFile.h"

namespace kladez {

struct Setting {
  QStringView root;
  QStringView section;
  QStringView key;
  QStringView otherwise;  // what an absent key reads as
};

// Every setting of the program.
namespace settings {
inline constexpr Setting kBaseName{u"Kladez4", u"Main", u"basename", u""};
inline constexpr Setting kBaseTitle{u"Kladez4", u"Main", u"basename1", u""};
inline constexpr Setting kFilePos{u"Kladez4", u"Options", u"FilePos", u"1"};
inline constexpr Setting kRole{u"Kladez4", u"Options", u"Chel",
                               u""};  // never read back, on purpose
inline constexpr Setting kTip{u"Kladez4", u"Options", u"Tip", u"1"};
inline constexpr Setting kReport{u"Kladez4", u"Options", u"Report", u"1"};
inline constexpr Setting kPanel{u"Kladez4", u"Options", u"Panel", u"1"};
// 0 the colours of the desktop, 1 light, 2 dark.
inline constexpr Setting kScheme{u"Kladez4", u"Options", u"Scheme", u"0"};
inline constexpr Setting kPriceGroups{u"Kladez4", u"Price", u"op1", u"True"};
inline constexpr Setting kPriceGoodsOnly{u"Kladez4", u"Price", u"op2", u"False"};
inline constexpr Setting kStockGroups{u"Kladez4", u"Sklad", u"op1", u"True"};
inline constexpr Setting kStockGoodsOnly{u"Kladez4", u"Sklad", u"op2", u"False"};
inline constexpr Setting kGoodsGroups{u"Kladez4", u"Spr", u"op1", u"True"};
inline constexpr Setting kGoodsGoodsOnly{u"Kladez4", u"Spr", u"op2", u"False"};
// Column widths "c1" to "c6" of the goods directory are written and never read back.
inline constexpr Setting kGoodsColumn{u"Kladez4", u"SPRSklad", u"c", u""};
// Ours, beside the told ones: the goods picked last, whether the receipt's picker stays open, and
// the folders that copies were made in and brought back from.
inline constexpr Setting kLastPick{u"Kladez4", u"Picking", u"Last", u""};
inline constexpr Setting kKeepPicking{u"Kladez4", u"Picking", u"Stay", u"False"};
inline constexpr Setting kBackupFolder{u"Kladez4", u"Copies", u"Backup", u""};
inline constexpr Setting kRestoreFolder{u"Kladez4", u"Copies", u"Restore", u""};
// How charts were shown last, by the number of the kind.
inline constexpr Setting kChartKind{u"Kladez4", u"Chart", u"Kind", u"0"};
// The folder that tables were saved in.
inline constexpr Setting kTableFolder{u"Kladez4", u"Tables", u"Folder", u""};
// Of the time machine: megabytes for all copies, the second place for them, and the day on which
// that was there last.
inline constexpr Setting kCopyRoom{u"Kladez4", u"Copies", u"Room", u"500"};
inline constexpr Setting kSecondPlace{u"Kladez4", u"Copies", u"Second", u""};
inline constexpr Setting kSecondSeen{u"Kladez4", u"Copies", u"Seen", u""};
inline constexpr Setting kSort{u"Kladez4", u"Sorting", u"Sort", u"AZ"};
// The register of transfers keeps its order apart from the others, under the shorter root.
inline constexpr Setting kTransferSort{u"Kladez", u"Sorting", u"Sort", u"AZ"};
inline constexpr Setting kInvoiceTrader{u"Kladez4", u"chFact", u"IP", u""};
// The discount of a rouble invoice taken once, the document's discount in a cash order, the code to
// pay a bill by.
inline constexpr Setting kDiscountOnce{u"Kladez4", u"Print", u"DiscountOnce", u"False"};
inline constexpr Setting kOrderDiscount{u"Kladez4", u"Print", u"OrderDiscount", u"False"};
inline constexpr Setting kPaymentCode{u"Kladez4", u"Print", u"PaymentCode", u"False"};
inline constexpr Setting kRate{u"Kladez4", u"nums", u"doll", u"1"};
inline constexpr Setting kVat{u"Kladez4", u"nums", u"nds", u""};       // written only
inline constexpr Setting kSalesTax{u"Kladez4", u"nums", u"nsp", u""};  // written only
}  // namespace settings

class SettingsStore {
 public:
  // The settings of the machine's user, or those in a file of the caller's choice.
  explicit SettingsStore(const QString& file = {});

  // A read that fails gives the setting's default.
  QString Read(const Setting& setting) const;
  bool ReadBool(const Setting& setting) const;  // "True" or "False", or a number other than 0
  int ReadInt(const Setting& setting) const;
  void Write(const Setting& setting, const QString& text);
  void WriteBool(const Setting& setting, bool on);  // "True" or "False"

 private:
  bool Load();  // false where the file must not be written

  QString file_;
  IniLines lines_;
};

}  // namespace kladez
