// "Основная валюта": the words of the main currency.
#pragma once

#include <QDialog>
#include <array>

#include "books/store/FileState.h"
#include "ui/AppContext.h"

class QGroupBox;

namespace kladez {

class TextLine;

class CurrencyDialog : public QDialog {
  Q_OBJECT

 public:
  // Throws filesystem_error when the file can't be read.
  explicit CurrencyDialog(AppContext& context, QWidget* parent = nullptr);

 private:
  QGroupBox* NewFrame(const QString& title, const QString& name, int first);
  void Ok();

  AppContext& context_;
  FileState file_;
  std::array<TextLine*, 8> fields_;  // in the order of the file
};

}  // namespace kladez
