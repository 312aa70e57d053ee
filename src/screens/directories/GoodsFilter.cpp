#include "screens/directories/GoodsFilter.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

#include "ui/Hints.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

GoodsFilter::GoodsFilter(SettingsStore& store, const Settings& settings, QStringView screen,
                         QWidget* parent)
    : QWidget(parent),
      store_(store),
      settings_(settings),
      row_(new QHBoxLayout(this)),
      search_(new TextLine(this)),
      groups_(new QRadioButton(u"&Группы"_s, this)),
      goods_only_(new QRadioButton(u"&Только товары"_s, this)) {
  auto* label = new QLabel(u"Поис&к:"_s, this);
  label->setBuddy(search_);
  search_->setObjectName(u"search"_s);
  search_->setClearButtonEnabled(true);
  groups_->setObjectName(u"op1"_s);
  goods_only_->setObjectName(u"op2"_s);
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(look::kTight);
  row_->addWidget(label);
  row_->addWidget(search_, 1);
  row_->addWidget(new HintPicture(HintFor(screen, u"Поиск"), {search_}, this));
  row_->addSpacing(look::kMargin);
  row_->addWidget(groups_);
  row_->addWidget(new HintPicture(HintFor(screen, u"Группы"), {groups_}, this));
  row_->addSpacing(look::kGrid);
  row_->addWidget(goods_only_);
  row_->addWidget(new HintPicture(HintFor(screen, u"Только товары"), {goods_only_}, this));
  SetView(ReadGoodsView(store, settings.goods_only));
  // The two exclude each other, so one of them tells of every choice.
  connect(goods_only_, &QRadioButton::toggled, this, [this] { emit ViewChosen(View()); });
}

void GoodsFilter::SearchIn(RecordList* list, EmptySearch empty) {
  WireSearch(search_, list, empty);
}

GoodsView GoodsFilter::View() const {
  return goods_only_->isChecked() ? GoodsView::kGoodsOnly : GoodsView::kGroups;
}

void GoodsFilter::SetView(GoodsView view) {
  const QSignalBlocker blocker(goods_only_);
  (view == GoodsView::kGoodsOnly ? goods_only_ : groups_)->setChecked(true);
}

void GoodsFilter::Remember() {
  WriteGoodsView(store_, settings_.groups, settings_.goods_only, View());
}

}  // namespace kladez
