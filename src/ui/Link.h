// A link: text with an icon that is underlined and changes its colour under the pointer, and can be
// reached and pressed by the keyboard.
#pragma once

#include <QAbstractButton>

#include "ui/controls/Look.h"

namespace kladez {

class Link : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Ground { kDark, kLight };
  enum class Form { kRow, kColumn };  // the icon before the text, or above it
  Link(const QString& name, QStringView text, look::IconName icon, Ground ground, Form form,
       QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  const look::Shade& Color(bool hot) const;
  void SetHot(bool hot);

  Ground ground_;
  Form form_;
  QIcon hot_icon_;
  bool hot_ = false;
};

}  // namespace kladez
