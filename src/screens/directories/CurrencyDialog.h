// "Основная валюта" ("currenc"): the words of the main currency, and the tax rates that papers open
// with.
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
  QGroupBox* NewTaxes();
  QStringList Texts() const;  // of all fields
  bool Save();

  AppContext& context_;
  FileState file_;
  FileState rates_file_;
  std::array<TextLine*, 8> fields_;  // in the order of the file
  TextLine* vat_;
  TextLine* sales_tax_;
};

}  // namespace kladez
