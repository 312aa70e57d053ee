// A table that another program made: CSV, rows parted by tabs, what a spreadsheet puts on the
// clipboard.
//
//   Наименование;Ед.;Цена           columns parted by ";", "," or tabs
//   "Чай ""Ассам""; 100 г";пач.;45,00
//
// Windows-1251, UTF-8 or UTF-16, with their marks or without; lines end in CR LF, LF or CR.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <vector>

namespace kladez {

struct SheetRow {
  int number;         // of the row as a spreadsheet counts them, from 1
  QStringList cells;  // as they stand, blanks at their ends included
};

struct Sheet {
  std::vector<SheetRow> rows;  // none of them is empty
  int columns = 0;             // of the longest row
  bool is_cut = false;         // there was more than the limits let in
};

// The limits: what lies behind them is left out, and said so.
inline constexpr int kMostSheetColumns = 64;
inline constexpr qsizetype kMostSheetCells = 2'000'000;

// The text of a file, whatever of the encodings it is in; never fails.
QString DecodeSheet(QByteArrayView bytes);
// Never fails: a text without any of the separators is one column.
Sheet ReadSheet(const QString& text);

}  // namespace kladez
