// Books of many shipments of five lines in three warehouses, for the benches of reading.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <stdexcept>
#include <string>
#include <vector>

#include "PlainReading.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {

class ShipmentBooks {
 public:
  // Their dates are those of the thousand days up to `today`.
  ShipmentBooks(int count, QDate today) : data(directory_.path()), today_(today) {
    using namespace Qt::StringLiterals;
    session.base_path = u"0001\\"_s;
    for (int w = 0; w < kWarehouses; ++w) {
      session.warehouses << u"Склад %1"_s.arg(w + 1);
      QDir().mkpath(Directory(w));
    }
    for (int i = 0; i < count; ++i) {
      QFile file(Directory(i % kWarehouses) +
                 u"/%1.uhd"_s.arg(i / kWarehouses + 1, 6, 10, QChar(u'0')));
      const QByteArray bytes = Shipment(i);
      if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("no room for the shipments");
      }
    }
  }

  std::vector<std::string> Directories() const {
    std::vector<std::string> all;
    for (int w = 0; w < kWarehouses; ++w) all.push_back(Directory(w).toStdString());
    return all;
  }

  void ForgetAll() const {
    for (const std::string& directory : Directories()) ForgetFiles(directory);
  }

 private:
  static constexpr int kWarehouses = 3;
  static constexpr int kLines = 5;
  static constexpr int kGoods = 2'000;

  QString Directory(int warehouse) const {
    using namespace Qt::StringLiterals;
    return directory_.path() + u"/0001/"_s + session.warehouses[warehouse] + u"/UHD"_s;
  }

  // Every third shipment has a discount, every seventh line a fraction.
  QByteArray Shipment(int i) const {
    using namespace Qt::StringLiterals;
    LineWriter file;
    const int discount = i % 3 == 0 ? 5 : 0;
    double sum = 0;
    QStringList lines;
    for (int line = 0; line < kLines; ++line) {
      const int item = static_cast<int>((qint64(i) * 7919 + line * 331) % kGoods);
      const double quantity = (item + line) % 7 == 0 ? 2.5 : 1 + item % 12;
      const double price = 10 + item % 900 + 0.45;
      const double net = RoundMoney(price - price * discount / 100);
      sum += quantity * net;
      lines << u"Чай чёрный байховый № %1, 100 г"_s.arg(item) << GeneralText(quantity) << u"пач."_s
            << FormatMoney(price * 0.7) << FormatMoney(price) << FormatMoney(net);
    }
    for (const QString& line :
         {QString::number(i), DateText(today_.addDays(-(i % 1000))), u"ООО «Ромашка»"_s,
          FormatMoney(sum), QString::number(discount), FormatMoney(sum), u"да"_s}) {
      file.Add(line);
    }
    for (const QString& line : lines) file.Add(line);
    return file.Take();
  }

  QTemporaryDir directory_;

 public:
  DataDir data;
  Session session;

 private:
  QDate today_;
};

}  // namespace kladez
