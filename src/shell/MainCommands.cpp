#include "shell/MainCommands.h"

#include <array>
#include <cstddef>

#include "formats/InOrder.h"
#include "screens/store/BackupWizard.h"
#include "screens/store/CheckDialog.h"
#include "screens/store/RestoreWizard.h"
#include "shell/AboutDialog.h"
#include "ui/Help.h"

namespace kladez {
namespace {

using enum Command;

template <typename Dialog>
void Run(AppContext& context, QWidget* parent) {
  Dialog(context, parent).exec();
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
