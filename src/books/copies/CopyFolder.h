// Where copies lie: files "0001 2026-11-23 21-04-56.tar.zst" in one folder of the user's state, and
// the same once more in a second place that the user may name.
#pragma once

#include <QByteArray>
#include <optional>
#include <span>
#include <vector>

#include "books/copies/CopyNote.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez {

// "$XDG_STATE_HOME/kladez", made where it is missing; absolute and without links. Throws
// filesystem_error.
QByteArray StateDirectory();
// The folder of a data directory's copies: "copies" for the usual one, one of its own inside it for
// any other. Throws filesystem_error.
QByteArray CopiesFolder(const DataDir& data);

struct StoredCopy {
  QByteArray file;  // absolute
  qint64 size = 0;  // bytes
  CopyNote note;
};

// The oldest first; what has no note is none. A folder that is not there has none.
std::vector<StoredCopy> ListCopies(const QByteArray& folder);

// When the newest copy of the open Database was made. Throws filesystem_error.
std::optional<QDateTime> LastCopyOf(const DataDir& data, const Session& session);

// The name for a new copy: one that no copy has.
QByteArray NewCopyFile(const QByteArray& folder, const CopyNote& note);

// Which copies are no longer kept: of each Database every one of today stays, then the first of
// each day for a week, of each week for a month, of each month for ten years. Where all together
// are larger than `room` (bytes) the oldest go first, but never those of today nor the last one of
// a Database. Gives their places in `copies`, which are ordered as ListCopies orders them.
std::vector<size_t> OutlivedCopies(std::span<const StoredCopy> copies, QDate today, qint64 room);

// Removes these. Throws filesystem_error.
void RemoveOutlivedCopies(const QByteArray& folder, QDate today, qint64 room);

// Copies what the second place lacks; false where it is not there. Throws filesystem_error.
bool FillSecondPlace(const QByteArray& folder, const QByteArray& second, QDate today, qint64 room);

}  // namespace kladez
