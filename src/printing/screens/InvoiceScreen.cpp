#include "printing/screens/InvoiceScreen.h"

namespace kladez {

InvoiceScreen::InvoiceScreen(AppContext& context, const PrintSource& source, const QString& name,
                             QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(name);
}

}  // namespace kladez
