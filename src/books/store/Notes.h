// What a person has to know though no command failed by it: said once, as soon as there is a window
// to say it in.
#pragma once

#include <QString>
#include <QStringList>

namespace kladez {

// Keeps a sentence for the next window, from any thread; gives all of them in their order.
void AddNote(const QString& text);
QStringList TakeNotes();  // and forgets them

}  // namespace kladez
