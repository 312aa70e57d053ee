#include "ui/controls/TableSaving.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QStandardPaths>
#include <stdexcept>

#include "books/store/Clock.h"
#include "books/store/OutsideFile.h"
#include "books/store/SettingsStore.h"
#include "formats/tables/TableTexts.h"
#include "ui/controls/FieldNote.h"
#include "ui/controls/Guard.h"
#include "workbook/Workbook.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct TableHome {
  SettingsStore* settings = nullptr;
  const Clock* clock = nullptr;
};

TableHome& Home() {
  static TableHome home;
  return home;
}

QString FolderToPropose() {
  const QString last =
      Home().settings == nullptr ? QString() : Home().settings->Read(settings::kTableFolder);
  return !last.isEmpty() && QDir(last).exists()
             ? last
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString AskTablePath(QWidget* parent, const QString& title) {
  const Clock machine;
  const QDate today = (Home().clock == nullptr ? machine : *Home().clock).Today();
  const QString workbook = u"Таблица (*.xlsx)"_s;
  const QString csv = u"Текст CSV (*.csv)"_s;
  QFileDialog dialog(parent, u"Сохранить как таблицу"_s, FolderToPropose());
  dialog.setObjectName(u"save_table"_s);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({workbook, csv});
  dialog.setDefaultSuffix(u"xlsx"_s);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(filter == csv ? u"csv"_s : u"xlsx"_s);
  });
  dialog.selectFile(TableFileName(title, today.toString(u"yyyy-MM-dd"_s)));
  if (dialog.exec() != QDialog::Accepted) return {};
  QString path = dialog.selectedFiles().value(0);
  const QString ending = path.section(u'.', -1).toLower();
  if (ending != u"xlsx" && ending != u"csv") path += u".xlsx"_s;
  return path;
}

class BusyCursor {
 public:
  BusyCursor() { QGuiApplication::setOverrideCursor(Qt::BusyCursor); }
  ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace

void KeepTableFolder(SettingsStore* settings, const Clock* clock) { Home() = {settings, clock}; }

QString TableFileName(const QString& title, const QString& day) {
  QString name;
  for (const QChar c : title) {
    name += c < u' ' || QStringView(u"/\\:*?\"<>|").contains(c) ? u' ' : c;
  }
  name = name.simplified().left(80).trimmed();
  while (name.startsWith(u'.')) name.remove(0, 1);
  return (name.isEmpty() ? u"Таблица"_s : name) + u' ' + day;
}

void SaveTable(QWidget* parent, const Table& table) {
  SaveTable(parent, table.title, [&] { return table; });
}

void SaveTable(QWidget* parent, const QString& title, const std::function<Table()>& make) {
  const QString path = AskTablePath(parent, title);
  if (path.isEmpty()) return;
  const bool done = Guarded(parent, [&] {
    const Table table = make();
    const BusyCursor busy;
    const bool csv = path.endsWith(u".csv"_s, Qt::CaseInsensitive);
    if (!csv && !FitsWorkbook(table)) {
      throw std::runtime_error(
          "Строк больше, чем вмещает лист таблицы (1048576). Сохраните как CSV.");
    }
    WriteOutside(path, csv ? TableAsCsv(table) : WorkbookOf(table));
  });
  if (!done) return;
  if (Home().settings != nullptr) {
    Guarded(parent, [&] {
      Home().settings->Write(settings::kTableFolder, QFileInfo(path).absolutePath());
    });
  }
  FieldNote::Show(parent, u"Сохранено: "_s + QDir::toNativeSeparators(path),
                  FieldNote::Stays::kForAMoment);
}

}  // namespace kladez
