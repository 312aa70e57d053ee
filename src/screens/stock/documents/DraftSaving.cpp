#include "screens/stock/documents/DraftSaving.h"

#include <QWidget>
#include <cerrno>

#include "books/stock/DocumentDraft.h"
#include "books/stock/DocumentNumbers.h"
#include "ui/controls/Guard.h"
#include "ui/controls/Messages.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

// Whether to save again: under a free name, or over the other document.
bool AskForFreeFile(DocumentDraft& draft, QWidget* asker) {
  return Guarded(asker, [&] {
    const QString free = draft.FreeFile();
    const Answer answer = AskYesNoCancel(
        asker,
        u"Накладная %1 уже есть. Сохранить под номером файла %2?\n\n«Нет» — записать поверх неё."_s
            .arg(FileNumberText(draft.File()), FileNumberText(free)),
        kAttention.toString());
    if (answer == Answer::kCancel) throw WorkCancelled();
    if (answer == Answer::kYes) draft.SaveAs(free);
    if (answer == Answer::kNo) draft.SaveOverExisting();
  });
}

// Whether it was saved; the outcomes that have a word to say are told.
bool IsSaved(DraftOutcome outcome, QWidget* asker) {
  if (outcome == DraftOutcome::kSameWarehouse) ShowInformation(asker, u"Выбирите разные склады"_s);
  return outcome == DraftOutcome::kSaved;
}

}  // namespace

bool SaveDraft(DocumentDraft& draft, QWidget* asker) {
  DraftOutcome outcome = DraftOutcome::kNoLines;
  bool stale = false;
  const bool good = Guarded(asker, [&] {
    try {
      outcome = draft.Save();
    } catch (const StaleFile& error) {
      if (draft.IsNew() && error.code().value() == EEXIST) {
        outcome = DraftOutcome::kFileExists;  // it came between the look and the save
        return;
      }
      stale = AskYesNo(asker, ErrorText(error) + u"\n\nПрочитать файл заново и сохранить?"_s,
                       kAttention.toString());
      if (!stale) throw WorkCancelled();
      draft.TakeFilesAnew();
    }
  });
  if (!good) return false;
  if (stale) return SaveDraft(draft, asker);
  if (outcome == DraftOutcome::kFileExists && AskForFreeFile(draft, asker)) {
    return SaveDraft(draft, asker);
  }
  return IsSaved(outcome, asker);
}

bool EnterDraftAnew(DocumentDraft& draft, QWidget* asker) {
  const QString question =
      u"Документ будет удалён с возвратом остатков и занесён заново с этими строками под новым "
      u"номером файла. Продолжить?"_s;
  if (!AskYesNo(asker, question, asker->windowTitle(), DefaultAnswer::kNo)) return false;
  DraftOutcome outcome = DraftOutcome::kNoLines;
  return Guarded(asker, [&] { outcome = draft.EnterAnew(); }) && IsSaved(outcome, asker);
}

}  // namespace kladez
