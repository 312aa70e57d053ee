#include "printing/screens/PrihPrint.h"

namespace kladez {

using namespace Qt::StringLiterals;

PrihPrint::PrihPrint(AppContext& context, const PrintSource& source, QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(u"PrihPrint"_s);
  setWindowTitle(u"Приходный кассовый ордер"_s);
}

}  // namespace kladez
