#include "screens/stock/documents/JournalPrinting.h"

#include "books/printing/JournalPage.h"
#include "screens/stock/documents/RegisterFilterPanel.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kFile = u"journal.htm"_s;

Journal JournalOf(const DocumentScreens& screens, const RegisterFilterPanel& filter) {
  Journal journal{.title = screens.register_caption,
                  .warehouse = filter.Warehouse(),
                  .chosen = filter.Filter(),
                  .sought = filter.SearchField()->text().trimmed(),
                  .columns = {}};
  int twips = 0;
  for (const HeadColumn& head : screens.register_columns) twips += head.column.twips;
  for (const auto& [column, field] : screens.register_columns) {
    if (field == nullptr) continue;
    journal.columns.push_back(
        {column.title, field, column.twips * 100 / twips, column.number, column.total});
  }
  return journal;
}

}  // namespace

void PrintJournal(AppContext& context, const DocumentScreens& screens,
                  const RegisterFilterPanel& filter, const RegisterView& rows, QWidget* parent) {
  if (rows.Count() == 0) return;
  Guarded(parent, [&] {
    LongWork work(parent, u"Печатается журнал..."_s);
    const Progress progress = work.Told();
    context.print_outs.WriteInPieces(kFile, [&](const ByteSink& sink) {
      WriteJournal(rows, JournalOf(screens, filter), context.clock.Today(), sink, progress);
    });
    context.print_outs.OpenPrintOut(kFile);
  });
}

}  // namespace kladez
