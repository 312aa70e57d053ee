#include "screens/directories/PartyBrowser.h"

#include "screens/directories/PartyForm.h"
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
      directory_(context.data, context.session, kind) {
  SetRows(ColumnsOf(kind),
          {.count = [this] { return static_cast<int>(directory_.Rows().size()); },
           .text = [this](int row, int column) { return directory_.Rows()[row][column]; },
           .is_group = {},
           .checked = {},
           .set_checked = {}});
  resize(look::ByLetters(this, 100, 55));
}

void PartyBrowser::Add() {
  PartyForm form(directory_.Kind(), {}, this);
  if (form.exec() != QDialog::Accepted) return;
  directory_.Add(form.Record());
  ShowAnew(static_cast<int>(directory_.Rows().size()) - 1);
}

void PartyBrowser::Change(int row) {
  PartyForm form(directory_.Kind(), directory_.Rows()[row], this);
  if (form.exec() != QDialog::Accepted) return;
  directory_.Change(row, form.Record());
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
