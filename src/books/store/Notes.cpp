#include "books/store/Notes.h"

#include <utility>

namespace kladez {
namespace {

QStringList& Notes() {
  static QStringList notes;
  return notes;
}

}  // namespace

void AddNote(const QString& text) { Notes().append(text); }

QStringList TakeNotes() { return std::exchange(Notes(), {}); }

}  // namespace kladez
