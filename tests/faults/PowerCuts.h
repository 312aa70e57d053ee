// A model of a disk that loses its power: from the changes that a command made, every state that a
// journalling file system may leave. What was synced is there; of the rest,
//   ordered: the changes of directories up to some point, in their order;
//   unordered: any of them, a rename being one;
// and in both the bytes of a file that were not synced are there, missing, zero or torn.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "system/SystemCalls.h"

namespace kladez {

// Relative path to bytes; directories end in "/".
using DiskTree = std::map<std::string, std::string>;

class PowerCuts {
 public:
  // `root` as it is now, all of it synced.
  explicit PowerCuts(const std::filesystem::path& root);

  // Runs the command and records what it changes below the root.
  void Record(const std::function<void()>& command);

  // Every state, each once. `most` bounds how many changes are taken freely at one instant: of more
  // only those that lie close together are. The last instant is that after the command's end.
  struct State {
    DiskTree tree;
    bool ended;
  };
  using Visit = std::function<void(const State&)>;
  void ForEachState(size_t most, const Visit& visit) const;
  // So many of them, by chance, but the same each time.
  void ForSomeStates(int count, const Visit& visit) const;

 private:
  struct Node {
    bool directory = false;
    std::map<std::string, int> entries;
  };
  struct Change {
    int from_directory = -1;  // a rename's
    std::string from_name;
    int directory = -1;
    std::string name;
    int child = -1;  // -1: the name goes
  };
  struct Instant {
    size_t changes;           // of directories, so far
    std::set<size_t> synced;  // of these, for unordered
    size_t journalled;        // of these, for ordered
    std::map<int, std::string> data, durable;
  };
  using Nodes = std::vector<Node>;

  int Find(const QByteArray& path, int* parent, std::string* name) const;
  void Take(const syscalls::Made& made);
  void Apply(const Change& change, Nodes* nodes) const;
  void Sync(int directory);
  DiskTree TreeOf(const Nodes& nodes, const Instant& at, int tear) const;
  State StateOf(size_t instant, const std::set<size_t>& choice, int tear) const;
  std::vector<std::set<size_t>> Choices(const Instant& at, size_t most) const;

  std::string root_;
  Nodes first_, now_;
  std::vector<Change> changes_;
  Instant at_ = {};
  std::vector<Instant> instants_;
};

}  // namespace kladez
