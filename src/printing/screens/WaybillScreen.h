// The three waybills' screen: one machinery, told apart by the kind of document printed.
#pragma once

#include <QDialog>

#include "printing/PrintSource.h"
#include "shell/AppContext.h"

namespace kladez {

class WaybillScreen : public QDialog {
  Q_OBJECT

 protected:
  WaybillScreen(AppContext& context, const PrintSource& source, const QString& name,
                QWidget* parent);

 private:
  AppContext& context_;
  const PrintSource source_;
};

}  // namespace kladez
