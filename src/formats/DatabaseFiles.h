// Where everything lies. Paths are those of the system, relative to what the comment above them
// names; the resolver of the data directory finds them in any letter case. What documents are
// called stands in their own tables (DocumentFormat, DocumentBook).
#pragma once

#include <QStringView>
#include <array>

namespace kladez::files {

// Beside the Databases, in the data directory.
inline constexpr QStringView kDescriptorExtension = u".us";  // "0001.us" beside "0001"
inline constexpr QStringView kPassword = u"bases.psw";       // the director's, one line
inline constexpr QStringView kPriceClipboard = u"temp.prc";
inline constexpr QStringView kPrintOut = u"out.htm";  // the page that the viewer shows

// In a Database.
inline constexpr QStringView kGoods = u"SPR\\товар.spr";
inline constexpr QStringView kFirms = u"SPR\\firma.spr";
inline constexpr QStringView kClients = u"SPR\\klient.spr";
inline constexpr QStringView kSuppliers = u"SPR\\post.spr";
inline constexpr QStringView kWarehouses = u"склад.usd";
inline constexpr QStringView kCurrency = u"currency.usd";
inline constexpr QStringView kAccounts = u"post.ras";  // with suppliers; nothing here writes it
inline constexpr QStringView kMarks = u"marked";
inline constexpr QStringView kTransfers = u"ВНПЕР";  // the directory of all transfers
inline constexpr std::array<QStringView, 5> kDirectories = {u"KASS", u"KASS\\PRH", u"KASS\\UHD",
                                                            u"SPR", kTransfers};

// In a Database, too: the folder in which programs of old never look, and what lies there.
inline constexpr QStringView kOwnDirectory = u"kladez";
inline constexpr QStringView kTaxRates = u"kladez\\ставки.usd";
inline constexpr QStringView kGoodsExtras = u"kladez\\товары.usd";
inline constexpr QStringView kClientTerms = u"kladez\\условия.usd";

// In a warehouse's directory.
inline constexpr QStringView kLedger = u"товар.usl";
inline constexpr QStringView kPriceNames = u"price.usd";
inline constexpr QStringView kPriceExtension = u".prc";
inline constexpr QStringView kPrices = u"PRICE";
inline constexpr QStringView kReceipts = u"PRH";
inline constexpr QStringView kShipments = u"UHD";
inline constexpr std::array<QStringView, 4> kWarehouseDirectories = {u"OPR", kReceipts, kPrices,
                                                                     kShipments};

// In a backup folder: the index by which it is known.
inline constexpr QStringView kBackupIndex = u"archive.idb";

}  // namespace kladez::files
