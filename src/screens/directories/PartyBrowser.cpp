#include "screens/directories/PartyBrowser.h"

#include "books/prices/PriceStore.h"
#include "screens/directories/PartyTexts.h"
#include "ui/controls/Look.h"
#include "ui/controls/Messages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::vector<Column> ColumnsOf(PartyKind kind) {
  std::vector<Column> columns;
  for (const PartyField field : FieldsOf(kind)) {
    const PartyCaption& caption = CaptionOf(field);
    columns.push_back({.title = caption.column.toString(), .twips = caption.twips});
  }
  return columns;
}

}  // namespace

PartyBrowser::PartyBrowser(AppContext& context, PartyKind kind, QWidget* parent)
    : DirectoryDialog(ScreensOf(kind).list.toString(), ScreensOf(kind).list_title.toString(),
                      Ending::kOkAndCancel, parent),
      context_(context),
      directory_(context.data, context.session, kind) {
  SetRows(ColumnsOf(kind),
          {.count = [this] { return static_cast<int>(directory_.Rows().size()); },
           .text = [this](int row, int column) { return directory_.Rows()[row][column]; },
           .is_group = {},
           .checked = {},
           .set_checked = {}});
  resize(look::ByLetters(this, 100, 55));
  if (kind == PartyKind::kClient && directory_.TermsAreDamaged()) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          ShowInformation(this,
                          u"Файл с условиями клиентов повреждён: прайс-листы и скидки из него не "
                          u"показаны. При следующей записи он будет создан заново."_s);
        },
        Qt::QueuedConnection);
  }
}

// The lists of all warehouses: which of them goods leave is not known before a shipment.
std::optional<TermsEntry> PartyBrowser::EntryOf(const ClientTerms& terms) const {
  if (directory_.Kind() != PartyKind::kClient) return std::nullopt;
  TermsEntry entry{terms, {}};
  const PriceStore store(context_.data, context_.session);
  for (const QString& warehouse : context_.session.warehouses) {
    entry.price_lists += store.Names(warehouse);
  }
  entry.price_lists.removeDuplicates();
  return entry;
}

void PartyBrowser::Add() {
  PartyForm form(directory_.Kind(), {}, this, EntryOf({}));
  if (form.exec() != QDialog::Accepted) return;
  directory_.Add(form.Record(), form.Terms());
  ShowAnew(static_cast<int>(directory_.Rows().size()) - 1);
}

void PartyBrowser::Change(int row) {
  PartyForm form(directory_.Kind(), directory_.Rows()[row], this, EntryOf(directory_.Terms(row)));
  if (form.exec() != QDialog::Accepted) return;
  directory_.Change(row, form.Record(), form.Terms());
  ShowAnew(row);
}

void PartyBrowser::Remove(int row) {
  const QString name = directory_.Rows()[row].value(0);
  if (!AskYesNo(this, u"Вы уверены?"_s, u"Удаление"_s, DefaultAnswer::kYes,
                u"Запись «%1» уйдёт из списка. Накладные, в которых она есть, не изменятся."_s.arg(
                    name))) {
    return;
  }
  directory_.Remove(row);
  ShowAnew(row);
}

void PartyBrowser::Save() { directory_.Save(); }

}  // namespace kladez
