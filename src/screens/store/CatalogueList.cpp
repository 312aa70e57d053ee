#include "screens/store/CatalogueList.h"

#include <QDialog>
#include <QFormLayout>
#include <QVBoxLayout>

#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"

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
    ShowText(field, row < 0 ? QString() : entries_[static_cast<size_t>(row)].descriptor.name);
  });
}

void CatalogueList::LayOut(QDialog* dialog, const QString& caption, TextLine* field,
                           QPushButton* command, QPushButton* cancel) {
  auto* fields = new QFormLayout;
  fields->addRow(caption, field);
  auto* layout = new QVBoxLayout(dialog);
  look::SetDialogMargins(layout);
  layout->addWidget(this, 1);
  layout->addLayout(fields);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(command, cancel));
  dialog->resize(look::ByLetters(dialog, 50, 40));
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
