#include "shell/LinkPanels.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/Link.h"
#include "ui/controls/WrapRow.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void FillGround(QWidget* panel, const look::Shade& shade) {
  look::Paint(panel, QPalette::Window, shade);
  panel->setAutoFillBackground(true);
}

QLabel* NewHeading(QStringView text, QWidget* parent) {
  auto* heading = new QLabel(text.toString(), parent);
  QFont font = heading->font();
  font.setWeight(QFont::DemiBold);
  heading->setFont(font);
  look::Paint(heading, QPalette::WindowText, look::kOnPanel);
  return heading;
}

}  // namespace

LinksPanel::LinksPanel(QWidget* parent) : QScrollArea(parent) {
  setObjectName(u"Picture1"_s);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  auto* ground = new QWidget(this);
  FillGround(ground, look::kPanel);
  auto* layout = new QVBoxLayout(ground);
  layout->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
  layout->setSpacing(0);
  const auto add = [&](const PlaceRow& row) {
    auto* link = new Link(u"go%1"_s.arg(static_cast<int>(row.place)), row.link, row.icon,
                          Link::Ground::kDark, Link::Form::kRow, ground);
    connect(link, &Link::clicked, this, [this, place = row.place] { emit Chosen(place); });
    layout->addWidget(link);
  };
  add(RowOf(Place::kHome));
  for (const PlaceGroup group :
       {PlaceGroup::kStore, PlaceGroup::kReports, PlaceGroup::kDirectories}) {
    layout->addSpacing(look::kMargin);
    layout->addWidget(NewHeading(GroupHeading(group), ground));
    layout->addSpacing(look::kTight);
    for (const PlaceRow& row : Places()) {
      if (row.group == group) add(row);
    }
  }
  layout->addStretch();
  setWidget(ground);
}

QSize LinksPanel::sizeHint() const {
  const QSize links = widget()->minimumSizeHint();
  const int bar = height() < links.height() ? verticalScrollBar()->sizeHint().width() : 0;
  return {links.width() + bar, links.height()};
}

void LinksPanel::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  // The height decides whether there is a scroll bar beside the links.
  updateGeometry();
}

QSize LinksPanel::minimumSizeHint() const { return {sizeHint().width(), 0}; }

LinksStrip::LinksStrip(QWidget* parent) : QWidget(parent) {
  setObjectName(u"Picture2"_s);
  FillGround(this, look::kAccentLight);
  auto* layout = new WrapRow(look::kGrid, 0);
  setLayout(layout);
  layout->setContentsMargins(look::kGrid, 0, look::kGrid, 0);
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
}

}  // namespace kladez
