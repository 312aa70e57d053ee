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

struct SaveManifest {
  QByteArray key;  // of the staged files (SaveStage.h); lists of earlier versions have none
  std::vector<SaveSet::Change> changes;
};

// Whether the list alone can tell how far a set has come: it changes contents of files, all known.
bool TellsAll(std::span<const SaveSet::Change> changes);
// Puts into each write of such a set what it replaces; `expected` may know it without reading.
void TellBefore(std::vector<SaveSet::Change>& changes,
                std::span<const SaveSet::Expectation> expected);
// What lies at a path, as a change tells it. Throws filesystem_error.
QByteArray WhatIsThere(const QByteArray& path);

// Paths are kept relative to `root`, the data directory, which may have another name after a crash.
QByteArray ManifestBytes(const QByteArray& key, std::span<const SaveSet::Change> changes,
                         const QByteArray& root);

// Nothing where the bytes are cut or name a path outside `root`.
std::optional<SaveManifest> ParseManifest(const QByteArray& bytes, const QByteArray& root);

// The manifest in a file. Throws filesystem_error where it can't be read or is damaged.
SaveManifest ReadManifest(const QByteArray& file, const QByteArray& root);

}  // namespace kladez
