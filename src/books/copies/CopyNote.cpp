#include "books/copies/CopyNote.h"

#include <QtEndian>
#include <map>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 kSkippable = 0x184D2A5B;  // unpackers of zstd pass over a frame of this number
constexpr qsizetype kFrameHead = 8;
constexpr QByteArrayView kFirstLine = "kladez-copy 1\n";
constexpr qsizetype kLongestText = 200;

QString OneLine(const QString& text) { return text.left(kLongestText).simplified(); }

}  // namespace

QByteArray NoteFrame(const CopyNote& note) {
  const QString text =
      u"base=%1\nname=%2\ntime=%3\nwhy=%4\nfiles=%5\ndocuments=%6\ngoods=%7\nsum=%8\n"_s.arg(
          OneLine(note.base), OneLine(note.name), note.time.toString(Qt::ISODate),
          OneLine(note.why), QString::number(note.files), QString::number(note.documents),
          QString::number(note.goods), QString::number(note.sum, 16));
  QByteArray frame(kFrameHead, '\0');
  qToLittleEndian<quint32>(kSkippable, frame.data());
  qToLittleEndian<quint32>(kNoteFrame - kFrameHead, frame.data() + 4);
  frame += kFirstLine + text.toUtf8();
  return frame.leftJustified(kNoteFrame, '\n');
}

std::optional<CopyNote> ReadNote(QByteArrayView bytes) {
  if (bytes.size() < kNoteFrame) return std::nullopt;
  const QByteArrayView frame = bytes.last(kNoteFrame);
  if (qFromLittleEndian<quint32>(frame.data()) != kSkippable) return std::nullopt;
  const QByteArrayView lines = frame.sliced(kFrameHead);
  if (!lines.startsWith(kFirstLine)) return std::nullopt;
  std::map<QByteArray, QByteArray> values;
  for (const QByteArray& line : lines.toByteArray().split('\n')) {
    const qsizetype sign = line.indexOf('=');
    if (sign > 0) values[line.left(sign)] = line.mid(sign + 1);
  }
  CopyNote note;
  note.base = QString::fromUtf8(values["base"]);
  note.name = QString::fromUtf8(values["name"]);
  note.time = QDateTime::fromString(QString::fromLatin1(values["time"]), Qt::ISODate);
  note.why = QString::fromUtf8(values["why"]);
  note.files = values["files"].toLongLong();
  note.documents = values["documents"].toLongLong();
  note.goods = values["goods"].toLongLong();
  note.sum = values["sum"].toULongLong(nullptr, 16);
  if (note.base.isEmpty() || !note.time.isValid()) return std::nullopt;
  return note;
}

}  // namespace kladez
