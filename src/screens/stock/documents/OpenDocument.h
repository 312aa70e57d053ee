// Opens the document that a row of a list or report stands for.
#pragma once

#include "books/stock/DocumentRef.h"
#include "ui/AppContext.h"

class QWidget;

namespace kladez {

// What a document is called in a list: "Приход", "Расход, открыт".
QString DocumentName(DocumentKind kind, bool is_open);

// Shows its properties, from which it can be printed; nothing for a row without a document. The
// seller sees shipments only. What fails is told in a message.
void OpenDocument(AppContext& context, const DocumentRef& document, QWidget* parent);

}  // namespace kladez
