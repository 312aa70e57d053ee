#include "shell/controls/HintPicture.h"

#include "shell/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

HintPicture::Opener& TheOpener() {
  static HintPicture::Opener opener;
  return opener;
}

}  // namespace

HintPicture::HintPicture(const Hint& hint, QWidget* parent) : QToolButton(parent), hint_(hint) {
  setIcon(look::Icon(look::IconName::kHint, look::kQuiet));
  setIconSize(QSize(look::kMargin, look::kMargin));
  setAutoRaise(true);
  // Tabbing goes from field to field; the hints are a click away.
  setFocusPolicy(Qt::NoFocus);
  setToolTip(u"Подсказка"_s);
  setAccessibleName(u"Подсказка: "_s + hint_.heading);
  connect(this, &QToolButton::clicked, this, [this] {
    if (TheOpener()) TheOpener()(window(), hint_);
  });
}

void HintPicture::SetOpener(Opener opener) { TheOpener() = std::move(opener); }

}  // namespace kladez
