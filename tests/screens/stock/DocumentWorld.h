// Books of documents behind real screens, and the typing that tests of these screens share.
#pragma once

#include <QDate>

#include "ScreenDriver.h"
#include "books/stock/Books.h"
#include "books/stock/DocumentDraft.h"
#include "formats/CurrencyFile.h"

namespace kladez {

class DocumentWorld : public ScreenWorld {
 public:
  DocumentWorld() {
    SeedBooks(Temp(), TheSession());
    Temp().PutLines(QStringLiteral("0001\\spr\\товар.spr"), {QStringLiteral(" Бакалея"),
                                                             QStringLiteral("Чай"),
                                                             QStringLiteral("Индия"),
                                                             {},
                                                             QStringLiteral("шт."),
                                                             QStringLiteral("45.50")});
    Temp().Put(QStringLiteral("0001\\marked"), {});
    // What the print screens read as they open.
    Temp().Put(QStringLiteral("0001\\currency.usd"), WriteCurrency(RoubleCurrency()));
    QStringList firm{QStringLiteral("Ваша фирма")};
    while (firm.size() < 15) firm << QStringLiteral("-");
    Temp().PutLines(QStringLiteral("0001\\spr\\firma.spr"), firm);
    Temp().Put(QStringLiteral("0001\\spr\\klient.spr"), {});
    Temp().Put(QStringLiteral("0001\\spr\\post.spr"), {});
    Temp().PutLines(QStringLiteral("0001\\Склад\\price.usd"), {QStringLiteral("Розница")});
    Temp().Put(QStringLiteral("0001\\Склад\\PRICE\\0001.prc"), {});
  }

  DocumentDraft::Place In(DocumentKind kind) {
    return {Temp().Data(), TheSession(), kind,
            kind == DocumentKind::kTransfer ? QString() : QStringLiteral("Склад")};
  }

  // Saves a document of today with one line: three of tea at 60.
  void Put(DocumentKind kind, bool closed = false, QDate date = QDate(2026, 11, 22)) {
    DocumentDraft draft = DocumentDraft::New(In(kind), date);
    draft.SetClosed(closed);
    draft.AddLine({.name = QStringLiteral("Чай"),
                   .quantity = QStringLiteral("3"),
                   .unit = QStringLiteral("шт."),
                   .cost = QStringLiteral("45.50"),
                   .price = QStringLiteral("60")});
    ASSERT_EQ(draft.Save(), DocumentDraft::Outcome::kSaved);
  }

  DocumentDraft Open(DocumentKind kind, const QString& file) {
    DocumentRegister rows(Temp().Data(), TheSession(), kind);
    rows.Load(QStringLiteral("Склад"),
              {.period = RegisterFilter::Period::kYear, .year = QStringLiteral("2026")},
              QDate(2026, 11, 22), false);
    return DocumentDraft::Open(In(kind), rows.Rows().at(rows.RowOf(file)));
  }
};

}  // namespace kladez
