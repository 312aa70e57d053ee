#include "screens/directories/GoodsBrowser.h"

#include <QVBoxLayout>
#include <algorithm>

#include "formats/Numbers.h"
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

const QString& CellOf(const GoodsRecord& record, int column) {
  const std::array cells = {&record.name, &record.country, &record.declaration, &record.unit,
                            &record.price};
  return *cells[column];
}

RowSource RowsOf(const GoodsDirectory& directory, const GoodsBrowser::Ticks& ticks) {
  const auto record = [&directory](int row) -> const GoodsRecord& { return directory.Rows()[row]; };
  return {.count = [&directory] { return static_cast<int>(directory.Rows().size()); },
          .text = [record](int row, int column) { return CellOf(record(row), column); },
          .is_group = [record](int row) { return record(row).IsGroup(); },
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
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  layout->addWidget(filter_);
  layout->addWidget(list_, 1);
}

const GoodsRecord* GoodsBrowser::Selected() const {
  const int row = list_->CurrentRow();
  return row < 0 ? nullptr : &directory_.Rows()[row];
}

GoodsInWarehouse GoodsBrowser::ForHistory() const {
  const GoodsRecord* selected = Selected();
  return {selected == nullptr ? QString() : selected->name, {}};
}

void GoodsBrowser::ShowAnew(const std::function<void()>& change) {
  const std::optional<GoodsRecord> selected =
      Selected() ? std::optional(*Selected()) : std::nullopt;
  change();
  model_->Reset();
  const auto& rows = directory_.Rows();
  const auto same = selected ? std::find(rows.begin(), rows.end(), *selected) : rows.end();
  list_->SelectRow(same == rows.end() ? 0 : static_cast<int>(same - rows.begin()));
}

void GoodsBrowser::SelectForPick(const QString& name) {
  const auto& rows = directory_.Rows();
  auto row = std::find_if(rows.begin(), rows.end(), [&](const GoodsRecord& record) {
    return !record.IsGroup() && !name.isEmpty() && record.name == name;
  });
  if (row == rows.end()) {
    row = std::find_if(rows.begin(), rows.end(),
                       [](const GoodsRecord& record) { return !record.IsGroup(); });
  }
  list_->SelectRow(row == rows.end() ? 0 : static_cast<int>(row - rows.begin()));
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
