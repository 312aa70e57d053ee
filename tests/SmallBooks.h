// One small Database, said in few words by the tests of everything that works on one:
//
//   SmallBooks books(temp.Data(), session);
//   books.Warehouses(u"Лавка|Подвал"_lines)
//       .Goods(u" Чай|Улун|Китай|-|пач.|90.00"_lines)
//       .Ledger(u"Лавка"_s, u"Улун|5|пач."_lines);
#pragma once

#include "TempData.h"
#include "books/stock/DocumentDraft.h"
#include "books/stock/RegisterView.h"
#include "books/store/Catalogue.h"
#include "formats/CurrencyFile.h"
#include "formats/DatabaseFiles.h"

namespace kladez {

class SmallBooks {
 public:
  // The Database 0001 is open in the session, and empty. Both outlive the builder.
  SmallBooks(const DataDir& data, Session& session) : data_(data), session_(session) {
    session.base_path = u"0001\\"_s;
    session.currency_name = u"руб."_s;
  }
  // The Database is made as the program makes one: nothing is lacking.
  SmallBooks(const DataDir& data, Session& session, const QString& name)
      : data_(data), session_(session) {
    session.chosen_base = CreateDatabase(data, name);
    EXPECT_TRUE(OpenDatabase(session, data));
  }

  // With empty ledgers, and with the directories of documents.
  SmallBooks& Warehouses(const QStringList& names) {
    session_.warehouses = names;
    for (const QString& name : names) {
      Ledger(name, {});
      for (const QStringView part : {files::kReceipts, files::kShipments}) {
        QDir().mkpath(data_.Resolve(session_.Path(name, part)));
      }
    }
    QDir().mkpath(data_.Resolve(session_.Path(files::kTransfers)));
    return *this;
  }
  // What the lists of the screens offer, and the records of the file.
  SmallBooks& Parties(PartyKind kind, const QStringList& names) {
    session_.Parties(kind) = names;
    return *this;
  }
  SmallBooks& PartyFile(PartyKind kind, const QStringList& lines) {
    return Put(PartyPath(kind).toString(), lines);
  }
  // Nothing is marked.
  SmallBooks& Goods(const QStringList& lines) {
    return Put(files::kGoods.toString(), lines).Put(files::kMarks.toString(), {});
  }
  SmallBooks& Ledger(const QString& warehouse, const QStringList& lines) {
    PutFile(data_, LedgerPath(session_, warehouse), EncodeLines(lines));
    return *this;
  }
  // The names of a warehouse's price lists and the lines of each.
  SmallBooks& PriceLists(const QString& warehouse, const QStringList& names,
                         const std::vector<QStringList>& lists) {
    Put(warehouse + u'\\' + files::kPriceNames, names);
    for (size_t i = 0; i < lists.size(); ++i) {
      Put(warehouse + u"\\PRICE\\%1.prc"_s.arg(i + 1, 4, 10, QLatin1Char('0')), lists[i]);
    }
    return *this;
  }
  SmallBooks& Roubles() {
    PutFile(data_, session_.Path(files::kCurrency), WriteCurrency(RoubleCurrency()));
    return *this;
  }
  // `path` is that in the Database.
  SmallBooks& Put(const QString& path, const QStringList& lines) {
    PutFile(data_, session_.Path(path), EncodeLines(lines));
    return *this;
  }

  // The lines of documents as they lie in a warehouse, told by its place in the list. Each goods
  // line of a shipment is six texts: name, quantity, unit, cost, price, net price.
  void Ship(int warehouse, const QString& file, const QString& date, const QString& discount,
            const QString& net_sum, const QStringList& goods, const QString& closed = u"да"_s) {
    Put(session_.warehouses[warehouse] + u"\\UHD\\"_s + file,
        QStringList{u"7"_s, date, u"Клиент"_s, u"0.00"_s, discount, net_sum, closed} + goods);
  }
  void Receive(int warehouse, const QString& file, const QString& date, const QString& sum) {
    Put(session_.warehouses[warehouse] + u"\\PRH\\"_s + file,
        {u"1"_s, date, u"Поставщик"_s, sum, u"да"_s, u"Чай"_s, u"1"_s, u"шт."_s, sum});
  }

  // In the first warehouse; a transfer goes from it to the second.
  DraftPlace In(DocumentKind kind) const { return In(data_, session_, kind); }
  static DraftPlace In(const DataDir& data, const Session& session, DocumentKind kind) {
    return {data, session, kind,
            kind == DocumentKind::kTransfer ? QString() : session.warehouses.value(0)};
  }
  // Saves a document of one line as its editor does.
  void Save(DocumentKind kind, const GoodsPick& line, bool closed, QDate date) const {
    DocumentDraft draft = DocumentDraft::New(In(kind), date);
    draft.SetClosed(closed);
    draft.AddLine(line);
    EXPECT_EQ(draft.Save(), DraftOutcome::kSaved);
  }
  // A document as its register of 2026 shows it; the first one where no file is named.
  DocumentDraft Open(DocumentKind kind, const QString& file = {}) const {
    DocumentRegister rows(data_, session_, kind);
    rows.Load(In(kind).warehouse, {.period = RegisterFilter::Period::kYear, .year = u"2026"_s},
              QDate(2026, 11, 22), false);
    const RegisterView view(kind, rows.Rows());
    return DocumentDraft::Open(In(kind), view.Row(file.isEmpty() ? 0 : view.PlaceOf(file)));
  }

 private:
  const DataDir& data_;
  Session& session_;
};

struct OwnDisk {
  TempData temp;
  Session session;
};
// With a data directory of its own and two warehouses, for tests without a window.
struct BooksOnDisk : OwnDisk, SmallBooks {
  BooksOnDisk() : SmallBooks(temp.Data(), session) { Warehouses(u"Главный склад|Магазин"_lines); }
};

// The lines of every file of the Database that has any, by its path in it.
inline std::map<QString, QStringList> Filled(const TempData& temp) {
  std::map<QString, QStringList> files;
  for (const auto& [path, bytes] : temp.Tree()) {
    const QString name = QString::fromStdString(path);
    if (bytes.empty() || !name.startsWith(u"0001/"_s)) continue;
    const QByteArray whole = QByteArray::fromStdString(bytes);
    const QStringList lines = DecodeLines(whole);
    EXPECT_EQ(EncodeLines(lines), whole) << path << " does not end each line in CR LF";
    files[name.mid(5)] = lines;
  }
  return files;
}

}  // namespace kladez
