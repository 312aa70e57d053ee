#include "books/store/Backup.h"

#include <QFileInfo>
#include <cerrno>
#include <set>

#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "books/store/TreeCopy.h"
#include "formats/DatabaseFiles.h"
#include "formats/Dates.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// In the data directory, beside the Databases.
constexpr QStringView kUnfinishedRestore = u".kladez-restore";

void Check(int error, const QString& doing, const QByteArray& path) {
  if (error != 0) ThrowFileError(doing, DecodePath(path), error);
}

// Removes a tree at the end, however that is reached, unless it was given its own name.
class Unfinished {
 public:
  explicit Unfinished(const QByteArray& path) : path_(path) {
    Check(syscalls::RemoveTree(path), u"Не удалось удалить незаконченную копию"_s, path);
  }
  ~Unfinished() { syscalls::RemoveTree(path_); }
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  const QByteArray& Path() const { return path_; }

 private:
  QByteArray path_;
};

QByteArray TreeOf(const DataDir& data, const CatalogueEntry& entry) {
  RequirePlainPath(data, entry);
  if (!data.DirectoryExists(entry.descriptor.path)) {
    ThrowFileError(u"Нет каталога базы «"_s + entry.descriptor.name + u'»',
                   data.Root() + u'/' + entry.descriptor.path.chopped(1), ENOENT);
  }
  return EncodePath(data.Resolve(entry.descriptor.path));
}

void RefuseInside(const QByteArray& tree, const QString& folder) {
  const QByteArray target = EncodePath(QFileInfo(folder).canonicalFilePath());
  if (target == tree || target.startsWith(QByteArray(tree + '/'))) {
    ThrowFileError(u"Копия не может лежать внутри самой базы данных"_s, folder, EINVAL);
  }
}

}  // namespace

QString BackupTarget(const QString& folder, QDate day) {
  const QString name = u"Копия БД Kladez от "_s + BackupDateText(day);
  return folder.endsWith(u'/') ? QString(folder + name) : QString(folder + u'/' + name);
}

void MakeBackup(const DataDir& data, const std::vector<CatalogueEntry>& chosen,
                const QString& folder, QDate day, const Progress& progress) {
  // The user's own choice may lead through links; nothing that is copied does.
  const QString plain = QFileInfo(folder).canonicalFilePath();
  const QByteArray target = EncodePath(BackupTarget(plain.isEmpty() ? folder : plain, day));
  if (syscalls::Exists(target)) {
    Check(EEXIST, u"Копия за это число уже есть в выбранной папке, она оставлена как есть"_s,
          target);
  }
  const QByteArray partial = target + EncodePath(u" (не закончена)"_s);
  TreeCopy copy;
  std::vector<BackupEntry> index;
  std::set<QByteArray> trees;  // two descriptors may share one
  for (const CatalogueEntry& listed : chosen) {
    const CatalogueEntry entry{listed.file, ReadDescriptor(data.Read(listed.file))};
    const QByteArray tree = TreeOf(data, entry);
    RefuseInside(tree, folder);
    copy.AddFile(EncodePath(data.Resolve(entry.file)), partial + '/' + EncodePath(entry.file));
    const QByteArray name = EncodePath(entry.descriptor.path.chopped(1));
    if (trees.insert(name).second) copy.AddTree(tree, partial + '/' + name);
    index.push_back({entry.file, entry.descriptor});
  }
  const Unfinished unfinished(partial);
  Check(syscalls::MakeDirectory(partial), u"Не удалось создать каталог"_s, partial);
  copy.Run(progress);
  const QByteArray index_file = partial + '/' + EncodePath(files::kBackupIndex.toString());
  Check(syscalls::WriteNewFile(index_file, WriteBackupIndex(index), 0),
        u"Не удалось записать файл"_s, index_file);
  Check(syscalls::SyncFileSystem(partial), u"Не удалось записать копию на диск"_s, partial);
  Check(syscalls::RenameToNew(partial, target), u"Не удалось закончить копию"_s, target);
  syscalls::SyncFileSystem(target);
}

bool IsBackupFolder(const QString& folder) {
  bool found = false;
  IgnoreErrors([&] { found = DataDir(folder).FileExists(files::kBackupIndex.toString()); });
  return found;
}

void RestoreDatabases(const DataDir& data, const DataDir& backup,
                      const std::vector<CatalogueEntry>& chosen, const Progress& progress) {
  const QByteArray aside = EncodePath(data.Root() + u'/' + kUnfinishedRestore);
  std::vector<TreeCopy> copies(chosen.size());
  qint64 size = 0;
  for (size_t i = 0; i < chosen.size(); ++i) {
    copies[i].AddTree(TreeOf(backup, chosen[i]), aside);
    size += copies[i].Size();
  }
  qint64 done = 0;
  for (size_t i = 0; i < chosen.size(); ++i) {
    const Unfinished unfinished(aside);
    const auto share = [&](qint64 units) { return double(units) / double(size); };
    copies[i].Run(progress.Piece(share(done), share(done + copies[i].Size())));
    done += copies[i].Size();
    Check(syscalls::SyncFileSystem(aside), u"Не удалось записать копию на диск"_s, aside);
    const QString number = NumberedName(FreeDatabaseNumber(data));
    SaveSet save(data);
    save.Write(number + files::kDescriptorExtension,
               WriteDescriptor({number + u'\\', chosen[i].descriptor.name + u" (копия)"_s}));
    save.RenameDirectory(kUnfinishedRestore.toString(), number);
    save.Commit();
  }
}

void RemoveUnfinishedRestore(const DataDir& data) {
  const QByteArray aside = EncodePath(data.Root() + u'/' + kUnfinishedRestore);
  Check(syscalls::RemoveTree(aside), u"Не удалось удалить незаконченное восстановление"_s, aside);
}

}  // namespace kladez
