// Takes finished print-outs to the viewer: a page is written under its work name into the data
// directory, and OpenPrintOut makes it "out.htm" there and starts the viewer, which knows that name
// only.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

#include "books/store/DataDir.h"
#include "books/store/SaveSet.h"

namespace kladez {

class PrintOutDesk {
 public:
  // `start_viewer` starts the viewer in the data directory; a test puts its own in its place.
  PrintOutDesk(const DataDir& data, std::function<void()> start_viewer);

  // Writes a work file ("nakl.htm"); any old one is replaced. Throws filesystem_error.
  void Write(const QString& name, const QByteArray& bytes) const;
  // The same for a page too long to lie in memory. What making it throws goes on to the caller, and
  // nothing is written then; nobody who saves waits for it to be made.
  void WriteInPieces(const QString& name, const SaveSet::Contents& contents) const;

  // Deletes "out.htm", renames the work file to it, starts the viewer: each step is tried whatever
  // became of the one before, and no failure is told.
  void OpenPrintOut(const QString& name) const;

  // Both, as every print command ends.
  void Show(const QString& name, const QByteArray& bytes) const;

 private:
  const DataDir& data_;
  std::function<void()> start_viewer_;
};

// Starts kladez-report, from beside this program or from the path, without waiting for it. False
// when there is none. With an argument, it shows that page of the user guide.
bool StartReportViewer(const DataDir& data, const QStringList& arguments = {});

}  // namespace kladez
