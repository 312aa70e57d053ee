#include "store/screens/CatalogueList.h"

#include "shell/controls/Fields.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

}  // namespace

CatalogueList::CatalogueList(QWidget* parent, Checks checks)
    : RecordList(parent),
      model_(
          {{.title = u"Имя базы данных"_s, .twips = 4000, .stretch = true}},
          {.count = [this] { return Count(); },
           .text = [this](int row,
                          int) { return entries_[static_cast<size_t>(row)].descriptor.name; },
           .is_group = {},
           .checked = checks == Checks::kNone ? std::function<bool(int)>()
                                              : [this](int row) { return checked_.contains(row); },
           .set_checked =
               [this](int row, bool on) {
                 if (on) {
                   checked_.insert(row);
                 } else {
                   checked_.erase(row);
                 }
               }}) {
  setObjectName(u"ListView1"_s);
  setHeaderHidden(true);
  SetRecords(&model_);
}

void CatalogueList::Fill(const DataDir& directory) {
  checked_.clear();
  entries_ = ListDatabases(directory);
  model_.Reset();
}

void CatalogueList::ShowNameIn(TextLine* field) {
  connect(this, &RecordList::CurrentRowChanged, field, [this, field](int row) {
    field->setText(row < 0 ? QString() : entries_[static_cast<size_t>(row)].descriptor.name);
  });
}

CatalogueEntry CatalogueList::Selected() const {
  return HasSelection() ? entries_[static_cast<size_t>(CurrentRow())] : CatalogueEntry{};
}

std::vector<CatalogueEntry> CatalogueList::Checked() const {
  std::vector<CatalogueEntry> checked;
  for (const int row : checked_) checked.push_back(entries_[static_cast<size_t>(row)]);
  return checked;
}

}  // namespace kladez
