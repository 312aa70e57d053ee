#include "shell/LandingScreen.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "shell/TitlePainting.h"
#include "ui/Link.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class Ground : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintTitleGround(painter, rect());
  }
};

// In twips: how much smaller than the screen its picture is.
constexpr int kPictureMarginAcross = 180;
constexpr int kPictureMarginDown = 420;

QLabel* NewText(const QString& name, const QString& text, const QFont& font, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setFont(font);
  label->setWordWrap(true);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, look::kOnAccent);
  label->setPalette(palette);
  return label;
}

Link* NewLink(const QString& name, QStringView text, look::IconName icon, QWidget* parent) {
  auto* link = new Link(name, text, icon, Link::Ground::kDark, Link::Form::kRow, parent);
  QFont font = link->font();
  font.setPointSizeF(font.pointSizeF() * 1.2);
  link->setFont(font);
  link->setIconSize(QSize(look::kGap, look::kGap));
  return link;
}

}  // namespace

LandingScreen::LandingScreen(QWidget* parent) : QWidget(parent), Picture1(new Ground(this)) {
  setObjectName(u"main2"_s);
  setWindowTitle(u"Главная"_s);
  Picture1->setObjectName(u"Picture1"_s);
  QFont body = font();
  body.setPointSizeF(body.pointSizeF() * 1.1);
  Label1 = NewText(u"Label1"_s, u"Добро пожаловать в Kladez 4.8"_s, TitleFont(font()), Picture1);
  Label2 = NewText(u"Label2"_s,
                   u"Для работы с программой Вам необходимо создать новую базу данных или открыть "
                   u"существующую. Для ознакомления с программой, для ознакомления с программой "
                   u"рекомендуется открыть демонстрационную базу данных."_s,
                   body, Picture1);
  Label2->setMaximumWidth(72 * look::kGrid);
  Label3 =
      NewLink(u"Label3"_s, u"Открыть существующую базу данных", look::IconName::kOpen, Picture1);
  Label4 = NewLink(u"Label4"_s, u"Создать новую базу данных", look::IconName::kAdd, Picture1);
  auto* column = new QVBoxLayout(Picture1);
  column->setContentsMargins(8 * look::kGrid, 8 * look::kGrid, 8 * look::kGrid, 8 * look::kGrid);
  column->setSpacing(look::kMargin);
  column->addStretch(2);
  column->addWidget(Label1);
  column->addWidget(Label2);
  column->addSpacing(look::kMargin);
  column->addWidget(Label3, 0, Qt::AlignLeft);
  column->addWidget(Label4, 0, Qt::AlignLeft);
  column->addStretch(3);
  auto* layout = new QVBoxLayout(this);
  const int across = look::FromTwips(kPictureMarginAcross) / 2;
  const int down = look::FromTwips(kPictureMarginDown) / 2;
  layout->setContentsMargins(across, down, across, down);
  layout->addWidget(Picture1);
  connect(Label3, &Link::clicked, this, &LandingScreen::OpenWanted);
  connect(Label4, &Link::clicked, this, &LandingScreen::CreateWanted);
  Label3->setFocus();
}

}  // namespace kladez
