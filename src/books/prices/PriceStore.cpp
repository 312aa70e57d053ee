#include "books/prices/PriceStore.h"

#include <cerrno>

#include "books/directories/GoodsMarks.h"
#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kClipboard = files::kPriceClipboard.toString();

}  // namespace

QStringList PriceStore::Names(const QString& warehouse) const {
  const auto bytes = data_.ReadIfAny(session_.Path(warehouse, files::kPriceNames));
  return DecodeLines(bytes.value_or(QByteArray()));
}

QStringList PriceStore::Files(const QString& warehouse) const {
  QStringList files = data_.List(session_.Path(warehouse, files::kPrices), files::kPriceExtension);
  for (QString& file : files) file = session_.Path(warehouse, files::kPrices) + u'\\' + file;
  return files;
}

QString PriceStore::FileOf(const QString& warehouse, int index) const {
  const QStringList files = Files(warehouse);
  if (index < 0 || index >= files.size()) {
    ThrowFileError(u"У этого прайс-листа нет файла: имён прайс-листов больше, чем файлов .prc"_s,
                   session_.Path(warehouse, files::kPrices), ENOENT);
  }
  return files[index];
}

PriceList PriceStore::Load(const QString& warehouse, int index, GoodsView view,
                           const Progress& progress) const {
  FileState goods_file;
  const QByteArray goods = ReadWithState(data_, session_.Path(files::kGoods), goods_file);
  PriceList list = LoadOver(goods, warehouse, index, view, progress);
  list.goods_file = goods_file;
  return list;
}

PriceList PriceStore::LoadOver(const QByteArray& goods, const QString& warehouse, int index,
                               GoodsView view, const Progress& progress) const {
  const QStringList files = Files(warehouse);
  const bool has_file = index >= 0 && index < files.size();
  FileState price_file, marks_file;
  const QByteArray prices =
      has_file ? ReadWithState(data_, files[index], price_file) : QByteArray();
  QByteArray marks;
  IgnoreErrors([&] { marks = ReadIfThere(data_, MarksPath(session_), marks_file); });
  PriceList list(goods, prices, marks, view, progress);
  list.price_file = price_file;
  list.marks_file = marks_file;
  return list;
}

void PriceStore::Gather(SaveSet& save, PriceList& list, const QString& warehouse, int index) const {
  save.Write(FileOf(warehouse, index), list.PriceBytes(), list.price_file);
}

bool PriceStore::IsCurrent(const PriceList& list, const QString& warehouse, int index) const {
  const QStringList files = Files(warehouse);
  const bool has_file = index >= 0 && index < files.size();
  return (has_file ? IsStill(list.price_file, data_, files[index]) : !list.price_file.known) &&
         IsStill(list.marks_file, data_, MarksPath(session_)) &&
         IsStill(list.goods_file, data_, session_.Path(files::kGoods));
}

void PriceStore::Save(PriceList& list, const QString& warehouse, int index) const {
  SaveSet save(data_, u"прайс-лист записан"_s);
  save.Write(MarksPath(session_), list.MarkedBytes(), list.marks_file);
  Gather(save, list, warehouse, index);
  save.Commit();
}

void PriceStore::SaveTicks(PriceList& list) const {
  SaveSet save(data_);
  save.Write(MarksPath(session_), list.MarkedBytes(), list.marks_file);
  save.Commit();
}

void PriceStore::Copy(const PriceList& list) const {
  SaveSet save(data_);
  save.Write(kClipboard, list.PriceBytes());
  save.Commit();
}

bool PriceStore::Paste(PriceList& list, const QString& warehouse, int index) const {
  if (!data_.FileExists(kClipboard)) return false;
  PriceList pasted = list;
  pasted.Paste(data_.Read(kClipboard));
  SaveSet save(data_, u"прайс-лист вставлен"_s);
  Gather(save, pasted, warehouse, index);
  save.Commit();
  list = std::move(pasted);
  return true;
}

}  // namespace kladez
