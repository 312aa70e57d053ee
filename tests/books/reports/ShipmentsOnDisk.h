// Shipments and receipts written line by line, as they lie in a Database of two warehouses.
#pragma once

#include <QString>
#include <QStringList>

#include "TempData.h"
#include "books/store/Session.h"

namespace kladez {

class DocumentsOnDisk {
 public:
  DocumentsOnDisk(const TempData& data, Session& session) : data_(data), session_(session) {
    session.base_path = QStringLiteral("0001\\");
    session.currency_name = QStringLiteral("руб.");
    session.warehouses = {QStringLiteral("Главный склад"), QStringLiteral("Магазин")};
    for (const QString& name : session.warehouses) {
      QDir().mkpath(data.Root() + QStringLiteral("/0001/") + name + QStringLiteral("/UHD"));
      QDir().mkpath(data.Root() + QStringLiteral("/0001/") + name + QStringLiteral("/PRH"));
    }
  }

  // Each goods line is six texts: name, quantity, unit, cost, price, net price.
  void Ship(int warehouse, const QString& file, const QString& date, const QString& discount,
            const QString& net_sum, const QStringList& goods,
            const QString& closed = QStringLiteral("да")) const {
    data_.PutLines(
        session_.Path(session_.warehouses[warehouse], QString(QStringLiteral("UHD\\") + file)),
        QStringList{QStringLiteral("7"), date, QStringLiteral("Клиент"), QStringLiteral("0.00"),
                    discount, net_sum, closed} +
            goods);
  }
  void Receive(int warehouse, const QString& file, const QString& date, const QString& sum) const {
    data_.PutLines(
        session_.Path(session_.warehouses[warehouse], QString(QStringLiteral("PRH\\") + file)),
        {QStringLiteral("1"), date, QStringLiteral("Поставщик"), sum, QStringLiteral("да"),
         QStringLiteral("Чай"), QStringLiteral("1"), QStringLiteral("шт."), sum});
  }

 private:
  const TempData& data_;
  Session& session_;
};

// With a data directory of their own, for tests without a window.
struct BooksOnDisk {
  TempData temp;
  Session session;
};
struct ShipmentsOnDisk : BooksOnDisk, DocumentsOnDisk {
  ShipmentsOnDisk() : DocumentsOnDisk(temp, session) {}
};

}  // namespace kladez
