#include <filesystem>

#include "TempData.h"
#include "books/stock/DocumentScan.h"

namespace kladez {
namespace {

using H = DocumentHead;
using L = DocumentLine;

const QString kDirectory = u"0001\\Склад\\UHD"_s;

QByteArray Shipment(const QString& number, const QString& date) {
  DocumentHead head;
  head.number = number;
  head.date = date;
  head.party = u"Заря"_s;
  head.sum = u"10.00"_s;
  head.discount = u"5"_s;
  head.net_sum = u"9.50"_s;
  head.closed = u"да"_s;
  const DocumentLine line{u"Чай"_s, u"2"_s, u"пач."_s, u"4.00"_s, u"5.00"_s, u"4.75"_s};
  return WriteDocument(DocumentKind::kShipment, {head, {line, line}});
}

// What a scan saw of each document, in a line of text.
QStringList Seen(const TempData& temp) {
  QStringList seen;
  ScanDocuments(temp.Data(), DocumentKind::kShipment, kDirectory, Unreadable::kPassOver,
                [&](ScannedDocument& document) {
                  int lines = 0;
                  QString last;
                  while (document.NextLine()) {
                    ++lines;
                    last = DecodeText(document.Line(&L::name)) + u'/' +
                           DecodeText(document.Line(&L::net_price));
                  }
                  seen << document.File() + u' ' + DecodeText(document.Head(&H::net_sum)) + u' ' +
                              QString::number(lines) + last +
                              (document.HasWholeHead() ? u" head"_s : u""_s) +
                              (document.Date() ? u" dated"_s : u""_s) +
                              (document.IsCut() ? u" cut"_s : u""_s);
                  return true;
                });
  return seen;
}

TEST(DocumentScan, TellsWholeGroupsFromWhatWasCut) {
  const TempData temp;
  const QByteArray whole = Shipment(u"1"_s, u"01.11.2026"_s);
  const auto put = [&](const QString& name, const QByteArray& bytes) {
    temp.Put(kDirectory + u'\\' + name, bytes);
  };
  put(u"0001.uhd"_s, whole);
  put(u"0002.UHD"_s, whole.chopped(2));  // only the end of the last line is missing
  put(u"0003.uhd"_s, whole.first(whole.lastIndexOf("4.75")));
  put(u"0004.uhd"_s, whole.first(whole.indexOf("9.50")));
  put(u"0005.uhd"_s, {});
  put(u"0006.uhd"_s, Shipment(u"1"_s, u"31.02.2026"_s));
  put(u"0007.prh"_s, whole);
  EXPECT_EQ(Seen(temp),
            QStringList(u"0001.uhd 9.50 2Чай/4.75 head dated|0002.UHD 9.50 2Чай/4.75 head dated|"
                        u"0003.uhd 9.50 1Чай/4.75 head dated cut|0004.uhd  0 dated cut|"
                        u"0005.uhd  0 cut|0006.uhd 9.50 2Чай/4.75 head"_lines));
}

TEST(DocumentScan, AFieldThatTheKindLacksIsEmpty) {
  const QString file = u"0001.vpr"_s;
  const QByteArray bytes = EncodeText(u"7\r\n01.11.2026 \r\nСклад\r\nМагазин\r\n5.00\r\n");
  ScannedDocument document(FormatOf(DocumentKind::kTransfer), file, bytes);
  EXPECT_EQ(document.Head(&H::closed), QByteArrayView());
  EXPECT_FALSE(document.Has(&H::closed));
  EXPECT_EQ(document.Head(&H::destination), EncodeText(u"Магазин"));
  EXPECT_EQ(document.Date(), QDate(2026, 11, 1));  // with the blank of old files
  EXPECT_FALSE(document.NextLine());
  EXPECT_FALSE(document.IsCut());
}

TEST(DocumentScan, AFileThatCannotBeReadStopsOrIsPassedOverAsAsked) {
  const TempData temp;
  temp.Put(kDirectory + u"\\0001.uhd"_s, Shipment(u"1"_s, u"01.11.2026"_s));
  temp.Put(kDirectory + u"\\0002.uhd"_s, Shipment(u"2"_s, u"01.11.2026"_s));
  // The file goes while the scan is on its way to it, which even a superuser can't read past.
  const auto scan = [&](Unreadable unreadable) {
    int visits = 0;
    ScanDocuments(temp.Data(), DocumentKind::kShipment, kDirectory, unreadable,
                  [&](ScannedDocument&) {
                    ++visits;
                    QFile::remove(temp.Data().Resolve(kDirectory + u"\\0002.uhd"_s));
                    return true;
                  });
    return visits;
  };
  EXPECT_THROW(scan(Unreadable::kStop), std::filesystem::filesystem_error);
  temp.Put(kDirectory + u"\\0002.uhd"_s, Shipment(u"2"_s, u"01.11.2026"_s));
  EXPECT_EQ(scan(Unreadable::kPassOver), 1);
  EXPECT_THROW(ScanDocuments(temp.Data(), DocumentKind::kShipment, u"0001\\Нет\\UHD"_s,
                             Unreadable::kPassOver, [](ScannedDocument&) { return true; }),
               std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
