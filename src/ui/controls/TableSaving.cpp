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

struct ChosenFile {
  QString path;  // empty when the person thinks better of it
  QString ending;
};

ChosenFile AskPath(QWidget* parent, const QString& caption, const QString& title,
                   const std::vector<FileType>& types) {
  const Clock machine;
  const QDate today = (Home().clock == nullptr ? machine : *Home().clock).Today();
  QFileDialog dialog(parent, caption, FolderToPropose());
  dialog.setObjectName(u"save_table"_s);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  for (const FileType& type : types) filters << type.filter;
  dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(types.front().ending);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(types[static_cast<size_t>(filters.indexOf(filter))].ending);
  });
  dialog.selectFile(TableFileName(title, today.toString(u"yyyy-MM-dd"_s)));
  if (dialog.exec() != QDialog::Accepted) return {};
  const QString path = dialog.selectedFiles().value(0);
  const QString ending = path.section(u'.', -1).toLower();
  for (const FileType& type : types) {
    if (ending == type.ending) return {path, ending};
  }
  return {path + u'.' + types.front().ending, types.front().ending};
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
  static const std::vector<FileType> kTypes = {{u"Таблица (*.xlsx)"_s, u"xlsx"_s},
                                               {u"Текст CSV (*.csv)"_s, u"csv"_s}};
  SaveOutside(parent, u"Сохранить как таблицу"_s, title, kTypes, [&](const QString& ending) {
    const Table table = make();
    const bool csv = ending == u"csv";
    if (!csv && !FitsWorkbook(table)) {
      throw std::runtime_error(
          "Строк больше, чем вмещает лист таблицы (1048576). Сохраните как CSV.");
    }
    return csv ? TableAsCsv(table) : WorkbookOf(table);
  });
}

void SaveOutside(QWidget* parent, const QString& caption, const QString& title,
                 const std::vector<FileType>& types,
                 const std::function<QByteArray(const QString& ending)>& make) {
  const ChosenFile file = AskPath(parent, caption, title, types);
  if (file.path.isEmpty()) return;
  const bool done = Guarded(parent, [&] {
    const BusyCursor busy;
    WriteOutside(file.path, make(file.ending));
  });
  if (!done) return;
  if (Home().settings != nullptr) {
    Guarded(parent, [&] {
      Home().settings->Write(settings::kTableFolder, QFileInfo(file.path).absolutePath());
    });
  }
  FieldNote::Show(parent, u"Сохранено: "_s + QDir::toNativeSeparators(file.path),
                  FieldNote::Stays::kForAMoment);
}

}  // namespace kladez
