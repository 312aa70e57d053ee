#include "faults/FaultBooks.h"

#include <fstream>

#include "SmallBooks.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/store/Backup.h"
#include "books/store/SaveSet.h"

namespace kladez {
namespace {

namespace fs = std::filesystem;

// The order of the calls is what is tested; syncing to a real disk would take most of the time.
const bool in_memory = fs::exists("/dev/shm") && qputenv("TMPDIR", "/dev/shm");

void MakeBooks(const fs::path& root, Beside beside) {
  fs::create_directories(root / "data");
  fs::create_directories(root / "backups");
  const DataDir data(QString::fromStdString(root / "data"));
  Session session;
  SmallBooks books(data, session, u"Лавка"_s);
  WarehouseDirectory(data, session).Create(u"Магазин"_s);
  books.Put(files::kGoods.toString(), u" Бакалея|Чай|Индия||пач.|45.00|Соль|Россия||кг|9.50"_lines);
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    books.Save(kind, {u"Чай"_s, u"20"_s, u"пач."_s, u"45.00"_s, u"60.50"_s},
               kind == DocumentKind::kReceipt, kBooksDay);
  }
  if (beside == Beside::kNothing) return;
  std::ofstream(root / "data" / "0001" / "marked") << "\xD7\xE0\xE9\n";  // "Чай", a bare LF behind
  CreateDatabase(data, u"Вторая"_s);
  MakeBackup(data, {ListDatabases(data).at(1)}, QString::fromStdString(root / "backups"),
             kBooksDay);
}

// Made once and copied for each try: most of the tries' time would go into making them.
fs::path Template(Beside beside) {
  static const QTemporaryDir directory;
  const fs::path root = fs::path(directory.path().toStdString()) /
                        (beside == Beside::kNothing ? "alone" : "with_others");
  if (!fs::exists(root)) MakeBooks(root, beside);
  return root;
}

}  // namespace

FaultBooks::FaultBooks(Beside beside)
    : data_([this, beside] {
        fs::copy(Template(beside), Root(), fs::copy_options::recursive);
        return DataDir(root_.path() + u"/data"_s);
      }()) {
  session_.chosen_base = u"0001\\"_s;
  OpenDatabase(session_, data_);
}

void FaultBooks::Reopen() {
  SaveSet::Recover(data_);
  RemoveUnfinishedRestore(data_);
}

}  // namespace kladez
