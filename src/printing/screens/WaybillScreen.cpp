#include "printing/screens/WaybillScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

WaybillScreen::WaybillScreen(AppContext& context, const PrintSource& source, const QString& name,
                             QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(name);
  setWindowTitle(u"Накладная"_s);
}

}  // namespace kladez
