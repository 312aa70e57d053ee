// The file of a finding, line by line as it lies on the disk, with the line in question selected.
// It only shows.
#pragma once

#include <QDialog>
#include <QStringList>

#include "books/check/Findings.h"
#include "books/store/DataDir.h"
#include "ui/controls/RecordList.h"

namespace kladez {

class FilePlaceDialog : public QDialog {
  Q_OBJECT

 public:
  // Reads the file below the Database's path `base`; a finding about a folder shows the names of
  // the files in it. Throws filesystem_error.
  FilePlaceDialog(const DataDir& books, const QString& base, const Finding& finding,
                  QWidget* parent);

 private:
  QStringList lines_;
  RecordModel model_;
};

}  // namespace kladez
