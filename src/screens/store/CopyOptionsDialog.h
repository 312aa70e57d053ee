// How much room the copies of the time machine may take, and the second place for them.
#pragma once

#include <QDialog>

#include "ui/AppContext.h"

class QCheckBox;

namespace kladez {

class FolderChooser;
class TextLineNumber;

class CopyOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  CopyOptionsDialog(AppContext& context, QWidget* parent);

 private:
  void Save();

  AppContext& context_;
  TextLineNumber* room_;   // megabytes
  QCheckBox* twice_;       // "Класть копии и во второе место"
  FolderChooser* second_;  // which one
};

}  // namespace kladez
