// The list of a set's changes as it lies in the staging directory while they are being made.
#pragma once

#include <QByteArray>
#include <span>
#include <vector>

#include "store/SaveSet.h"

namespace kladez {

// Paths are kept relative to `root`, the data directory, which may have another name after a crash.
QByteArray ManifestBytes(std::span<const SaveSet::Change> changes, const QByteArray& root);

// Throws filesystem_error where the file can't be read, is cut, or names a path outside `root`.
std::vector<SaveSet::Change> ReadManifest(const QByteArray& file, const QByteArray& root);

}  // namespace kladez
