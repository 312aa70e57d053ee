#include "books/directories/WarehouseDirectory.h"

#include <QRegularExpression>
#include <algorithm>
#include <cerrno>

#include "books/store/Catalogue.h"
#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The path of an empty name would be the Database itself, and that of ".." the catalogue.
QString PathOf(const Session& session, const QString& name) {
  if (!IsPlainTreePath(name + u'\\')) {
    ThrowFileError(u"Имя склада служит именем его каталога, а такое имя каталогу дать нельзя"_s,
                   name, EINVAL);
  }
  return session.Path(name);
}

// Names of devices in Windows, with whatever stands behind a point.
bool IsDevice(const QString& name) {
  static const QRegularExpression kDevice(
      u"^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[1-9¹²³]) *(\\.|$)"_s,
      QRegularExpression::CaseInsensitiveOption);
  return kDevice.match(name).hasMatch();
}

// Books travel: what no directory of Windows may be called is refused everywhere. Warehouses that
// are called so already are left alone.
void RefuseNameForNew(const QString& name) {
  if (name == kAllWarehouses) {
    ThrowFileError(u"Эти слова означают все склады вместе, назвать так один склад нельзя"_s, name,
                   EINVAL);
  }
  if (IsDevice(name)) {
    ThrowFileError(
        u"Имя склада служит именем его каталога, а это имя в Windows занято устройством: "
        u"CON, PRN, AUX, NUL, COM1–COM9, LPT1–LPT9"_s,
        name, EINVAL);
  }
  const bool control =
      std::any_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x20; });
  if (control || HoldsForbiddenCharacter(name) || name.endsWith(u' ') || name.endsWith(u'.')) {
    ThrowFileError(
        u"Имя склада служит именем его каталога и должно годиться для Windows: без пробела "
        u"или точки в конце, без табуляции и знаков \\/:*?\"<>|"_s,
        name, EINVAL);
  }
}

}  // namespace

bool HoldsForbiddenCharacter(QStringView name) {
  constexpr QStringView kForbidden = u"\\/:*?\"<>|";
  return std::any_of(name.begin(), name.end(), [&](QChar c) { return kForbidden.contains(c); });
}

WarehouseDirectory::WarehouseDirectory(const DataDir& data, Session& session)
    : data_(data), session_(session), names_(session.warehouses) {}

bool WarehouseDirectory::IsCurrent() const {
  return IsStill(session_.warehouses_file, data_, session_.Path(files::kWarehouses));
}

void WarehouseDirectory::Reload() {
  ReadWarehouses(session_, data_);
  names_ = session_.warehouses;
}

void WarehouseDirectory::WriteList(SaveSet& save, const QStringList& names) const {
  const QString path = session_.Path(files::kWarehouses);
  if (!session_.warehouses_file.known) {
    ThrowFileError(
        u"Список складов не удалось прочитать, когда открывалась база; чтобы склады не "
        u"пропали, он не записан. Верните файл на место и откройте базу заново"_s,
        path, ENOENT);
  }
  save.Write(path, EncodeLines(names), session_.warehouses_file);
}

void WarehouseDirectory::Create(const QString& name) {
  const QString path = PathOf(session_, name);
  RefuseNameForNew(name);
  // A directory that is there already, be it the Database's own, must not become a warehouse.
  if (data_.DirectoryExists(path)) {
    ThrowFileError(u"Не удалось создать склад"_s, path, EEXIST);
  }
  QStringList names = names_;
  names.append(name);
  SaveSet save(data_, u"склад «%1» создан"_s.arg(name));
  WriteList(save, names);
  AddNewWarehouse(save, path);
  save.Commit();
  TakeOver(names);
}

void WarehouseDirectory::Rename(int row, const QString& name) {
  if (name == names_[row]) return;
  const QString path = PathOf(session_, name);
  RefuseNameForNew(name);
  SaveSet save(data_, u"склад «%1» переименован"_s.arg(names_[row]));
  save.RenameDirectory(PathOf(session_, names_[row]), path);
  save.Commit();
  names_[row] = name;
}

void WarehouseDirectory::Delete(int row) {
  if (row <= 0) return;
  QStringList names = names_;
  names.removeAt(row);
  const QString path = PathOf(session_, names_[row]);
  SaveSet save(data_, u"склад «%1» удалён"_s.arg(names_[row]));
  // A rename that was not saved leaves a name without a directory; it must not stay for ever.
  if (data_.DirectoryExists(path)) save.DeleteTree(path);
  WriteList(save, names);
  save.Commit();
  TakeOver(names);
}

void WarehouseDirectory::Save() {
  SaveSet save(data_, u"список складов записан"_s);
  WriteList(save, names_);
  save.Commit();
  TakeOver(names_);
}

void WarehouseDirectory::TakeOver(const QStringList& names) {
  names_ = names;
  session_.warehouses = names;
}

}  // namespace kladez
