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
constexpr qsizetype kFields = 4;
constexpr char kEnd[] = "end";

bool LiesInside(const QByteArray& relative) {
  const QList<QByteArray> parts = relative.split('/');
  return std::none_of(parts.begin(), parts.end(), [](const QByteArray& part) {
    return part.isEmpty() || part == "." || part == "..";
  });
}

}  // namespace

QByteArray ManifestBytes(std::span<const SaveSet::Change> changes, const QByteArray& root) {
  QByteArray bytes;
  const auto add = [&](const QByteArray& field) { bytes.append(field).append(kEndOfField); };
  const auto relative = [&](const QByteArray& path) { return path.mid(root.size() + 1); };
  for (const SaveSet::Change& change : changes) {
    add(QByteArray::number(static_cast<int>(change.kind)));
    add(relative(change.path));
    add(relative(change.to));
    add(change.fresh ? "1" : "0");
  }
  return bytes.append(kEnd);
}

std::optional<std::vector<SaveSet::Change>> ParseManifest(const QByteArray& bytes,
                                                          const QByteArray& root) {
  const QList<QByteArray> fields = bytes.split(kEndOfField);
  if (fields.last() != kEnd || fields.size() % kFields != 1) return std::nullopt;
  std::vector<SaveSet::Change> changes;
  for (qsizetype i = 0; i + 1 < fields.size(); i += kFields) {
    bool number = false;
    const int kind = fields[i].toInt(&number);
    const bool rename = kind == static_cast<int>(Kind::kRename);
    if (!number || kind < 0 || kind > static_cast<int>(Kind::kLast) || !LiesInside(fields[i + 1]) ||
        (rename && !LiesInside(fields[i + 2]))) {
      return std::nullopt;
    }
    changes.push_back({.kind = static_cast<Kind>(kind),
                       .path = root + '/' + fields[i + 1],
                       .to = rename ? QByteArray(root + '/' + fields[i + 2]) : QByteArray(),
                       .fresh = fields[i + 3] == "1",
                       .bytes = {}});
  }
  return changes;
}

std::vector<SaveSet::Change> ReadManifest(const QByteArray& file, const QByteArray& root) {
  QByteArray bytes;
  const int error = syscalls::ReadPlainFile(file, kLongestManifest, &bytes);
  if (error == 0) {
    if (auto changes = ParseManifest(bytes, root)) return *std::move(changes);
  }
  ThrowFileError(u"Не удалось прочитать список прерванной записи"_s, DecodePath(file),
                 error == 0 ? EBADMSG : error);
}

}  // namespace kladez
