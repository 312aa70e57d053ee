// The power goes away at any instant of any writing command, and the program starts on whatever the
// disk kept: the old state or the new one, whole; the new one once the command has ended. Small
// here; `tools/power-cuts` takes more changes freely and prints the table.

#include <cstdio>
#include <fstream>

#include "PowerCuts.h"
#include "WritingCommands.h"
#include "books/store/Backup.h"
#include "books/store/SaveSet.h"

namespace kladez {
namespace {

namespace fs = std::filesystem;

DiskTree WithoutUnfinished(DiskTree tree) {
  std::erase_if(tree, [](const auto& entry) {
    return entry.first.find(" (не закончена)") != std::string::npos;
  });
  return tree;
}

DiskTree TreeOf(const fs::path& root) {
  DiskTree tree;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string name = fs::relative(entry.path(), root).string();
    if (entry.is_directory()) {
      tree[name + "/"] = {};
      continue;
    }
    std::ifstream in(entry.path(), std::ios::binary);
    tree[name] = std::string(std::istreambuf_iterator<char>(in), {});
  }
  return tree;
}

// What the program makes of a disk as it starts.
DiskTree Started(const DiskTree& left, const fs::path& root) {
  fs::remove_all(root);
  fs::create_directories(root);
  for (const auto& [path, bytes] : left) {
    if (path.ends_with('/')) {
      fs::create_directories(root / path);
    } else {
      std::ofstream(root / path, std::ios::binary) << bytes;
    }
  }
  const DataDir data(QString::fromStdString((root / "data").string()));
  SaveSet::Recover(data);
  RemoveUnfinishedRestore(data);
  return WithoutUnfinished(TreeOf(root));
}

TEST(PowerCuts, EveryCommandIsAllOrNothing) {
  const char* wanted = std::getenv("KLADEZ_POWER_CUTS");
  constexpr int kSome = 40;
  const QTemporaryDir place;
  const fs::path root = fs::path(place.path().toStdString()) / "disk";
  int states = 0, losses = 0;
  std::printf("%8s %8s   %s\n", "states", "losses", "command");
  for (const WritingCommand& command : WritingCommands()) {
    FaultBooks books(command.beside);
    const auto run = command.prepare(books);
    const DiskTree before = WithoutUnfinished(books.Tree());
    PowerCuts cuts(books.Root());
    cuts.Record(run);
    const DiskTree after = WithoutUnfinished(books.Tree());
    int tried = 0, lost = 0;
    const auto try_one = [&](const PowerCuts::State& state) {
      ++tried;
      DiskTree tree;
      std::string error;
      try {
        tree = Started(state.tree, root);
      } catch (const std::exception& failure) {
        error = failure.what();
      }
      if (error.empty() && (tree == after || (!state.ended && tree == before))) return;
      if (++lost > 3) return;
      std::string names = error;
      for (const auto& [path, bytes] : state.tree) names += "\n  " + path;
      ADD_FAILURE() << command.name << (state.ended ? ", after its end:" : ":") << names;
    };
    if (wanted != nullptr) {
      cuts.ForEachState(std::stoul(wanted), try_one);
    } else {
      cuts.ForSomeStates(kSome, try_one);
    }
    EXPECT_GE(tried, 3) << command.name;
    std::printf("%8d %8d   %s\n", tried, lost, command.name.c_str());
    states += tried;
    losses += lost;
  }
  std::printf("%8d %8d   in all, %zu commands\n", states, losses, WritingCommands().size());
}

// What the first save has left unsynced, its list of changes too, may come back during the second.
TEST(PowerCuts, ASaveRightAfterAnotherIsAllOrNothingToo) {
  using namespace Qt::StringLiterals;
  using Gather = void (*)(SaveSet & save);
  const Gather first = [](SaveSet& save) {
    save.Write(u"a"_s, "first");
    save.Write(u"b"_s, "first");
  };
  const Gather seconds[] = {
      [](SaveSet& save) { save.Write(u"a"_s, "second"); },
      [](SaveSet& save) { save.Write(u"a"_s, "before"); },
      [](SaveSet& save) { save.Delete(u"b"_s); },
      [](SaveSet& save) {
        save.Write(u"a"_s, "before");
        save.Write(u"b"_s, "second");
      },
      [](SaveSet& save) {
        save.Write(u"b"_s, "before");
        save.Write(u"c"_s, "second");
        save.Delete(u"a"_s);
      },
  };
  const QTemporaryDir place;
  const fs::path root = fs::path(place.path().toStdString()) / "first";
  int tried = 0;
  for (const Gather second : seconds) {
    Started({{"data/", ""}, {"data/a", "before"}, {"data/b", "before"}}, root);
    const DataDir data(QString::fromStdString((root / "data").string()));
    const auto commit = [&](Gather gather) {
      SaveSet save(data);
      gather(save);
      save.Commit();
    };
    PowerCuts cuts(root);
    cuts.Record([&] { commit(first); });
    const DiskTree middle = TreeOf(root);
    cuts.Record([&] { commit(second); });
    const DiskTree after = TreeOf(root);
    cuts.ForEachState(2, [&](const PowerCuts::State& state) {
      const DiskTree tree = Started(state.tree, fs::path(place.path().toStdString()) / "left");
      EXPECT_TRUE(tree == after || (!state.ended && tree == middle))
          << "state " << tried << (state.ended ? ", after the end" : "");
      ++tried;
    });
  }
  EXPECT_GT(tried, 100);
}

}  // namespace
}  // namespace kladez
