// "Основная валюта" ("currenc"): the words of the main currency, and the tax rates that papers open
// with.
#pragma once

#include <QDialog>
#include <array>

#include "books/store/FileState.h"
#include "ui/AppContext.h"

class QGroupBox;
class QLabel;

namespace kladez {

class FollowedFiles;
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
  void Read();
  bool IsCurrent() const;
  bool Save();

  AppContext& context_;
  FileState file_;
  FileState rates_file_;
  FollowedFiles* files_ = nullptr;
  QStringList read_;                 // the texts of all fields as they were read
  std::array<TextLine*, 8> fields_;  // in the order of the file
  TextLine* vat_;
  TextLine* sales_tax_;
  QLabel* no_taxes_;  // their file is damaged
};

}  // namespace kladez
