#include "ui/controls/TypeAhead.h"

#include <QKeyEvent>
#include <QWidget>

#include "ui/controls/FieldNote.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kForget = 2000;  // milliseconds

bool IsOneLetter(const QString& text) { return text == QString(text.size(), text.front()); }

}  // namespace

TypeAhead::TypeAhead(QWidget* control, Rows rows)
    : QObject(control), control_(control), rows_(std::move(rows)) {
  pause_.setSingleShot(true);
  pause_.setInterval(kForget);
}

bool TypeAhead::Takes(const QKeyEvent& event) {
  const bool typing = pause_.isActive();
  if (event.key() == Qt::Key_F3 && !typed_.isEmpty()) {
    Go(rows_.names().Next(typed_, rows_.current()));
    return true;
  }
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  if (event.key() == Qt::Key_Backspace) {
    if (!typing) return false;
    typed_.chop(1);
  } else {
    const QString text = event.text();
    if (text.isEmpty() || !text.front().isPrint() || (text == u" " && !typing)) return false;
    typed_ = typing ? typed_ + text : text;
  }
  int row = rows_.names().First(typed_);
  // The same letter again goes through the names that begin with it.
  if (row < 0 && typed_.size() > 1 && IsOneLetter(typed_)) {
    row = rows_.names().Next(typed_.first(1), rows_.current());
  }
  Go(row);
  return true;
}

void TypeAhead::Go(int row) {
  pause_.start();
  if (row >= 0) rows_.select(row);
  const QString told = row >= 0 ? u"Поиск: %1"_s : u"Не найдено: %1"_s;
  FieldNote::Show(control_,
                  typed_.isEmpty() ? QString() : told.arg(typed_.left(look::kLongestText)),
                  FieldNote::Stays::kForAMoment);
}

}  // namespace kladez
