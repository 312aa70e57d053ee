#include "faults/PowerCuts.h"

#include <fstream>
#include <random>
#include <sstream>

namespace kladez {
namespace {

namespace fs = std::filesystem;

// How the bytes of a file that were not synced are found.
enum Tear { kThere, kMissing, kZero, kTorn, kTears };

std::string Torn(const std::string& data, const std::string& durable, int tear) {
  if (data == durable || tear == kThere) return data;
  if (tear == kMissing) return durable;
  if (tear == kZero) return durable + std::string(data.size() - durable.size(), '\0');
  return data.substr(0, durable.size() + (data.size() - durable.size()) / 2);
}

}  // namespace

PowerCuts::PowerCuts(const fs::path& root) : root_(root.string()), first_(1) {
  first_[0].directory = true;
  std::map<std::string, int> known = {{root_, 0}};
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const int node = static_cast<int>(first_.size());
    first_.push_back({entry.is_directory(), {}});
    known[entry.path().string()] = node;
    first_[known.at(entry.path().parent_path().string())]
        .entries[entry.path().filename().string()] = node;
    if (entry.is_directory()) continue;
    std::ostringstream bytes;
    bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    at_.data[node] = at_.durable[node] = bytes.str();
  }
  now_ = first_;
}

void PowerCuts::Record(const std::function<void()>& command) {
  instants_ = {at_};
  syscalls::SetRecorder([this](const syscalls::Made& made) {
    Take(made);
    instants_.push_back(at_);
  });
  command();
  syscalls::SetRecorder({});
}

// The node of a path, -1 for none, and where its name lies.
int PowerCuts::Find(const QByteArray& path, int* parent, std::string* name) const {
  *parent = -1;
  if (path.toStdString() == root_) return 0;
  int node = 0;
  std::istringstream parts(path.toStdString().substr(root_.size() + 1));
  for (std::string part; std::getline(parts, part, '/');) {
    if (node < 0) return -1;
    *parent = node;
    *name = part;
    const auto found = now_[node].entries.find(part);
    node = found == now_[node].entries.end() ? -1 : found->second;
  }
  return node;
}

void PowerCuts::Apply(const Change& change, Nodes* nodes) const {
  if (change.from_directory >= 0) {
    auto& source = (*nodes)[change.from_directory].entries;
    const auto found = source.find(change.from_name);
    if (found != source.end() && found->second == change.child) source.erase(found);
  }
  auto& entries = (*nodes)[change.directory].entries;
  if (change.child < 0) {
    entries.erase(change.name);
  } else {
    entries[change.name] = change.child;
  }
}

// A directory's sync keeps its own changes; in an ordered journal all that were made before.
void PowerCuts::Sync(int directory) {
  for (size_t i = 0; i < changes_.size(); ++i) {
    if (changes_[i].directory == directory || changes_[i].from_directory == directory) {
      at_.synced.insert(i);
    }
  }
}

void PowerCuts::Take(const syscalls::Made& made) {
  if (!made.path.startsWith(root_.c_str())) return;
  Change change;
  const int node = Find(made.path, &change.directory, &change.name);
  if (made.call == "write") {
    if (node >= 0 && !now_[node].directory)
      at_.data[node].append(made.bytes.data(), made.bytes.size());
    return;
  }
  if (made.call == "fsync" || made.call == "syncfs") {
    at_.journalled = changes_.size();
    if (made.call == "syncfs") {
      at_.durable = at_.data;
      for (size_t i = 0; i < changes_.size(); ++i) at_.synced.insert(i);
    } else if (now_[node].directory) {
      Sync(node);
    } else {
      at_.durable[node] = at_.data[node];
    }
    return;
  }
  if (made.call == "create" || made.call == "mkdir") {
    change.child = static_cast<int>(now_.size());
    now_.push_back({made.call == "mkdir", {}});
    first_.push_back({made.call == "mkdir", {}});
    if (made.call == "create") at_.data[change.child] = at_.durable[change.child] = {};
  } else if (made.call == "rename") {
    change.child = Find(made.from, &change.from_directory, &change.from_name);
  } else if (made.call == "link") {
    int directory = 0;
    std::string name;
    change.child = Find(made.from, &directory, &name);
  }
  Apply(change, &now_);
  changes_.push_back(change);
  at_.changes = changes_.size();
}

DiskTree PowerCuts::TreeOf(const Nodes& nodes, const Instant& at, int tear) const {
  DiskTree tree;
  const std::function<void(int, const std::string&)> walk = [&](int node, const std::string& path) {
    for (const auto& [name, child] : nodes[node].entries) {
      if (nodes[child].directory) {
        tree[path + name + "/"] = {};
        walk(child, path + name + "/");
      } else {
        tree[path + name] = Torn(at.data.at(child), at.durable.at(child), tear);
      }
    }
  };
  walk(0, {});
  return tree;
}

// Which of the changes that no sync has kept are there.
std::vector<std::set<size_t>> PowerCuts::Choices(const Instant& at, size_t most) const {
  std::vector<std::set<size_t>> choices;
  for (size_t end = at.journalled; end <= at.changes; ++end) {
    std::set<size_t>& ordered = choices.emplace_back();
    for (size_t i = 0; i < end; ++i) ordered.insert(i);
  }
  std::vector<size_t> open;
  for (size_t i = 0; i < at.changes; ++i) {
    if (!at.synced.contains(i)) open.push_back(i);
  }
  // Older ones are there and younger ones are not, where there are too many to take each freely;
  // the window of free ones goes over all.
  const size_t free = std::min(open.size(), most);
  for (size_t first = 0; first + free <= open.size(); ++first) {
    for (const bool older : {true, false}) {
      for (size_t bits = 0; bits < size_t{1} << free; ++bits) {
        std::set<size_t> choice = at.synced;
        for (size_t i = 0; i < open.size(); ++i) {
          const bool inside = i >= first && i < first + free;
          if (inside ? bits >> (i - first) & 1 : (i < first) == older) choice.insert(open[i]);
        }
        choices.push_back(std::move(choice));
      }
      if (open.size() == free) break;
    }
  }
  return choices;
}

PowerCuts::State PowerCuts::StateOf(size_t instant, const std::set<size_t>& choice,
                                    int tear) const {
  Nodes nodes = first_;
  for (const size_t i : choice) Apply(changes_[i], &nodes);
  return {TreeOf(nodes, instants_[instant], tear), instant + 1 == instants_.size()};
}

void PowerCuts::ForEachState(size_t most, const Visit& visit) const {
  std::set<DiskTree> seen, seen_at_end;
  for (size_t instant = 0; instant < instants_.size(); ++instant) {
    for (const std::set<size_t>& choice : Choices(instants_[instant], most)) {
      for (int tear = kThere; tear < kTears; ++tear) {
        const State state = StateOf(instant, choice, tear);
        if ((state.ended ? seen_at_end : seen).insert(state.tree).second) visit(state);
      }
    }
  }
}

void PowerCuts::ForSomeStates(int count, const Visit& visit) const {
  std::mt19937 chance(1);
  const auto below = [&](size_t end) { return chance() % end; };
  for (int i = 0; i < count; ++i) {
    // Each tenth after the command's end.
    const size_t instant = i % 10 == 0 ? instants_.size() - 1 : below(instants_.size());
    const Instant& at = instants_[instant];
    std::set<size_t> choice;
    const bool ordered = below(4) == 0;
    const size_t end = at.journalled + below(at.changes - at.journalled + 1);
    const size_t rarely = 1 + below(8);
    for (size_t change = 0; change < at.changes; ++change) {
      const bool taken = ordered ? change < end : at.synced.contains(change) || below(rarely) == 0;
      if (taken) choice.insert(change);
    }
    visit(StateOf(instant, choice, static_cast<int>(below(kTears))));
  }
}

}  // namespace kladez
