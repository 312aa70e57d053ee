#include "books/prices/GoodsBringer.h"

#include <algorithm>
#include <map>

#include "books/prices/BringPlanner.h"
#include "books/prices/PriceStore.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString WhatIsDone(const BringPlan& plan) {
  return u"таблица загружена: новых товаров %1, изменено %2"_s.arg(plan.Count(Fate::kNew))
      .arg(plan.Count(Fate::kChanged));
}

}  // namespace

int BringPlan::Count(Fate fate) const {
  return static_cast<int>(std::count_if(
      rows.begin(), rows.end(), [fate](const BroughtRow& row) { return row.fate == fate; }));
}

GoodsBringer::GoodsBringer(const DataDir& data, const Session& session)
    : data_(data), session_(session), extras_(data, session.Path(files::kGoodsExtras)) {
  bytes_ = ReadWithState(data_, session_.Path(files::kGoods), file_);
  goods_ = ReadGoods(bytes_);
  for (const GoodsRecord& record : goods_) {
    if (record.IsGroup()) groups_ << record.name.mid(1);
  }
  groups_.removeDuplicates();
}

BringPlan GoodsBringer::Plan(const Sheet& sheet, const BringChoice& choice) const {
  PriceList prices;
  if (choice.TakesSale()) {
    prices = PriceStore(data_, session_)
                 .LoadOver(bytes_, choice.warehouse, choice.price_list, GoodsView::kGroups);
  }
  BringPlan plan = BringPlanner(goods_, extras_.records, prices, choice).Plan(sheet);
  plan.price_file = prices.price_file;
  return plan;
}

// New goods stand at the end of their group, new groups at the end of the directory.
QByteArray GoodsBringer::GoodsAfter(const BringPlan& plan) const {
  std::vector<GoodsRecord> goods = goods_;
  std::map<QString, std::vector<GoodsRecord>> fresh;
  QStringList new_groups;
  for (const BroughtRow& row : plan.rows) {
    if (row.fate == Fate::kChanged) goods[static_cast<size_t>(row.at)] = row.goods;
    if (row.fate != Fate::kNew) continue;
    if (!groups_.contains(row.group) && !fresh.contains(row.group)) new_groups << row.group;
    fresh[row.group].push_back(row.goods);
  }
  std::vector<GoodsRecord> after;
  const auto add_fresh = [&](const QString& group) {
    const auto found = fresh.find(group);
    if (found == fresh.end()) return;
    after.insert(after.end(), found->second.begin(), found->second.end());
    fresh.erase(found);  // of two groups of one name the first gets them
  };
  std::optional<QString> group;
  for (const GoodsRecord& record : goods) {
    if (record.IsGroup()) {
      if (group) add_fresh(*group);
      group = record.name.mid(1);
    }
    after.push_back(record);
  }
  if (group) add_fresh(*group);
  for (const QString& name : new_groups) {
    after.push_back({u' ' + name, {}, {}, {}, {}});
    add_fresh(name);
  }
  return WriteGoods(after);
}

void GoodsBringer::Save(const BringPlan& plan) const {
  if (!plan.ChangesAnything()) return;
  const QByteArray goods = GoodsAfter(plan);
  FileState goods_file = file_;
  OwnRecordsFile extras = extras_;
  QHash<QString, QString> sale;
  for (const BroughtRow& row : plan.rows) {
    if (row.fate != Fate::kNew && row.fate != Fate::kChanged) continue;
    SetExtras(extras.records, row.goods.name, row.extras);
    if (!row.sale.isEmpty()) sale.insert(row.goods.name, row.sale);
  }
  SaveSet save(data_, WhatIsDone(plan));
  save.CopyFirst();
  const QString path = session_.Path(files::kGoods);
  if (goods == bytes_) {
    save.Expect(path, goods_file);
  } else {
    save.Write(path, goods, goods_file);
  }
  extras.Gather(save);
  const BringChoice& choice = plan.choice;
  PriceList list;
  if (!sale.empty()) {
    const PriceStore store(data_, session_);
    list = store.LoadOver(goods, choice.warehouse, choice.price_list, GoodsView::kGroups);
    list.price_file = plan.price_file;
    list.SetSalePrices(std::move(sale));
    store.Gather(save, list, choice.warehouse, choice.price_list);
  }
  save.Commit();
}

}  // namespace kladez
