#include "screens/printing/CloseAndShow.h"

#include <QCoreApplication>
#include <QDialog>

#include "books/printing/PrintOutDesk.h"

namespace kladez {

void CloseAndShow(QDialog& screen, const PrintOutDesk& desk, const QString& file,
                  const QByteArray& page) {
  desk.Write(file, page);
  CloseAndOpen(screen, desk, file);
}

void CloseAndOpen(QDialog& screen, const PrintOutDesk& desk, const QString& file) {
  screen.accept();
  QCoreApplication::processEvents();
  desk.OpenPrintOut(file);
}

}  // namespace kladez
