#include "shell/LinkPanels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/Link.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void FillGround(QWidget* panel, const QColor& color) {
  QPalette palette = panel->palette();
  palette.setColor(QPalette::Window, color);
  panel->setPalette(palette);
  panel->setAutoFillBackground(true);
}

QLabel* NewHeading(QStringView text, QWidget* parent) {
  auto* heading = new QLabel(text.toString(), parent);
  QFont font = heading->font();
  font.setWeight(QFont::DemiBold);
  heading->setFont(font);
  QPalette palette = heading->palette();
  palette.setColor(QPalette::WindowText, look::kOnAccent);
  heading->setPalette(palette);
  return heading;
}

}  // namespace

LinksPanel::LinksPanel(QWidget* parent) : QWidget(parent) {
  setObjectName(u"Picture1"_s);
  FillGround(this, look::kAccent);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
  layout->setSpacing(0);
  const auto add = [&](const PlaceRow& row) {
    auto* link = new Link(u"go%1"_s.arg(static_cast<int>(row.place)), row.link, row.icon,
                          Link::Ground::kDark, Link::Form::kRow, this);
    connect(link, &Link::clicked, this, [this, place = row.place] { emit Chosen(place); });
    layout->addWidget(link);
  };
  add(RowOf(Place::kHome));
  for (const PlaceGroup group :
       {PlaceGroup::kStore, PlaceGroup::kReports, PlaceGroup::kDirectories}) {
    layout->addSpacing(look::kMargin);
    layout->addWidget(NewHeading(GroupHeading(group), this));
    layout->addSpacing(look::kTight);
    for (const PlaceRow& row : Places()) {
      if (row.group == group) add(row);
    }
  }
  layout->addStretch();
}

LinksStrip::LinksStrip(QWidget* parent) : QWidget(parent) {
  setObjectName(u"Picture2"_s);
  FillGround(this, look::kAccentLight);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(look::kGrid, 0, look::kGrid, 0);
  layout->setSpacing(look::kGrid);
  const auto add = [&](const PlaceRow& row) {
    auto* link = new Link(row.strip.toString(), row.strip_caption, row.icon, Link::Ground::kLight,
                          Link::Form::kColumn, this);
    connect(link, &Link::clicked, this, [this, place = row.place] { emit Chosen(place); });
    layout->addWidget(link);
  };
  add(RowOf(Place::kHome));
  for (const PlaceRow& row : Places()) {
    if (!row.strip.isEmpty() && row.place != Place::kHome) add(row);
  }
  layout->addStretch();
}

}  // namespace kladez
