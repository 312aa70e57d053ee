// Books of documents behind real screens.
#pragma once

#include "ScreenDriver.h"
#include "SmallBooks.h"

namespace kladez {

class DocumentWorld : public ScreenWorld {
 public:
  DocumentWorld() {
    books_.Warehouses(u"Склад|Магазин"_lines)
        .Parties(PartyKind::kSupplier, {u"ООО Заря"_s})
        .Parties(PartyKind::kClient, u"ИП Петров|ООО Свет"_lines)
        .Goods(u" Бакалея|Чай|Индия||шт.|45.50"_lines)
        .PriceLists(u"Склад"_s, {u"Розница"_s}, {{}})
        // What the print screens read as they open.
        .Roubles()
        .PartyFile(PartyKind::kFirm, QStringList{u"Ваша фирма"_s} + QStringList(14, u"-"_s))
        .PartyFile(PartyKind::kClient, {})
        .PartyFile(PartyKind::kSupplier, {});
  }

  DraftPlace In(DocumentKind kind) { return books_.In(kind); }
  DocumentDraft Open(DocumentKind kind, const QString& file) { return books_.Open(kind, file); }
  // Saves a document of today with one line: three of tea at 60.
  void Put(DocumentKind kind, bool closed = false, QDate date = QDate(2026, 11, 22)) {
    books_.Save(kind, {u"Чай"_s, u"3"_s, u"шт."_s, u"45.50"_s, u"60"_s}, closed, date);
  }

 private:
  SmallBooks books_{Temp().Data(), CurrentSession()};
};

}  // namespace kladez
