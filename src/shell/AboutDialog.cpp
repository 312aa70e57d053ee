#include "shell/AboutDialog.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "shell/TitlePainting.h"
#include "ui/Help.h"
#include "ui/Link.h"
#include "ui/controls/Commands.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class Banner : public QWidget {
 public:
  explicit Banner(QWidget* parent) : QWidget(parent) { setFixedHeight(14 * look::kGrid); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintTitleGround(painter, rect());
    painter.setPen(look::kOnPanel);
    painter.setFont(TitleFont(font()));
    painter.drawText(rect().adjusted(look::kGap, 0, -look::kGap, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, u"Kladez"_s);
  }
};

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(u"about"_s);
  setWindowTitle(u"О программе"_s);
  auto* version = new QLabel(u"Версия 4.8"_s, this);
  version->setObjectName(u"lblVersion"_s);
  auto* purpose = new QLabel(
      u"Складской учет небольшого магазина или оптовой базы: товары, приход и расход, "
      u"прайс-листы, печатные формы и отчеты."_s,
      this);
  purpose->setWordWrap(true);
  auto* site = new Link(u"lblSite"_s, kProductAddress, look::IconName::kHome, Link::Ground::kLight,
                        Link::Form::kRow, this);
  auto* mail = new Link(u"lblMail"_s, kProductMail.sliced(kProductMail.indexOf(u':') + 1),
                        look::IconName::kParty, Link::Ground::kLight, Link::Form::kRow, this);
  QPushButton* close = NewCommand(this, u"Command1"_s, u"&Закрыть"_s);
  close->setDefault(true);
  auto* body = new QVBoxLayout;
  body->setContentsMargins(look::kGap, look::kMargin, look::kGap, look::kMargin);
  body->setSpacing(look::kGrid);
  body->addWidget(version);
  body->addWidget(purpose);
  body->addSpacing(look::kTight);
  body->addWidget(site, 0, Qt::AlignLeft);
  body->addWidget(mail, 0, Qt::AlignLeft);
  body->addSpacing(look::kGrid);
  body->addWidget(close, 0, Qt::AlignRight);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(new Banner(this));
  layout->addLayout(body, 1);
  // As high as the wrapped text needs at this width, whatever the letters.
  constexpr int kWidth = 54 * look::kGrid;
  setFixedSize(kWidth, layout->totalHeightForWidth(kWidth));
  connect(site, &Link::clicked, this, [this] { OpenAddress(this, kProductAddress); });
  connect(mail, &Link::clicked, this, [this] { OpenAddress(this, kProductMail); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  close->setFocus();
}

}  // namespace kladez
