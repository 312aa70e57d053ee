// The list of a set's changes as it lies in the staging directory while they are being made.
#pragma once

#include <QByteArray>
#include <optional>
#include <span>
#include <vector>

#include "books/store/SaveSet.h"

namespace kladez {

// No set of a shop has a longer list; what is longer is none.
inline constexpr qint64 kLongestManifest = 16 << 20;

// Paths are kept relative to `root`, the data directory, which may have another name after a crash.
QByteArray ManifestBytes(std::span<const SaveSet::Change> changes, const QByteArray& root);

// Nothing where the bytes are cut or name a path outside `root`.
std::optional<std::vector<SaveSet::Change>> ParseManifest(const QByteArray& bytes,
                                                          const QByteArray& root);

// The manifest in a file. Throws filesystem_error where it can't be read or is damaged.
std::vector<SaveSet::Change> ReadManifest(const QByteArray& file, const QByteArray& root);

}  // namespace kladez
