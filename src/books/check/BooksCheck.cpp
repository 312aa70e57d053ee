#include "books/check/BooksCheck.h"

#include "books/check/ListCheck.h"
#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct DocumentFolder {
  DocumentKind kind;
  QString directory;  // below the Database
  int warehouse;      // -1 for transfers
};

std::vector<DocumentFolder> DocumentFolders(const QStringList& warehouses) {
  std::vector<DocumentFolder> folders;
  for (int i = 0; i < static_cast<int>(warehouses.size()); ++i) {
    folders.push_back({DocumentKind::kReceipt, warehouses[i] + u'\\' + files::kReceipts, i});
    folders.push_back({DocumentKind::kShipment, warehouses[i] + u'\\' + files::kShipments, i});
  }
  folders.push_back({DocumentKind::kTransfer, files::kTransfers.toString(), -1});
  return folders;
}

class Check {
 public:
  Check(const DataDir& data, const QString& base)
      : data_(data), base_(base), lists_(data, base, findings_, result_.files) {}

  CheckResult Run(const Progress& progress) {
    lists_.CheckGoods(names_.goods);
    KnownNames firms;
    lists_.CheckParties(PartyKind::kFirm, firms);
    lists_.CheckParties(PartyKind::kClient, names_.clients);
    lists_.CheckParties(PartyKind::kSupplier, names_.suppliers);
    lists_.CheckWarehouses(names_.warehouses);
    lists_.CheckCurrency();
    lists_.CheckMarks(names_.goods);
    lists_.CheckFolders(names_.warehouses);
    StockCheck stock(names_.warehouses, names_.goods);
    for (int i = 0; i < static_cast<int>(names_.warehouses.size()); ++i) {
      const QString& warehouse = names_.warehouses[i];
      if (!data_.DirectoryExists(base_ + warehouse)) continue;
      lists_.CheckLedger(warehouse, i, names_.goods, stock);
      lists_.CheckPrices(warehouse, names_.goods);
    }
    const auto folders = DocumentFolders(names_.warehouses);
    for (size_t i = 0; i < folders.size(); ++i) {
      const double part = 1.0 / static_cast<double>(folders.size());
      const double done = static_cast<double>(i) * part;
      CheckDocuments(folders[i], stock, progress.Piece(done, done + part));
    }
    stock.Tell(findings_);
    result_.stock = stock.Compare();
    names_.goods.TellUnknown(u"Товара"_s, findings_);
    names_.clients.TellUnknown(u"Клиента"_s, findings_);
    names_.suppliers.TellUnknown(u"Поставщика"_s, findings_);
    result_.findings = findings_.Take();
    result_.untold = findings_.Untold();
    return std::move(result_);
  }

 private:
  void CheckDocuments(const DocumentFolder& folder, StockCheck& stock, const Progress& progress) {
    if (!data_.DirectoryExists(base_ + folder.directory)) return;
    DocumentCheck check(folder.kind, folder.directory, folder.warehouse, names_, stock, findings_);
    const auto visit = [&](const DataDir::ListedFile& file) {
      progress.Tell(static_cast<double>(file.index) / static_cast<double>(file.count));
      ++result_.files;
      ++result_.documents;
      if (file.bytes) {
        check.Add(file.name, *file.bytes);
      } else {
        lists_.Tell(folder.directory + u'\\' + file.name, 0, u"Документ не читается."_s);
      }
      return true;
    };
    data_.ForEachFile(base_ + folder.directory, FormatOf(folder.kind).extension, visit);
    check.Finish();
  }

  const DataDir& data_;
  const QString base_;
  FindingList findings_;
  CheckResult result_;
  ListCheck lists_;
  DirectoryNames names_;
};

}  // namespace

CheckResult CheckBooks(const DataDir& data, const QString& base, const Progress& progress) {
  if (!data.DirectoryExists(base)) {
    ThrowFileError(u"Нет каталога базы"_s, data.Root() + u'/' + base.chopped(1), ENOENT);
  }
  return Check(data, base).Run(progress);
}

QString PlaceText(const Finding& finding) {
  return finding.line == 0 ? finding.file
                           : finding.file + u", строка "_s + QString::number(finding.line);
}

}  // namespace kladez
