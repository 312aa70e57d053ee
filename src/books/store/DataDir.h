// The data directory: descriptors, Databases and print-outs lie in it. Paths of the system are
// relative to it and written as in the files ("0001\spr\firma.spr"); the one resolver here finds
// them whatever the letter case of what is on the disk, and refuses whatever would lead out.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace kladez {

// What saves are staged under in the data directory, with a point and more behind it; no path of
// the system leads there.
inline constexpr char kStagingName[] = ".kladez-save";

class SaveWatch;

class DataDir {
 public:
  // `root` is a directory of the machine; the program gives its working directory.
  explicit DataDir(const QString& root);

  // The directory of all Databases, absolute, without a separator at the end.
  const QString& Root() const { return root_; }

  // Whoever looks on as its files are saved (SaveWatch.h); it outlives this or is taken off again.
  void SetWatch(SaveWatch* watch) { watch_ = watch; }
  SaveWatch* Watch() const { return watch_; }

  // The machine's path of a path of the system. Parts that exist are found by their exact spelling
  // first, else whatever their case, Latin and Cyrillic; parts that don't keep the spelling given.
  // Throws filesystem_error for an absolute path, an empty part, ".", "..", a part with "/" or a
  // NUL, the staging directory, and for a link that leads out of the directory. One backslash at
  // the end is passed over.
  QString Resolve(const QString& path) const;

  bool FileExists(const QString& path) const;       // false too for a path that Resolve refuses
  bool DirectoryExists(const QString& path) const;  // likewise

  // The bytes of a file. Throws filesystem_error.
  QByteArray Read(const QString& path) const;
  // The same; nothing where the file can't be read.
  std::optional<QByteArray> ReadIfAny(const QString& path) const;

  // Names of the files of a directory that end in `extension` (".prh", whatever its case), ordered
  // by the upper-cased name; an empty directory is the data directory itself. Throws
  // filesystem_error.
  QStringList List(const QString& directory, QStringView extension) const;

  // Reads the files of List in its order; `visit` returns false to stop.
  struct ListedFile {
    const QString& name;
    std::optional<QByteArrayView> bytes;  // nothing where it can't be read; valid during the visit
    qsizetype index;                      // its place among `count` files, for progress
    qsizetype count;
  };
  using Visitor = std::function<bool(const ListedFile& file)>;
  using Wanted = std::function<bool(const QString& name)>;
  // Throws filesystem_error where the directory can't be listed, and what `visit` throws. Files
  // that are not `wanted` are passed over unread; without it all are.
  void ForEachFile(const QString& directory, QStringView extension, const Visitor& visit,
                   const Wanted& wanted = {}) const;

 private:
  QString root_;  // canonical, without a separator at the end
  SaveWatch* watch_ = nullptr;
};

// "0001\": one plain directory name with a backslash, the only form of a Database's path that is
// opened, deleted or copied.
bool IsPlainTreePath(const QString& path);

}  // namespace kladez
