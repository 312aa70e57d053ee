// What every list can be taken along as: rows on the clipboard, parted by tabs, and a table saved
// for a spreadsheet. Keys: Ctrl+C the selected rows, Ctrl+Shift+C all with their headings, Ctrl+T
// the file; the menu of the right button has the same.
#pragma once

#include "formats/tables/Table.h"

class QKeyEvent;
class QMenu;

namespace kladez {

class RecordList;

// The rows with the columns in sight: what a role may not see stays out. Of what window the list
// is, is the title; the kinds of columns are told by the model and by the cells.
Table TableOf(const RecordList& list, const std::vector<int>& rows);
Table TableOf(const RecordList& list);

// The selected rows; with the headings above them where all of several are selected.
void CopySelectedRows(const RecordList& list);
void CopyAllRows(const RecordList& list);
void SaveListAsTable(RecordList* list);

// Takes the keys above; false for any other.
bool TakesTableKey(RecordList* list, const QKeyEvent& event);
void AddTableCommands(QMenu* menu, RecordList* list);

}  // namespace kladez
