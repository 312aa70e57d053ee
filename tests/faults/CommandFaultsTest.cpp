// Each writing command meets every fault at every step at which it changes the disk: no room, no
// right, a file that vanished, a disk that turns read-only, and the death of the process. What lies
// on the disk after the next start is the old state or the new one, whole, and a command that did
// not come to its end has said so. Prints how many faults each command met, and the losses.
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

#include "DiesAtStep.h"
#include "WritingCommands.h"
#include "books/store/Errors.h"

namespace kladez {
namespace {

using Tree = FileTree;

struct Fault {
  const char* name;
  int error;           // 0: the process dies
  bool stays = false;  // from that step on, not only at it
};

constexpr Fault kFaults[] = {{"no room", ENOSPC},
                             {"no right", EACCES},
                             {"file vanished", ENOENT},
                             {"disk turned read-only", EROFS, true},
                             {"killed", 0}};

// A backup that grows has a name that nobody takes for a good one; a killed process leaves it.
Tree WithoutUnfinishedBackups(Tree tree) {
  std::erase_if(tree, [](const auto& entry) {
    return entry.first.find(" (не закончена)") != std::string::npos;
  });
  return tree;
}

struct Outcome {
  bool reached = false;  // the step came up
  bool told = false;     // the command failed with words for the user
  bool goes_on = false;  // and they say that the next start ends it
};

// Runs the command while the hook decides which of its changes fail.
bool IsToldToFail(const std::function<void()>& command, syscalls::FaultHook hook,
                  bool* goes_on = nullptr) {
  bool told = false;
  syscalls::SetFaultHook(std::move(hook));
  try {
    command();
  } catch (const std::system_error& error) {
    const QString text = ErrorText(error);
    told = text.contains(QLatin1Char('/'));
    if (goes_on != nullptr) *goes_on = text.contains(u"её закончит"_s);
  }
  syscalls::SetFaultHook({});
  return told;
}

Outcome Run(const std::function<void()>& command, const Fault& fault, int step) {
  if (fault.error == 0) return {.reached = DiesAtStep(step, command)};
  int calls = 0;
  Outcome outcome;
  outcome.told = IsToldToFail(
      command,
      [&](auto, auto&) {
        ++calls;
        return calls == step || (calls > step && fault.stays) ? fault.error : 0;
      },
      &outcome.goes_on);
  outcome.reached = calls >= step;
  return outcome;
}

struct States {
  Tree before;
  Tree after;
};

States StatesOf(const WritingCommand& command) {
  FaultBooks books(command.beside);
  const auto run = command.prepare(books);
  States states{books.Tree(), {}};
  run();
  states.after = books.Tree();
  return states;
}

struct Count {
  int tried = 0;
  int losses = 0;
};

void Try(const WritingCommand& command, const States& states, const Fault& fault, Count* count) {
  for (int step = 1;; ++step) {
    FaultBooks books(command.beside);
    const auto run = command.prepare(books);
    const Outcome outcome = Run(run, fault, step);
    if (!outcome.reached) return;
    ++count->tried;
    books.Reopen();
    const Tree tree = WithoutUnfinishedBackups(books.Tree());
    const bool is_new = tree == states.after;
    const bool is_old = tree == states.before;
    // A failure that was told has changed nothing, what was not told has been done. On a disk that
    // stays read-only nothing can be taken back either: the words say what the next start does.
    const bool either = fault.error == 0 || command.silent;
    const bool done = !outcome.told || outcome.goes_on;
    const bool right = either ? is_old || is_new : done ? is_new : is_old;
    if (right) continue;
    ++count->losses;
    ADD_FAILURE() << command.name << ", " << fault.name << " at step " << step
                  << (outcome.told ? ", told" : ", not told") << (is_old ? ", old" : "")
                  << (is_new ? ", new" : "");
  }
}

TEST(CommandFaults, NoCommandLosesAnythingWhateverTheDiskDoes) {
  std::printf("%8s %8s   %s\n", "faults", "losses", "command");
  Count all;
  for (const WritingCommand& command : WritingCommands()) {
    const States states = StatesOf(command);
    ASSERT_NE(states.before, states.after) << command.name << " writes nothing";
    Count count;
    for (const Fault& fault : kFaults) Try(command, states, fault, &count);
    EXPECT_GE(count.tried, 10) << command.name << ": too few steps are watched";
    std::printf("%8d %8d   %s\n", count.tried, count.losses, command.name.c_str());
    all.tried += count.tried;
    all.losses += count.losses;
  }
  std::printf("%8d %8d   in all\n", all.tried, all.losses);
}

// Somebody adds a line to a file between the reading and the writing of a command: it is in the
// file afterwards. Only what is there to be replaced is, and a descriptor, which is read anew, has
// two lines.
TEST(CommandFaults, NoCommandWritesOverWhatSomebodyElseHasWrittenMeanwhile) {
  const std::string line = "a line of somebody else\r\n";
  int tried = 0;
  for (const WritingCommand& command : WritingCommands()) {
    if (command.source == "books/store/Import.cpp" ||
        command.source.find("printing") != command.source.npos)
      continue;
    const States states = StatesOf(command);
    for (const auto& [path, bytes] : states.before) {
      const auto after = states.after.find(path);
      const bool replaced = after != states.after.end() && after->second != bytes;
      if (!replaced || path.ends_with("temp.prc") || path.ends_with(".us")) continue;
      FaultBooks books(command.beside);
      const auto run = command.prepare(books);
      {
        QFile file(QString::fromStdString((books.Root() / path).string()));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(line.c_str());
      }
      const Tree before = books.Tree();
      const bool told = IsToldToFail(run, {});
      const Tree tree = books.Tree();
      EXPECT_NE(tree.at(path).find(line), std::string::npos) << command.name << ", " << path;
      if (told) {
        EXPECT_EQ(tree, before) << command.name << ", " << path;
      }
      ++tried;
    }
  }
  EXPECT_GE(tried, 20);
}

// Directories and files that really have no right to be written, one after the other.
TEST(CommandFaults, AReadOnlyPlaceIsToldAndNothingChanges) {
  int refusals = 0;
  for (const WritingCommand& command : WritingCommands()) {
    const States states = StatesOf(command);
    for (const auto& [path, bytes] : states.before) {
      if (path.find("/PRICE/000") != std::string::npos && !path.ends_with("2.prc"))
        continue;  // alike
      FaultBooks books(command.beside);
      const auto run = command.prepare(books);
      const std::string place = (books.Root() / path).string();
      const mode_t mode = path.ends_with('/') ? 0755 : 0644;
      ::chmod(place.c_str(), mode & 0555);
      const bool told = IsToldToFail(run, {});
      ::chmod(place.c_str(), mode);
      refusals += told ? 1 : 0;
      books.Reopen();
      const Tree tree = books.Tree();
      if (told) {
        EXPECT_EQ(tree, states.before) << command.name << ", " << path;
      } else if (!command.silent && command.source != "books/store/Import.cpp") {
        EXPECT_EQ(tree, states.after) << command.name << ", " << path;
      }
    }
  }
  EXPECT_GE(refusals, static_cast<int>(WritingCommands().size()));
}

}  // namespace
}  // namespace kladez
