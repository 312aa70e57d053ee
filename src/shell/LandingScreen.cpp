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
  look::Paint(label, QPalette::WindowText, look::kOnPanel);
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

LandingScreen::LandingScreen(QWidget* parent) : QWidget(parent) {
  auto* ground = new Ground(this);
  setObjectName(u"main2"_s);
  setWindowTitle(u"Главная"_s);
  ground->setObjectName(u"Picture1"_s);
  QFont body = font();
  body.setPointSizeF(body.pointSizeF() * 1.1);
  auto* welcome =
      NewText(u"Label1"_s, u"Добро пожаловать в Kladez 4.8"_s, TitleFont(font()), ground);
  auto* instruction =
      NewText(u"Label2"_s,
              u"Для работы с программой Вам необходимо создать новую базу данных или открыть "
              u"существующую. Для ознакомления с программой, для ознакомления с программой "
              u"рекомендуется открыть демонстрационную базу данных."_s,
              body, ground);
  instruction->setMaximumWidth(72 * look::kGrid);
  auto* open =
      NewLink(u"Label3"_s, u"Открыть существующую базу данных", look::IconName::kOpen, ground);
  auto* create = NewLink(u"Label4"_s, u"Создать новую базу данных", look::IconName::kAdd, ground);
  auto* column = new QVBoxLayout(ground);
  column->setContentsMargins(8 * look::kGrid, 8 * look::kGrid, 8 * look::kGrid, 8 * look::kGrid);
  column->setSpacing(look::kMargin);
  column->addStretch(2);
  column->addWidget(welcome);
  column->addWidget(instruction);
  column->addSpacing(look::kMargin);
  column->addWidget(open, 0, Qt::AlignLeft);
  column->addWidget(create, 0, Qt::AlignLeft);
  column->addStretch(3);
  auto* layout = new QVBoxLayout(this);
  const int across = look::FromTwips(kPictureMarginAcross) / 2;
  const int down = look::FromTwips(kPictureMarginDown) / 2;
  layout->setContentsMargins(across, down, across, down);
  layout->addWidget(ground);
  connect(open, &Link::clicked, this, &LandingScreen::OpenWanted);
  connect(create, &Link::clicked, this, &LandingScreen::CreateWanted);
  open->setFocus();
}

}  // namespace kladez
