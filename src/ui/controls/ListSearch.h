// The field "Поиск:" of a list, and the keys of a list that work in all of its screen.
#pragma once

#include <functional>

class QAbstractButton;
class QString;
class QWidget;

namespace kladez {

class RecordList;
class TextLine;

enum class EmptySearch { kStaysInField, kReturnsToList };

// The list goes to the name that the text finds (formats/NameSearch.h) as it is typed. A text that
// finds none turns the field red and selects nothing. The field's Up and Down keys pass the focus
// to the list, and a character typed in the list starts a new search in the field.
void WireSearch(TextLine* field, RecordList* list, EmptySearch empty = EmptySearch::kStaysInField);

// The same of a list that shows only what the text finds: `filter` takes the text as it is typed.
// The Escape key empties the field before it means the screen.
void WireFilter(TextLine* field, RecordList* list,
                const std::function<void(const QString&)>& filter);

// Insert, Delete, Enter and Ctrl+C mean the list wherever in its screen the keyboard is, F3 goes to
// the next name that the search finds, Ctrl+F to the search, and Ctrl+P gives the command `print`
// where there is one. A field that uses a key itself keeps it, and so does the default command of a
// dialog its Enter.
void ShareListKeys(QWidget* screen, RecordList* list, QAbstractButton* print = nullptr);

}  // namespace kladez
