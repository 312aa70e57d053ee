#include "ui/controls/FoldButton.h"

namespace kladez {

namespace {

constexpr int kBlanks = 20;  // between the sign and the word

}  // namespace

FoldButton::FoldButton(const QString& name, const QString& what, QWidget* panel, bool open,
                       QWidget* parent)
    : QPushButton(parent), what_(what), panel_(panel) {
  setObjectName(name);
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { SetOpen(!open_); });
  SetOpen(open);
}

void FoldButton::SetOpen(bool open) {
  open_ = open;
  setText((open ? u'-' : u'+') + QString(kBlanks, u' ') + what_);
  panel_->setVisible(open);
}

}  // namespace kladez
