// What the viewer tells when a file can't be read or written, with the system's reason in Russian.
#pragma once

#include <QDir>
#include <QString>
#include <system_error>

#include "viewer/page/PageReader.h"

class QWidget;

namespace kladez::viewer {

// The text for a page `name` of `directory` that can't be shown, and what can be done.
QString ReadErrorText(const QDir& directory, const QString& name, PageKind kind,
                      const std::error_code& code);

// A message box titled "Внимание!".
void ShowError(QWidget* parent, const QString& text);

}  // namespace kladez::viewer
