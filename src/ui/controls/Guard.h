// The command guard: every command slot of a screen runs inside it. What the outside world refused
// (a missing file, a full disk) is told in a message box, and the screen stays as it was.
#pragma once

#include <exception>
#include <functional>

#include "books/store/Errors.h"
#include "books/store/Notes.h"
#include "formats/Progress.h"
#include "ui/controls/Messages.h"

namespace kladez {

// Tells what is to be known though nothing failed.
inline void ShowNotes(QWidget* parent) {
  for (const QString& note : TakeNotes()) ShowMessage(parent, note);
}

// True when the action came to its end; false, without a word, when it was cancelled.
template <typename Action>
bool Guarded(QWidget* parent, Action&& action) {
  try {
    action();
    ShowNotes(parent);
    return true;
  } catch (const WorkCancelled&) {
    return false;  // whoever cancelled it knows
  } catch (const std::exception& error) {
    ShowError(parent, ErrorText(error));
    return false;
  }
}

}  // namespace kladez
