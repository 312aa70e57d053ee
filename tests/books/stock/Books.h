// A small Database for the tests of documents: two warehouses, a supplier, a client, and what
// writes documents and tells whole trees apart.
#pragma once

#include "TempData.h"
#include "books/store/Session.h"
#include "formats/DocumentFile.h"

namespace kladez {

inline void SeedBooks(const TempData& temp, Session& session) {
  session.base_path = QStringLiteral("0001\\");
  session.currency_name = QStringLiteral("руб.");
  session.warehouses = {QStringLiteral("Склад"), QStringLiteral("Магазин")};
  session.Parties(PartyKind::kSupplier) = {QStringLiteral("ООО Заря")};
  session.Parties(PartyKind::kClient) = {QStringLiteral("ИП Петров"), QStringLiteral("ООО Свет")};
  for (const QString& name : session.warehouses) {
    temp.Put(session.Path(name, u"товар.usl"), {});
    for (const QStringView part : {u"PRH", u"UHD"}) {
      QDir().mkpath(temp.Data().Resolve(session.Path(name, part)));
    }
  }
  QDir().mkpath(temp.Data().Resolve(session.Path(u"ВНПЕР")));
}

// The lines of every file of the tree that has any, by its path below the Database.
inline std::map<QString, QStringList> Filled(const TempData& temp) {
  std::map<QString, QStringList> files;
  for (const auto& [path, bytes] : temp.Tree()) {
    const QString name = QString::fromStdString(path);
    if (bytes.empty() || !name.startsWith(QStringLiteral("0001/"))) continue;
    const QByteArray whole = QByteArray::fromStdString(bytes);
    const QStringList lines = DecodeLines(whole);
    EXPECT_EQ(EncodeLines(lines), whole) << path << " does not end each line in CR LF";
    files[name.mid(5)] = lines;
  }
  return files;
}

}  // namespace kladez
