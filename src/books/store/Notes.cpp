#include "books/store/Notes.h"

#include <mutex>
#include <utility>

namespace kladez {
namespace {

std::mutex& Mutex() {
  static std::mutex mutex;
  return mutex;
}

QStringList& Notes() {
  static QStringList notes;
  return notes;
}

}  // namespace

void AddNote(const QString& text) {
  const std::lock_guard lock(Mutex());
  Notes().append(text);
}

QStringList TakeNotes() {
  const std::lock_guard lock(Mutex());
  return std::exchange(Notes(), {});
}

}  // namespace kladez
