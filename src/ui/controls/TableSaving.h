// "Сохранить как таблицу…": asks where, proposes a name, and writes the table as XLSX or CSV, as
// the end of the file's name says.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

#include "formats/tables/Table.h"

class QWidget;

namespace kladez {

class Clock;
class SettingsStore;

// Where the folder that was chosen last is kept, and whose today stands in the proposed name; both
// outlive their use. Without them the folder of documents is proposed each time.
void KeepTableFolder(SettingsStore* settings, const Clock* clock);

// What went wrong is told; a note below `parent` says where the file lies.
void SaveTable(QWidget* parent, const Table& table);
// The same of a table that is made only after the place was chosen, as the rows of years are.
void SaveTable(QWidget* parent, const QString& title, const std::function<Table()>& make);

// A kind of file to choose from: "Таблица (*.xlsx)" and its ending, "xlsx".
struct FileType {
  QString filter;
  QString ending;
};

// Asks where, as one of the types (the first is proposed, under `title` and the day), and writes
// there what `make` gives for the ending; the rest as with a table.
void SaveOutside(QWidget* parent, const QString& caption, const QString& title,
                 const std::vector<FileType>& types,
                 const std::function<QByteArray(const QString& ending)>& make);

// "Остатки на складе 2026-11-23": what no system refuses as a file's name.
QString TableFileName(const QString& title, const QString& day);

}  // namespace kladez
