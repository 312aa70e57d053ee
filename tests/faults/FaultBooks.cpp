#include "faults/FaultBooks.h"

#include <QFile>
#include <fstream>
#include <sstream>

#include "books/directories/GoodsDirectory.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/stock/DocumentDraft.h"
#include "books/store/Backup.h"
#include "books/store/Catalogue.h"
#include "books/store/SaveSet.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

// The order of the calls is what is tested; syncing to a real disk would take most of the time.
const bool in_memory = fs::exists("/dev/shm") && qputenv("TMPDIR", "/dev/shm");

void MakeBooks(const fs::path& root, Beside beside) {
  fs::create_directories(root / "data");
  fs::create_directories(root / "backups");
  const DataDir data(QString::fromStdString(root / "data"));
  Session session;
  session.chosen_base = CreateDatabase(data, u"Лавка"_s);
  OpenDatabase(session, data);
  WarehouseDirectory(data, session).Create(u"Магазин"_s);
  GoodsDirectory goods(data, session, GoodsView::kGroups);
  goods.Insert(-1, {u" Бакалея"_s, {}, {}, {}, {}});
  goods.Insert(0, {u"Чай"_s, u"Индия"_s, {}, u"пач."_s, u"45.00"_s});
  goods.Insert(1, {u"Соль"_s, u"Россия"_s, {}, u"кг"_s, u"9.50"_s});
  goods.Save();
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    DocumentDraft draft = DocumentDraft::New(
        {data, session, kind, kind == DocumentKind::kTransfer ? QString() : kMainWarehouse},
        kBooksDay);
    draft.AddLine({u"Чай"_s, u"20"_s, u"пач."_s, u"45.00"_s, u"60.50"_s});
    if (kind == DocumentKind::kReceipt) draft.SetClosed(true);
    draft.Save();
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

std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
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

std::map<std::string, std::string> FaultBooks::Tree() const {
  std::map<std::string, std::string> tree;
  for (const auto& entry : fs::recursive_directory_iterator(Root())) {
    const std::string name = fs::relative(entry.path(), Root()).string();
    if (entry.is_directory()) {
      tree[name + "/"] = {};
    } else {
      tree[name] = BytesOf(entry.path());
    }
  }
  return tree;
}

void FaultBooks::Reopen() {
  SaveSet::Recover(data_);
  RemoveUnfinishedRestore(data_);
}

}  // namespace kladez
