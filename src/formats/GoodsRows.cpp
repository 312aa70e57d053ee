#include "formats/GoodsRows.h"

#include <array>
#include <utility>

#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using R = GoodsRecord;

constexpr std::array<std::pair<QString R::*, QByteArrayView RawGoods::*>, 5> kFields = {
    {{&R::name, &RawGoods::name},
     {&R::country, &RawGoods::country},
     {&R::declaration, &RawGoods::declaration},
     {&R::unit, &RawGoods::unit},
     {&R::price, &RawGoods::price}}};

QString TextOf(const RawGoods& goods, QString R::*field) {
  for (const auto& [of_record, of_file] : kFields) {
    if (of_record != field) continue;
    const QString text = DecodeText(goods.*of_file);
    const bool number = field == &R::price && !goods.IsGroup();
    return number ? ToNumberOr(text) : text;
  }
  Q_UNREACHABLE();
}

std::vector<quint32> PlacesOf(const QByteArray& bytes) {
  std::vector<quint32> places;
  ForEachGoods(bytes, [&](const RawGoods& goods) {
    places.push_back(static_cast<quint32>(goods.name.data() - bytes.constData()));
  });
  return places;
}

}  // namespace

RawGoods GoodsSource::Raw(Place place) const {
  LineReader reader(QByteArrayView(bytes).sliced(place));
  return NextGoods(reader);
}

GoodsRecord GoodsSource::Make(Place place) const {
  const RawGoods goods = Raw(place);
  GoodsRecord record;
  for (const auto& [of_record, of_file] : kFields) record.*of_record = TextOf(goods, of_record);
  return record;
}

GoodsRows::GoodsRows(const QByteArray& bytes) : FileRows({bytes}, PlacesOf(bytes)) {}

GoodsRows GoodsRows::ByName(const QByteArray& bytes) {
  std::vector<QByteArrayView> names;
  ForEachGoods(bytes, [&](const RawGoods& goods) {
    if (!goods.IsGroup()) names.push_back(goods.name);
  });
  std::vector<quint32> places;
  places.reserve(names.size());
  for (const size_t at : PlacesInOrder(names)) {
    places.push_back(static_cast<quint32>(names[at].data() - bytes.constData()));
  }
  return {GoodsSource{bytes}, places};
}

bool GoodsRows::IsGroup(size_t row) const {
  return Ask(
      row,
      [this](quint32 place) { return QByteArrayView(File().bytes).sliced(place).startsWith(' '); },
      [](const GoodsRecord& record) { return record.IsGroup(); });
}

QString GoodsRows::Text(size_t row, QString GoodsRecord::*field) const {
  return Ask(
      row, [&](quint32 place) { return TextOf(File().Raw(place), field); },
      [&](const GoodsRecord& record) { return record.*field; });
}

template <typename OfRaw, typename OfRecord>
int GoodsRows::FirstRow(OfRaw of_raw, OfRecord of_record) const {
  for (size_t row = 0; row < size(); ++row) {
    const auto of_place = [&](quint32 place) {
      LineReader name(QByteArrayView(File().bytes).sliced(place));
      return of_raw(place, name.NextRaw());
    };
    if (Ask(row, of_place, of_record)) return static_cast<int>(row);
  }
  return -1;
}

int GoodsRows::RowOf(const GoodsRecord& record) const {
  return FirstRow(
      [&](quint32 place, QByteArrayView name) {
        return HoldsText(name, record.name) && File().Make(place) == record;
      },
      [&](const GoodsRecord& made) { return made == record; });
}

int GoodsRows::RowOfGoods(QStringView name) const {
  if (IsGroupName(name)) return -1;
  return FirstRow([&](quint32, QByteArrayView found) { return HoldsText(found, name); },
                  [&](const GoodsRecord& made) { return made.name == name; });
}

int GoodsRows::FirstGoods() const {
  return FirstRow([](quint32, QByteArrayView name) { return !name.startsWith(' '); },
                  [](const GoodsRecord& made) { return !made.IsGroup(); });
}

QByteArray GoodsRows::Bytes() const {
  LineWriter writer;
  writer.Reserve(File().bytes.size());
  const auto add_made = [&](const GoodsRecord& record) { AddGoods(writer, record); };
  const auto add = [&](quint32 place) {
    const RawGoods goods = File().Raw(place);
    // Nearly all prices are numbers, and the lines are the record as they stand.
    if (!goods.IsGroup() && !ParseStrict(goods.price)) return add_made(File().Make(place));
    const QByteArrayView last = goods.IsGroup() ? goods.name : goods.price;
    writer.AddLines({goods.name.data(), last.data() + last.size()});
  };
  for (size_t row = 0; row < size(); ++row) Ask(row, add, add_made);
  return writer.Take();
}

}  // namespace kladez
