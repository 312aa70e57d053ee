#include "books/store/FileState.h"

#include <QtEndian>
#include <array>
#include <cstring>

#include "books/store/Errors.h"
#include "system/ErrorNumbers.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// False where there is no such file. Throws where that can't be seen.
bool Look(const QByteArray& file, FileState& state) {
  FileStatus status;
  if (const int error = syscalls::LookThroughLinks(file, &status)) {
    if (error == ENOENT || error == ENOTDIR) return false;
    ThrowFileError(u"Не удалось прочитать файл"_s, DecodePath(file), error);
  }
  state.exists = true;
  state.inode = status.inode;
  state.size = status.size;
  state.modified = status.modified;
  state.changed = status.changed;
  return true;
}

bool SameStatus(const FileState& a, const FileState& b) {
  return a.exists == b.exists && a.inode == b.inode && a.size == b.size &&
         a.modified == b.modified && a.changed == b.changed;
}

quint64 Mixed(quint64 hash, quint64 word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 29);
}

}  // namespace

quint64 Fingerprint(QByteArrayView bytes) {
  // Four numbers side by side: each word needs not wait for the one before it.
  constexpr qsizetype kWord = sizeof(quint64);
  std::array<quint64, 4> hashes = {0x5851F42D4C957F2Du, 0x14057B7EF767814Fu, 0x2545F4914F6CDD1Du,
                                   0x9FB21C651E98DF25u};
  constexpr qsizetype kStep = kWord * static_cast<qsizetype>(hashes.size());
  const auto size = static_cast<quint64>(bytes.size());
  for (; bytes.size() >= kStep; bytes = bytes.sliced(kStep)) {
    for (size_t i = 0; i < hashes.size(); ++i) {
      const char* word = bytes.data() + kWord * static_cast<qsizetype>(i);
      hashes[i] = Mixed(hashes[i], qFromLittleEndian<quint64>(word));
    }
  }
  quint64 hash = size;
  for (const quint64 one : hashes) hash = Mixed(hash, one);
  for (; bytes.size() >= kWord; bytes = bytes.sliced(kWord)) {
    hash = Mixed(hash, qFromLittleEndian<quint64>(bytes.data()));
  }
  quint64 rest = 0;
  for (qsizetype i = bytes.size(); i-- > 0;) rest = rest << 8 | static_cast<uchar>(bytes[i]);
  return Mixed(Mixed(hash, rest), 0);
}

QByteArray ReadWithState(const DataDir& data, const QString& path, FileState& state) {
  state = {};
  const QByteArray file = EncodePath(data.Resolve(path));
  // Somebody may write at this very moment: what was read and the state must belong together.
  for (int tries = 0;; ++tries) {
    FileState before, after;
    Look(file, before);
    QByteArray bytes = data.Read(path);
    Look(file, after);
    if (!SameStatus(before, after) && tries < 3) continue;
    state = before;
    state.known = true;
    state.fingerprint = Fingerprint(bytes);
    return bytes;
  }
}

QByteArray ReadIfThere(const DataDir& data, const QString& path, FileState& state) {
  state = {};
  FileState found;
  if (Look(EncodePath(data.Resolve(path)), found)) return ReadWithState(data, path, state);
  state = FileState::Missing();
  return {};
}

bool IsStill(const FileState& state, const QByteArray& file) {
  if (!state.known) return false;
  FileState now;
  if (!Look(file, now) || !state.exists) return now.exists == state.exists;
  if (SameStatus(now, state)) return true;
  if (now.size != state.size) return false;
  const qsizetype slash = file.lastIndexOf('/');
  const DataDir directory(DecodePath(file.left(slash)));
  const QByteArray bytes = directory.Read(DecodePath(file.mid(slash + 1)));
  return Fingerprint(bytes) == state.fingerprint;
}

bool IsStill(const FileState& state, const DataDir& data, const QString& path) {
  bool still = false;
  return IgnoreErrors([&] { still = IsStill(state, EncodePath(data.Resolve(path))); }) && still;
}

FileState StateOfWritten(const QByteArray& file, quint64 fingerprint) {
  FileState state;
  state.known = Look(file, state);
  state.fingerprint = fingerprint;
  return state;
}

StaleFile::StaleFile(const QString& file, bool appeared)
    : filesystem_error(
          (appeared
               ? u"Такой файл тем временем появился, он оставлен как есть; ничего не записано"_s
               : u"Файл изменён другой программой или в другом окне, после того как был "
                 u"прочитан. Чтобы ничего не пропало, ничего не записано"_s)
              .toStdString(),
          std::filesystem::path(EncodePath(file).toStdString()),
          std::error_code(appeared ? EEXIST : ESTALE, std::generic_category())) {}

}  // namespace kladez
