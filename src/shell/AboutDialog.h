// "О программе": name, version, where to ask.
#pragma once

#include <QDialog>

namespace kladez {

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent);
};

}  // namespace kladez
