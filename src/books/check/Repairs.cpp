#include "books/check/Repairs.h"

#include <algorithm>
#include <array>

#include "books/check/StrictLines.h"
#include "books/store/Catalogue.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/GoodsFile.h"
#include "formats/InOrder.h"
#include "formats/PriceFile.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QByteArray WholeLines(QByteArrayView bytes) {
  StrictLines lines;
  FindingList findings;
  lines.Read({}, bytes, findings);
  if (!lines.AreAll()) return bytes.toByteArray();
  LineWriter writer;
  for (const QByteArrayView line : lines.Lines()) writer.AddRaw(line);
  return writer.Take();
}

// A character that Windows-1251 lacks leaves the bytes as they are.
QByteArray Recoded(QByteArrayView bytes) {
  if (!IsUtf8Text(bytes)) return bytes.toByteArray();
  QString text = QString::fromUtf8(bytes);
  if (text.startsWith(QChar(QChar::ByteOrderMark))) text.remove(0, 1);
  const bool fits = std::all_of(text.begin(), text.end(), [](QChar c) { return CanEncode(c); });
  return fits ? EncodeText(text) : bytes.toByteArray();
}

QByteArray WithoutEmptyEnd(QByteArrayView bytes) {
  StrictLines lines;
  FindingList findings;
  lines.Read({}, bytes, findings);
  if (!lines.AreAll()) return bytes.toByteArray();
  LineWriter writer;
  for (size_t i = 0; i < lines.FilledLines(); ++i) writer.AddRaw(lines.Lines()[i]);
  return writer.Take();
}

QStringList GoodsNames(const DataDir& data, const Session& session) {
  QStringList names;
  ForEachGoods(data.Read(session.Path(files::kGoods)),
               [&](const RawGoods& goods) { names.append(DecodeText(goods.name)); });
  std::sort(names.begin(), names.end());
  return names;
}

QByteArray KnownPrices(QByteArrayView bytes, const QStringList& goods) {
  LineWriter writer;
  for (const PriceRecord& row : ReadPrices(bytes)) {
    if (row.IsGroup() || std::binary_search(goods.begin(), goods.end(), row.name)) {
      AddPrice(writer, row);
    }
  }
  return writer.Take();
}

QByteArray KnownMarks(QByteArrayView bytes, const QStringList& goods) {
  LineWriter writer;
  for (const QString& name : DecodeLines(bytes)) {
    const auto at = std::lower_bound(goods.begin(), goods.end(), name);
    if (at != goods.end() && at->startsWith(name)) writer.Add(name);
  }
  return writer.Take();
}

QByteArray RepairedFile(const DataDir& data, const Session& session, const Finding& finding,
                        const QByteArray& bytes) {
  switch (finding.repair) {
    case Repair::kLineEnds:
      return WholeLines(bytes);
    case Repair::kEncoding:
      return Recoded(bytes);
    case Repair::kEmptyEnd:
      return WithoutEmptyEnd(bytes);
    case Repair::kUnknownPrices:
      return KnownPrices(bytes, GoodsNames(data, session));
    case Repair::kUnknownMarks:
      return KnownMarks(bytes, GoodsNames(data, session));
    case Repair::kDoubleWarehouse: {
      QStringList names = DecodeLines(bytes);
      names.removeDuplicates();
      return EncodeLines(names);
    }
    case Repair::kListWarehouse:
    case Repair::kMakeWarehouse:
    case Repair::kNone:
      break;
  }
  return bytes;
}

// The warehouse whose name stands in the line of the list that the finding names.
QString ListedWarehouse(const DataDir& data, const Session& session, const Finding& finding) {
  return DecodeLines(data.Read(session.Path(files::kWarehouses))).value(finding.line - 1);
}

bool AddRepair(SaveSet& save, const DataDir& data, const Session& session, const Finding& finding) {
  if (finding.repair == Repair::kNone) return false;
  if (finding.repair == Repair::kMakeWarehouse) {
    const QString name = ListedWarehouse(data, session, finding);
    if (name.isEmpty() || data.DirectoryExists(session.Path(name))) return false;
    AddNewWarehouse(save, session.Path(name));
    return true;
  }
  if (finding.repair == Repair::kListWarehouse) {
    QStringList names = DecodeLines(data.Read(session.Path(files::kWarehouses)));
    if (names.contains(finding.file)) return false;
    save.Write(session.Path(files::kWarehouses), EncodeLines(names << finding.file));
    return true;
  }
  const QByteArray bytes = data.Read(session.Path(finding.file));
  QByteArray repaired = RepairedFile(data, session, finding, bytes);
  if (repaired == bytes) return false;
  save.Write(session.Path(finding.file), std::move(repaired));
  return true;
}

struct QuestionRow {
  Repair repair;
  QStringView question;
};

constexpr auto kQuestions = std::to_array<QuestionRow>({
    {Repair::kNone, u""},
    {Repair::kLineEnds, u"Переписать концы строк файла «%1»?"},
    {Repair::kEncoding, u"Переписать файл «%1» в кодировке Windows-1251?"},
    {Repair::kEmptyEnd, u"Убрать пустые строки в конце файла «%1»?"},
    {Repair::kDoubleWarehouse, u"Оставить в файле «%1» каждый склад один раз?"},
    {Repair::kUnknownPrices, u"Убрать из файла «%1» цены товаров, которых нет в справочнике?"},
    {Repair::kUnknownMarks, u"Убрать из файла «%1» отметки товаров, которых нет в справочнике?"},
    {Repair::kListWarehouse, u"Добавить «%1» в список складов?"},
    {Repair::kMakeWarehouse, u"Создать папку склада, записанного в файле «%1»?"},
});
static_assert(IsInOrder(kQuestions, &QuestionRow::repair));

}  // namespace

QString RepairQuestion(const Finding& finding) {
  return kQuestions[static_cast<size_t>(finding.repair)].question.toString().arg(finding.file);
}

bool MakeRepair(const DataDir& data, Session& session, const Finding& finding,
                const CopyFirst& copy_first) {
  SaveSet save(data, u"починка файла «%1»"_s.arg(finding.file));
  save.CopyFirst();
  if (!AddRepair(save, data, session, finding)) return false;
  if (copy_first) copy_first(session.base_path);
  save.Commit();
  session.warehouses = DecodeLines(data.Read(session.Path(files::kWarehouses)));
  return true;
}

}  // namespace kladez
