#include "screens/directories/GoodsBrowser.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "formats/Numbers.h"
#include "ui/ScannerSearch.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::vector<Column> GoodsColumns() {
  return {{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
          {.title = u"Страна"_s, .twips = 1000},
          {.title = u"N декларации"_s, .twips = 1700},
          {.title = u"Ед.изм."_s, .twips = 700},
          {.title = u"Цена закупа"_s, .twips = 950, .number = true}};
}

RowSource RowsOf(const GoodsDirectory& directory, const GoodsBrowser::Ticks& ticks) {
  using R = GoodsRecord;
  constexpr std::array kCells = {&R::name, &R::country, &R::declaration, &R::unit, &R::price};
  return {.count = [&directory] { return static_cast<int>(directory.Rows().size()); },
          .text = [&directory, kCells](
                      int row, int column) { return directory.Rows().Text(row, kCells[column]); },
          .is_group = [&directory](int row) { return directory.Rows().IsGroup(row); },
          .checked = ticks.checked,
          .set_checked = ticks.set_checked};
}

}  // namespace

GoodsBrowser::GoodsBrowser(AppContext& context, QStringView screen, const Ticks& ticks,
                           QWidget* parent)
    : QWidget(parent),
      context_(context),
      directory_(context.data, context.session,
                 ReadGoodsView(context.settings, settings::kGoodsGoodsOnly)),
      filter_(new GoodsFilter(context.settings, {settings::kGoodsGroups, settings::kGoodsGoodsOnly},
                              screen, this)),
      list_(new RecordList(this)),
      model_(new RecordModel(GoodsColumns(), RowsOf(directory_, ticks), this)) {
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  list_->SelectRow(0);
  filter_->SearchIn(list_);
  SelectByScanner(this, context, list_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  layout->addWidget(filter_);
  layout->addWidget(list_, 1);
}

std::optional<GoodsRecord> GoodsBrowser::Selected() const {
  const int row = list_->CurrentRow();
  return row < 0 ? std::nullopt : std::optional(directory_.Rows()[row]);
}

GoodsInWarehouse GoodsBrowser::ForHistory() const {
  const int row = list_->CurrentRow();
  return {row < 0 ? QString() : directory_.Rows().Text(row, &GoodsRecord::name), {}};
}

void GoodsBrowser::ShowAnew(const std::function<void()>& change) {
  const std::optional<GoodsRecord> selected = Selected();
  change();
  model_->Reset();
  list_->SelectRow(selected ? std::max(0, directory_.Rows().RowOf(*selected)) : 0);
}

void GoodsBrowser::SelectForPick(const QString& name) {
  const GoodsRows& rows = directory_.Rows();
  const int row = name.isEmpty() ? -1 : rows.RowOfGoods(name);
  list_->SelectRow(std::max(0, row < 0 ? rows.FirstGoods() : row));
}

void GoodsBrowser::SaveWidths() {
  const std::vector<int> widths = list_->ColumnTwips();
  for (int i = 0; i < static_cast<int>(widths.size()); ++i) {
    SaveWidth(context_.settings, i + 1, widths[i]);
  }
}

void SaveWidth(SettingsStore& store, int column, int twips) {
  const QString key = u"%1%2"_s.arg(settings::kGoodsColumn.key).arg(column);
  Setting setting = settings::kGoodsColumn;
  setting.key = key;
  store.Write(setting, GeneralText(twips));
}

}  // namespace kladez
