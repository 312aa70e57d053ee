// The program is killed at every step of saving, and at every step of the recovery from that: the
// data directory holds the whole command or nothing of it afterwards, and nothing extra.
#include <cerrno>

#include "DiesAtStep.h"
#include "SaveScenarios.h"
#include "books/store/Errors.h"

namespace kladez {
namespace {

class SaveCrash : public testing::TestWithParam<SaveScenario> {};

TEST_P(SaveCrash, LeavesAllOrNothing) {
  const SaveStates states = StatesOf(GetParam());
  ASSERT_NE(states.before, states.after);
  bool died = true;
  bool done = false;
  int step = 0;
  while (died) {
    TempData temp;
    GetParam().prepare(temp);
    died = DiesAtStep(++step, [&] { CommitScenario(GetParam(), temp); });
    SaveSet::Recover(temp.Data());
    const Tree tree = temp.Tree();
    if (done || tree != states.before) {
      EXPECT_EQ(tree, states.after) << "killed at step " << step;
      done = true;  // later steps must not lead back
    }
  }
  EXPECT_TRUE(done);
  EXPECT_GE(step, 3) << "too few steps are watched";
}

TEST_P(SaveCrash, MayStrikeTheRecoveryToo) {
  const SaveStates states = StatesOf(GetParam());
  for (int step = 1; step <= states.steps; ++step) {
    bool recovery_died = true;
    for (int again = 1; recovery_died; again += states.Stride()) {
      TempData temp;
      GetParam().prepare(temp);
      {
        // A disk on which nothing changes any more is left as a killed program leaves it.
        FailingDisk disk([&](int at) { return at >= step ? EIO : 0; });
        IgnoreErrors([&] { CommitScenario(GetParam(), temp); });
      }
      recovery_died = DiesAtStep(again, [&] { SaveSet::Recover(temp.Data()); });
      SaveSet::Recover(temp.Data());
      const Tree tree = temp.Tree();
      EXPECT_TRUE(tree == states.before || tree == states.after)
          << "killed at step " << step << ", in the recovery at step " << again;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, SaveCrash, testing::ValuesIn(SaveScenarios()), NameOf);

}  // namespace
}  // namespace kladez
