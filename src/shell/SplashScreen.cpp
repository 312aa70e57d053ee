#include "shell/SplashScreen.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "shell/TitlePainting.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

SplashScreen::SplashScreen() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName(u"frmSplash"_s);
  setWindowTitle(u"Kladez"_s);
  setFixedSize(60 * look::kGrid, 34 * look::kGrid);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    move(screen->availableGeometry().center() - rect().center());
  }
}

void SplashScreen::Run(int milliseconds) {
  show();
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  hide();
}

void SplashScreen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintTitleGround(painter, rect());
  QRect room =
      rect().adjusted(4 * look::kGrid, 4 * look::kGrid, -4 * look::kGrid, -4 * look::kGrid);
  const int icon = 9 * look::kGrid;
  look::Icon(look::IconName::kProgram, look::kOnPanel)
      .paint(&painter, QRect(room.topLeft(), QSize(icon, icon)));
  painter.setPen(look::kOnPanel);
  painter.setFont(TitleFont(font()));
  painter.drawText(room.adjusted(0, icon + look::kMargin, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                   kProgramTitle.toString());
  painter.setFont(font());
  painter.setPen(look::kLink);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap,
                   u"Склад, документы и прайс-листы небольшого магазина"_s);
}

}  // namespace kladez
