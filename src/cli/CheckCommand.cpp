#include <QFileInfo>

#include "books/check/BooksCheck.h"
#include "books/store/Catalogue.h"
#include "cli/Commands.h"
#include "cli/OpenedBooks.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void PrintStock(const QString& base, const CheckResult& result, QTextStream& out) {
  out << u"База\tСклад\tТовар\tЗанесено\tПриход\tРасход\tПеремещения\tНа складе\tРасхождение\n"_s;
  for (const StockComparison& row : result.stock) {
    out << base << u'\t' << row.warehouse << u'\t' << row.name;
    for (const double number : {row.Opening(), row.receipts, row.shipments, row.transfers,
                                row.on_hand, row.Difference()}) {
      out << u'\t' << GeneralText(number);
    }
    out << u'\n';
  }
}

// Whether the Database is sound.
bool CheckOne(const DataDir& data, const QString& base, bool stock, QTextStream& out) {
  const CheckResult result = CheckBooks(data, base);
  for (const Finding& finding : result.findings) {
    out << base << finding.file;
    if (finding.line > 0) out << u':' << finding.line;
    out << u": "_s << finding.text << u'\n';
  }
  if (result.untold > 0) out << base << u": и ещё замечаний: "_s << result.untold << u'\n';
  if (stock) PrintStock(base, result, out);
  out << base << u": файлов "_s << result.files << u", документов "_s << result.documents
      << u", замечаний "_s << static_cast<qsizetype>(result.findings.size()) + result.untold
      << u'\n';
  return result.findings.empty();
}

bool CheckAll(const DataDir& data, bool stock, QTextStream& out) {
  bool sound = true;
  for (const CatalogueEntry& entry : ListDatabases(data)) {
    RequirePlainPath(data, entry);
    sound &= CheckOne(data, entry.descriptor.path, stock, out);
  }
  return sound;
}

}  // namespace

ExitCode RunCheck(Words& words, QTextStream& out) {
  const bool stock = words.TakeFlag(u"--stock"_s);
  const QString usual = DataDirectory(words);
  const DataDir data(words.TakeRest(0, 1).value(0, usual));
  bool sound = false;
  if (data.FileExists(files::kWarehouses.toString())) {
    const QFileInfo database(data.Root());
    sound = CheckOne(DataDir(database.path()), database.fileName() + u'\\', stock, out);
  } else {
    sound = CheckAll(data, stock, out);
  }
  return sound ? ExitCode::kSound : ExitCode::kFindings;
}

}  // namespace kladez
