// How a paper, a report or a chart goes to the viewer: the page is written, the screen closes, the
// print-out is opened, in this order. The price list and the stock on hand open theirs first
// (PrintOutDesk::Show).
#pragma once

#include <QByteArray>
#include <QString>

class QDialog;

namespace kladez {

class PrintOutDesk;

// Throws filesystem_error when the page can't be written; the screen stays open then.
void CloseAndShow(QDialog& screen, const PrintOutDesk& desk, const QString& file,
                  const QByteArray& page);
// The same for a page that is written already.
void CloseAndOpen(QDialog& screen, const PrintOutDesk& desk, const QString& file);

}  // namespace kladez
