// An open Database of the seed tree, and a check of the whole tree after a command: only the files
// named as changed may differ from what was there.
#pragma once

#include "ScreenDriver.h"
#include "SmallBooks.h"

namespace kladez {

class DirectoryWorld : public ScreenWorld {
 public:
  DirectoryWorld() { SmallBooks(Temp().Data(), CurrentSession(), u"Магазин"_s); }

  const DataDir& Data() { return Temp().Data(); }
  QStringList Lines(const QString& path) { return Temp().Lines(CurrentSession().Path(path)); }
  void PutLines(const QString& path, const QStringList& lines) {
    Temp().PutLines(CurrentSession().Path(path), lines);
  }
  // From then on every attempt to write the file fails, for the superuser too.
  void Protect(const QString& path) {
    const QString file = Data().Resolve(CurrentSession().Path(path));
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner));
  }

  void Remember() { before_ = Temp().Tree(); }
  // Relative paths as they lie on the disk ("0001/SPR/товар.spr") and the lines of each.
  void ExpectChanged(const std::map<std::string, QStringList>& changes) {
    auto expected = before_;
    for (const auto& [path, lines] : changes) expected[path] = EncodeLines(lines).toStdString();
    const auto tree = Temp().Tree();
    for (const auto& [path, bytes] : expected) {
      const auto found = tree.find(path);
      if (found == tree.end()) {
        ADD_FAILURE() << "gone: " << path;
      } else if (found->second != bytes) {
        ADD_FAILURE() << path << " is\n" << Shown(found->second) << "instead of\n" << Shown(bytes);
      }
    }
    for (const auto& [path, bytes] : tree) {
      if (!expected.contains(path)) ADD_FAILURE() << "too much: " << path;
    }
  }
  void ExpectUnchanged() { ExpectChanged({}); }

 private:
  static std::string Shown(const std::string& bytes) {
    return DecodeText(QByteArrayView(bytes)).toStdString();
  }

  FileTree before_;
};

}  // namespace kladez
