#include "books/reports/ReportScope.h"

#include "books/store/Errors.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kFilesBetweenProgress = 64;

QString DirectoryOf(DocumentKind kind) {
  return kind == DocumentKind::kReceipt ? u"PRH"_s : u"UHD"_s;
}

}  // namespace

int DayKeyOf(QDate date) {
  int year = 0;
  int month = 0;
  int day = 0;
  date.getDate(&year, &month, &day);
  return year % 100 * 10000 + month * 100 + day;
}

bool ReportPeriod::Passes(int day_key) const {
  switch (kind) {
    case PeriodKind::kAll:
      return true;
    case PeriodKind::kCurrentMonth:
      return day_key / 100 % 100 == today.month();
    case PeriodKind::kRange:
      return DayKeyOf(from) <= day_key && day_key <= DayKeyOf(to);
  }
  Q_UNREACHABLE();
}

QStringList ReportScope::Warehouses(const Session& session) const {
  return warehouse == kAllWarehouses ? session.warehouses : QStringList{warehouse};
}

void ScanWarehouses(const DataDir& data, const Session& session, const QStringList& warehouses,
                    DocumentKind kind, Unreadable unreadable, const Progress& progress,
                    const std::function<void(ScannedDocument&)>& visit) {
  const double share = 1.0 / static_cast<double>(std::max<qsizetype>(1, warehouses.size()));
  double done = 0;
  for (const QString& warehouse : warehouses) {
    const QString directory = session.Path(warehouse, DirectoryOf(kind));
    const auto scan = [&] {
      int until_progress = 0;
      ScanDocuments(data, kind, directory, unreadable, [&](ScannedDocument& document) {
        if (until_progress-- == 0) {
          until_progress = kFilesBetweenProgress;
          progress.Tell(done + document.Part() * share);
        }
        visit(document);
        return true;
      });
    };
    const bool exists = data.DirectoryExists(directory);
    if (exists && unreadable == Unreadable::kStop) scan();
    if (exists && unreadable == Unreadable::kPassOver) IgnoreErrors(scan);
    done += share;
  }
}

}  // namespace kladez
