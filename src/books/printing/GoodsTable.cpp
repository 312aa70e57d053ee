#include "books/printing/GoodsTable.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kNameWidth = 60;
constexpr int kWidth = 10;
constexpr PageFont kHeadingFont{.size = 2, .bold = true};
constexpr PageFont kGroupFont{.size = 2};
constexpr PageFont kGoodsFont{.size = 1};
const QString kTableEnd = u"</TABLE>"_s;

}  // namespace

GoodsTable::GoodsTable(PageWriter& page, const QStringList& headings, Borders borders)
    : page_(page), columns_(headings.size() + 1), borders_(borders) {
  std::vector<PageCell> cells = {NameCell(u"Наименование&nbsp;"_s, kNameWidth)};
  for (const QString& heading : headings) {
    cells.push_back(NumberCell(u"&nbsp;"_s + heading, kWidth));
  }
  page_.OpenTable();
  page_.Row(cells, kHeadingFont);
  page_.Line(kTableEnd);
}

void GoodsTable::OpenGoods() {
  if (open_) return;
  page_.OpenTable(borders_.goods);
  open_ = true;
}

void GoodsTable::Group(const QString& name) {
  End();
  page_.OpenTable(borders_.groups);
  page_.Row({TextCell(u"&nbsp;&nbsp;&nbsp;"_s + name)}, kGroupFont);
  page_.Line(kTableEnd);
}

void GoodsTable::Goods(const QStringList& texts) {
  OpenGoods();
  std::vector<PageCell> cells = {NameCell(texts.front(), kNameWidth)};
  for (qsizetype i = 1; i < texts.size(); ++i) cells.push_back(NumberCell(texts[i], kWidth));
  page_.Row(cells, kGoodsFont);
}

void GoodsTable::Gap() {
  OpenGoods();
  page_.Line(u"<tr><TD COLSPAN="_s + QString::number(columns_) + u">&nbsp;</TD></tr>"_s);
}

void GoodsTable::End() {
  if (open_) page_.Line(kTableEnd);
  open_ = false;
}

}  // namespace kladez
