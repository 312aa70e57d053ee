// What a copy says of itself, in a frame of a fixed length at its end, so that a list of copies
// needs not unpack them:
//
//   kladez-copy 1
//   base=0001
//   name=Магазин
//   time=2026-11-23T21:04:56
//   why=перед первым изменением дня
//   files=1203
//   documents=812
//   goods=240
//   sum=5c1e08bd6f34a917
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

namespace kladez {

struct CopyNote {
  QString base;    // the directory of the Database, "0001"
  QString name;    // as its descriptor has it
  QDateTime time;  // local, to the second
  QString why;     // for a person: "перед удалением склада «Лавка»"
  qint64 files = 0;
  qint64 documents = 0;
  qint64 goods = 0;  // of the directory, without its groups
  quint64 sum = 0;   // of all that the archive holds (Archive.h)

  bool operator==(const CopyNote&) const = default;
};

inline constexpr qsizetype kNoteFrame = 4096;

// The frame; texts that are too long for it are cut.
QByteArray NoteFrame(const CopyNote& note);
// Nothing where the bytes end in no such frame.
std::optional<CopyNote> ReadNote(QByteArrayView bytes);

}  // namespace kladez
