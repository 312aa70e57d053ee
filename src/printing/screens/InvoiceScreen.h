// The screen of the tax invoice and of the bill for payment: one machinery, told apart by the form.
#pragma once

#include <QDialog>

#include "printing/PrintSource.h"
#include "shell/AppContext.h"

namespace kladez {

class InvoiceScreen : public QDialog {
  Q_OBJECT

 protected:
  InvoiceScreen(AppContext& context, const PrintSource& source, const QString& name,
                QWidget* parent);

 private:
  AppContext& context_;
  const PrintSource source_;
};

}  // namespace kladez
