#include "shell/MainCommands.h"

#include <array>
#include <cstddef>

#include "formats/InOrder.h"
#include "screens/store/BackupWizard.h"
#include "screens/store/CheckDialog.h"
#include "screens/store/RestoreWizard.h"
#include "shell/AboutDialog.h"
#include "ui/Help.h"
#include "ui/controls/ListTable.h"
#include "ui/controls/Messages.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using enum Command;

template <typename Dialog>
void Run(AppContext& context, QWidget* parent) {
  Dialog(context, parent).exec();
}

// The list of the child screen that is shown.
void SaveListInFront(AppContext&, QWidget* parent) {
  for (RecordList* list : parent->findChildren<RecordList*>()) {
    if (!list->isVisible() || list->window() != parent) continue;
    SaveListAsTable(list);
    return;
  }
  ShowMessage(parent, u"Сначала откройте список: наличие, документы, товары или прайс-лист."_s);
}

struct AsideRow {
  Command command;
  void (*run_aside)(AppContext& context, QWidget* parent);  // nullptr where it leaves the Database
};

constexpr auto kAsides = std::to_array<AsideRow>({
    {kCreate, nullptr},
    {kOpen, nullptr},
    {kCatalogue, nullptr},
    {kImport, nullptr},
    {kBackup, &Run<BackupWizard>},
    {kRestore, &Run<RestoreWizard>},
    {kClose, nullptr},
    {kExit, nullptr},
    {kCheck, &Run<CheckDialog>},
    {kUndo, nullptr},
    {kTimeMachine, nullptr},
    {kLoadTable, nullptr},
    {kSaveTable, &SaveListInFront},
    {kHelp, [](AppContext& context, QWidget* parent) { OpenHelpFile(parent, context.data); }},
    {kProductPage, [](AppContext&, QWidget* parent) { OpenAddress(parent, kProductAddress); }},
    {kNewsPage, [](AppContext&, QWidget* parent) { OpenAddress(parent, kNewsAddress); }},
    {kAbout, [](AppContext&, QWidget* parent) { AboutDialog(parent).exec(); }},
});
static_assert(IsInOrder(kAsides, &AsideRow::command));

auto RunnerOf(Command command) { return kAsides[static_cast<size_t>(command)].run_aside; }

}  // namespace

bool LeavesDatabase(Command command) { return RunnerOf(command) == nullptr; }

void RunAside(Command command, AppContext& context, QWidget* parent) {
  RunnerOf(command)(context, parent);
}

}  // namespace kladez
