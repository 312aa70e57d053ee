// The texts of a window that are the program's own: titles, captions, headings of lists, entries of
// menus, hints, what an empty list says. What a person or a file put in is left out.
#pragma once

#include <QStringList>
#include <QWidget>

namespace kladez {

// One line a text: "sprTovar\tCommand1\t&Добавить". Line breaks stand as "\n".
QStringList ShownTexts(QWidget* window);

}  // namespace kladez
