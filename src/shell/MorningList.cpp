#include "shell/MorningList.h"

#include <QHeaderView>

#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;
using enum MorningRow::Kind;

MorningList::MorningList(QWidget* parent) : RecordList(parent) {
  setObjectName(u"morning"_s);
  setAccessibleName(u"Что сегодня"_s);
  model_ = new RecordModel(
      {{.title = u"Что сегодня"_s, .twips = 2400, .stretch = true},
       {.title = u"Сколько"_s, .twips = 1100, .number = true}},
      {.count = [this] { return static_cast<int>(rows_.size()); },
       .text = [this](int row,
                      int column) { return column == 0 ? rows_[row].text : rows_[row].value; },
       .is_group =
           [this](int row) { return rows_[row].kind == kHeading || rows_[row].kind == kCopy; }},
      this);
  SetRecords(model_);
  header()->hide();
  connect(this, &RecordList::EnterPressed, this, &MorningList::Open);
  connect(this, &RecordList::DoubleClicked, this, &MorningList::Open);
}

void MorningList::Show(std::vector<MorningRow> rows) {
  rows_ = std::move(rows);
  model_->Reset();
}

QSize MorningList::sizeHint() const { return look::ByLetters(this, 40, 20); }

QSize MorningList::minimumSizeHint() const { return look::ByLetters(this, 28, 10); }

void MorningList::Open() {
  const int row = CurrentRow();
  if (row < 0) return;
  switch (rows_[row].kind) {
    case kHeading:
      break;
    case kDocument:
      emit DocumentChosen(rows_[row].document);
      break;
    case kGoods:
      emit GoodsChosen();
      break;
    case kCopy:
      emit CopiesChosen();
      break;
  }
}

}  // namespace kladez
