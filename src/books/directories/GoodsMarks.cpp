#include "books/directories/GoodsMarks.h"

#include <QHash>
#include <set>

#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "formats/TextLines.h"

namespace kladez {

QString MarksPath(const Session& session) { return session.Path(files::kMarks); }

QStringList ReadMarks(const DataDir& data, const Session& session, FileState& file) {
  QByteArray bytes;
  IgnoreErrors([&] { bytes = ReadIfThere(data, MarksPath(session), file); });
  return DecodeLines(bytes);
}

std::vector<bool> TickRows(const GoodsRows& rows, const QStringList& names) {
  // Only beginnings as long as one of the names are looked up, so that no name is searched for in
  // all rows.
  constexpr int kNowhere = -1;
  QHash<QStringView, int> first_row;
  std::set<qsizetype> lengths;
  for (const QString& name : names) {
    first_row.insert(name, kNowhere);
    lengths.insert(name.size());
  }
  for (size_t row = 0; row < rows.size(); ++row) {
    const QString text = rows.Text(row, &GoodsRecord::name);
    for (const qsizetype length : lengths) {
      if (length > text.size()) break;
      const auto found = first_row.find(QStringView(text).first(length));
      if (found != first_row.end() && *found == kNowhere) *found = static_cast<int>(row);
    }
  }
  std::vector<bool> ticks(rows.size());
  for (const QString& name : names) {
    const int row = first_row.value(name, kNowhere);
    if (row == kNowhere) break;
    ticks[row] = true;
  }
  return ticks;
}

QByteArray WriteMarks(const GoodsRows& rows, const std::vector<bool>& ticks) {
  LineWriter writer;
  for (size_t row = 0; row < rows.size(); ++row) {
    if (ticks[row]) writer.Add(rows.Text(row, &GoodsRecord::name));
  }
  return writer.Take();
}

}  // namespace kladez
