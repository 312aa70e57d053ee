#include "SaveScenarios.h"

#include "books/store/Catalogue.h"
#include "system/SystemCalls.h"

namespace kladez {

namespace {

void PrepareDatabase(const TempData& temp) {
  temp.Put(u"0001.us"_s, "0001\\\r\nA\r\n");
  for (const QString& file : {u"склад.usd"_s, u"currency.usd"_s, u"marked"_s, u"SPR\\post.spr"_s,
                              u"Главный склад\\PRH\\0001.prh"_s, u"Главный склад\\PRH\\0002.prh"_s,
                              u"Главный склад\\товар.usl"_s}) {
    temp.Put(u"0001\\"_s + file, "A\r\n1\r\n-\r\n");
  }
}

// Syncing to a real disk takes most of the time, and the order of the calls is what is tested.
const bool in_memory = QFileInfo(u"/dev/shm"_s).isWritable() && qputenv("TMPDIR", "/dev/shm");

}  // namespace

const std::vector<SaveScenario>& SaveScenarios() {
  static const std::vector<SaveScenario> scenarios = {
      {"DocumentAndLedger", PrepareDatabase,
       [](SaveSet& save) {
         save.Write(u"0001\\Главный склад\\PRH\\0003.prh"_s, "3\r\n");
         save.Write(u"0001\\Главный склад\\товар.usl"_s, "A\r\n2\r\n-\r\n");
       }},
      {"NewDatabase", PrepareDatabase, [](SaveSet& save) { AddNewDatabase(save, 2, u"Второй"_s); }},
      {"DatabaseDeleted", PrepareDatabase,
       [](SaveSet& save) {
         save.DeleteTree(u"0001\\"_s);
         save.Delete(u"0001.us"_s);
       }},
      {"WarehouseRenamed", PrepareDatabase,
       [](SaveSet& save) {
         save.RenameDirectory(u"0001\\Главный склад"_s, u"0001\\Лавка"_s);
         save.Write(u"0001\\склад.usd"_s, "\xCB\r\n");
       }},
      {"DocumentDeletedWithReversal", PrepareDatabase,
       [](SaveSet& save) {
         save.Append(u"0001\\Главный склад\\товар.usl"_s, "A\r\n- 1\r\n-\r\n");
         save.Delete(u"0001\\Главный склад\\PRH\\0002.prh"_s);
       }},
      {"OneFileTwice", PrepareDatabase,
       [](SaveSet& save) {
         save.Write(u"0001\\marked"_s, "a\r\n");
         save.Delete(u"0001\\currency.usd"_s);
         save.Write(u"0001\\currency.usd"_s, "b\r\n");
         save.MakeDirectory(u"0001\\New"_s);
         save.Write(u"0001\\New\\x"_s, {});
         save.Write(u"0001\\New\\x"_s, "c\r\n");
       }},
      {"FileAlone", PrepareDatabase, [](SaveSet& save) { save.Write(u"0001\\marked"_s, "x\r\n"); }},
      {"NewFileAlone", PrepareDatabase, [](SaveSet& save) { save.Write(u"temp.prc"_s, "x\r\n"); }},
      {"DeletionAlone", PrepareDatabase, [](SaveSet& save) { save.Delete(u"0001\\marked"_s); }},
      {"TreeAlone", PrepareDatabase, [](SaveSet& save) { save.DeleteTree(u"0001"_s); }},
      {"DirectoryAlone", PrepareDatabase, [](SaveSet& save) { save.MakeDirectory(u"0002"_s); }},
      {"RenamingAlone", PrepareDatabase,
       [](SaveSet& save) { save.RenameDirectory(u"0001\\SPR"_s, u"0001\\spr"_s); }},
  };
  return scenarios;
}

SaveStates StatesOf(const SaveScenario& scenario) {
  TempData temp;
  scenario.prepare(temp);
  SaveStates states{temp.Tree(), {}, 0};
  FailingDisk disk([](int) { return 0; });
  CommitScenario(scenario, temp);
  states.after = temp.Tree();
  states.steps = disk.Steps();
  return states;
}

void CommitScenario(const SaveScenario& scenario, const TempData& temp) {
  SaveSet save(temp.Data());
  scenario.fill(save);
  save.Commit();
}

FailingDisk::FailingDisk(std::function<int(int step)> error_at) {
  syscalls::SetFaultHook([this, error_at = std::move(error_at)](auto, auto&) {
    const int error = error_at(++steps_);
    failed_ |= error != 0;
    return error;
  });
}

FailingDisk::~FailingDisk() { syscalls::SetFaultHook({}); }

}  // namespace kladez
