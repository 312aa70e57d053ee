#include "books/store/SaveManifest.h"

#include <algorithm>
#include <cerrno>

#include "books/store/Errors.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Kind = SaveSet::Kind;

// Fields are parted by NUL, which no path holds.
constexpr char kEndOfField = '\0';
constexpr qsizetype kFields = 5;
constexpr qsizetype kFieldsBefore = 4;  // of versions whose changes did not tell what was there
constexpr char kBegin[] = "keyed";
constexpr char kEnd[] = "end";

bool LiesInside(const QByteArray& relative) {
  const QList<QByteArray> parts = relative.split('/');
  return std::none_of(parts.begin(), parts.end(), [](const QByteArray& part) {
    return part.isEmpty() || part == "." || part == "..";
  });
}

constexpr qint64 kLongestRead = qint64{1} << 30;
constexpr char kNone[] = "none";

QByteArray Told(quint64 fingerprint) { return QByteArray::number(fingerprint, 16); }

}  // namespace

bool TellsAll(std::span<const SaveSet::Change> changes) {
  return std::all_of(changes.begin(), changes.end(), [](const SaveSet::Change& change) {
    return change.kind == Kind::kWrite && !change.contents;
  });
}

void TellBefore(std::vector<SaveSet::Change>& changes,
                std::span<const SaveSet::Expectation> expected) {
  for (SaveSet::Change& change : changes) {
    const auto read = std::find_if(expected.begin(), expected.end(), [&](const auto& one) {
      return one.path == change.path && one.state.known && one.state.exists;
    });
    const bool was_read = read != expected.end() && !change.fresh;
    change.before = was_read ? Told(read->state.fingerprint) : WhatIsThere(change.path);
    // Nothing tells whether the same contents were put there again, and nothing needs to.
    if (change.before == Told(Fingerprint(change.bytes))) change.before.clear();
  }
}

QByteArray WhatIsThere(const QByteArray& path) {
  QByteArray bytes;
  const int error = syscalls::ReadPlainFile(path, kLongestRead, &bytes);
  if (error == 0) return Told(Fingerprint(bytes));
  if (error == ENOENT || error == ENOTDIR) return kNone;
  ThrowFileError(u"Не удалось прочитать файл"_s, DecodePath(path), error);
}

QByteArray ManifestBytes(const QByteArray& key, std::span<const SaveSet::Change> changes,
                         const QByteArray& root) {
  QByteArray bytes;
  const auto add = [&](const QByteArray& field) { bytes.append(field).append(kEndOfField); };
  const auto relative = [&](const QByteArray& path) { return path.mid(root.size() + 1); };
  add(kBegin);
  add(key);
  for (const SaveSet::Change& change : changes) {
    add(QByteArray::number(static_cast<int>(change.kind)));
    add(relative(change.path));
    add(relative(change.to));
    add(change.fresh ? "1" : "0");
    add(change.before);
  }
  return bytes.append(kEnd);
}

std::optional<SaveManifest> ParseManifest(const QByteArray& bytes, const QByteArray& root) {
  QByteArrayList fields = bytes.split(kEndOfField);
  if (fields.takeLast() != kEnd) return std::nullopt;
  SaveManifest manifest;
  const bool keyed = fields.size() > 1 && fields[0] == kBegin;
  if (keyed) {
    manifest.key = fields[1];
    if (manifest.key.isEmpty() || manifest.key.contains('/')) return std::nullopt;
    fields.remove(0, 2);
  }
  const qsizetype step = keyed ? kFields : kFieldsBefore;
  if (fields.size() % step != 0) return std::nullopt;
  for (qsizetype i = 0; i < fields.size(); i += step) {
    bool number = false;
    const int kind = fields[i].toInt(&number);
    const bool rename = kind == static_cast<int>(Kind::kRename);
    if (!number || kind < 0 || kind > static_cast<int>(Kind::kLast) || !LiesInside(fields[i + 1]) ||
        (rename && !LiesInside(fields[i + 2]))) {
      return std::nullopt;
    }
    manifest.changes.push_back(
        {.kind = static_cast<Kind>(kind),
         .path = root + '/' + fields[i + 1],
         .to = rename ? QByteArray(root + '/' + fields[i + 2]) : QByteArray(),
         .fresh = fields[i + 3] == "1",
         .bytes = {},
         .before = keyed ? fields[i + 4] : QByteArray()});
  }
  return manifest;
}

SaveManifest ReadManifest(const QByteArray& file, const QByteArray& root) {
  QByteArray bytes;
  const int error = syscalls::ReadPlainFile(file, kLongestManifest, &bytes);
  if (error == 0) {
    if (auto manifest = ParseManifest(bytes, root)) return *std::move(manifest);
  }
  ThrowFileError(u"Не удалось прочитать список прерванной записи"_s, DecodePath(file),
                 error == 0 ? EBADMSG : error);
}

}  // namespace kladez
