// The disk fails at every step of saving: nothing has changed, and the error names what failed.
#include <cerrno>
#include <filesystem>

#include "SaveScenarios.h"
#include "books/store/Errors.h"

namespace kladez {
namespace {

// The error of a scenario's commit on a failing disk, 0 for none; it must name a path of the data
// directory.
int CommitError(const SaveScenario& scenario, const TempData& temp) {
  try {
    CommitScenario(scenario, temp);
    return 0;
  } catch (const std::filesystem::filesystem_error& error) {
    EXPECT_TRUE(error.path1().string().starts_with(temp.Root().toStdString())) << error.path1();
    return error.code().value();
  }
}

class SaveFault : public testing::TestWithParam<SaveScenario> {};

TEST_P(SaveFault, OnceChangesNothingAndIsTold) {
  const SaveStates states = StatesOf(GetParam());
  for (const int number : {ENOSPC, EACCES, EIO, EROFS}) {
    bool failed = true;
    for (int step = 1; failed; ++step) {
      TempData temp;
      GetParam().prepare(temp);
      FailingDisk disk([&](int at) { return at == step ? number : 0; });
      const int error = CommitError(GetParam(), temp);
      failed = disk.Failed();
      // A fault in the cleaning-up is tried again, and the command has succeeded all the same.
      if (error == 0) {
        EXPECT_EQ(temp.Tree(), states.after) << "step " << step;
      } else {
        EXPECT_EQ(error, number) << "step " << step;
        EXPECT_EQ(temp.Tree(), states.before) << "step " << step;
      }
    }
  }
}

// The disk goes away at some step and comes back later.
TEST_P(SaveFault, ForGoodIsHealedByTheNextRecovery) {
  const SaveStates states = StatesOf(GetParam());
  bool failed = true;
  for (int step = 1; failed; ++step) {
    TempData temp;
    GetParam().prepare(temp);
    {
      FailingDisk disk([&](int at) { return at >= step ? EROFS : 0; });
      CommitError(GetParam(), temp);
      failed = disk.Failed();
    }
    SaveSet::Recover(temp.Data());
    const Tree tree = temp.Tree();
    EXPECT_TRUE(tree == states.before || tree == states.after) << "step " << step;
  }
}

// The second fault is that of one call alone, or the disk does not come back.
TEST_P(SaveFault, InTheTakeBackIsHealedByTheNextRecovery) {
  const SaveStates states = StatesOf(GetParam());
  for (int step = 1, failed = 1; failed; ++step) {
    int failed_again = 1;
    for (int again = step + 1; failed && failed_again; again += states.Stride()) {
      for (const bool once : {true, false}) {
        TempData temp;
        GetParam().prepare(temp);
        int error = 0;
        {
          FailingDisk disk(
              [&](int at) { return at == step || at == again || (at > again && !once) ? EIO : 0; });
          error = CommitError(GetParam(), temp);
          failed = disk.Failed();
          failed_again = disk.Steps() >= again;
        }
        SaveSet::Recover(temp.Data());
        const Tree tree = temp.Tree();
        // What a single fault stops on the way back is gone on with.
        const bool may_be_done = !once || error == 0;
        EXPECT_TRUE(tree == states.before || (may_be_done && tree == states.after))
            << "steps " << step << " and " << again << (once ? " alone" : "");
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, SaveFault, testing::ValuesIn(SaveScenarios()), NameOf);

}  // namespace
}  // namespace kladez
