#include "cli/Commands.h"

#include "books/store/Errors.h"
#include "books/store/Notes.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct CommandRow {
  QStringView name;
  ExitCode (*run)(Words& words, QTextStream& out);
  QStringView usage;
};

constexpr CommandRow kCommands[] = {
    {u"check", RunCheck, u"[--stock] [--data КАТАЛОГ | КАТАЛОГ]"},
    {u"import", RunImport,
     u"[--data КАТАЛОГ] [--base БАЗА] [--group ГРУППА] [--prices СКЛАД/ПРАЙС] [--known]\n"
     u"                     [--columns \"Наименование=1,Цена закупа=4\"] [--try] ФАЙЛ"},
    {u"list", RunList,
     u"[--data КАТАЛОГ] [--base БАЗА] [--warehouse СКЛАД] [--list ПРАЙС]\n"
     u"                   [--from ДД.ММ.ГГГГ] [--to ДД.ММ.ГГГГ] [--json] [--out ФАЙЛ] СПИСОК"},
    {u"password", RunPassword, u"< ФАЙЛ_С_ПАРОЛЕМ"},
};

void TellUsage(QTextStream& errors) {
  for (const CommandRow& row : kCommands) {
    errors << u"kladez-books "_s << row.name << u' ' << row.usage << u'\n';
  }
}

}  // namespace

ExitCode RunCommand(const QStringList& words, QTextStream& out, QTextStream& errors) {
  for (const CommandRow& row : kCommands) {
    if (words.value(0) != row.name) continue;
    Words rest(words.mid(1));
    ExitCode code = ExitCode::kNotDone;
    try {
      code = row.run(rest, out);
    } catch (const WrongWords& wrong) {
      errors << wrong.what() << u"\nkladez-books "_s << row.name << u' ' << row.usage << u'\n';
    } catch (const std::exception& error) {
      errors << ErrorText(error) << u'\n';
    }
    for (const QString& note : TakeNotes()) errors << note << u'\n';
    return code;
  }
  TellUsage(errors);
  return ExitCode::kNotDone;
}

}  // namespace kladez
