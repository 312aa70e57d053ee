// A scanner in a list of goods: the goods that have the barcode are selected.
#pragma once

#include "ui/AppContext.h"

class QWidget;

namespace kladez {

class RecordList;

// For a screen whose list has the names of goods in its first column.
void SelectByScanner(QWidget* screen, const AppContext& context, RecordList* list);

// Tells that no goods have the code, or that the list lacks those that have.
void TellUnknownBarcode(QWidget* screen, const QString& code, const QString& goods = {});

}  // namespace kladez
