// Prints, after the usual table, how each benchmark compares with its baseline of the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>

namespace kladez {

// Benchmarks are named "case/ours" and "case/baseline NAME". Both the time and every counter are
// told as ours divided by the baseline's, so that one is equal and less is better.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) Remember(run);
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    for (const auto& [name, figures] : ours_) {
      const auto baseline = baselines_.find(name);
      if (baseline == baselines_.end()) continue;
      GetOutputStream() << name << " against " << baseline->second.who << ':';
      for (const auto& [what, value] : figures.values) {
        GetOutputStream() << ' ' << what << ' ' << value / baseline->second.values.at(what);
      }
      GetOutputStream() << '\n';
    }
  }

 private:
  struct Figures {
    std::string who;
    std::map<std::string, double> values;
  };

  void Remember(const Run& run) {
    // Of repetitions, the middle one counts.
    if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median") return;
    const std::string name = run.run_name.function_name;
    const std::size_t slash = name.rfind('/');
    if (slash == std::string::npos) return;
    const std::string who = name.substr(slash + 1);
    // What waits for the disk is measured by the clock on the wall.
    const bool by_wall = !run.run_name.time_type.empty();
    const double time = by_wall ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    Figures figures{who, {{"time", time}}};
    for (const auto& [what, counter] : run.counters) figures.values[what] = counter.value;
    (who == "ours" ? ours_ : baselines_)[name.substr(0, slash)] = figures;
  }

  std::map<std::string, Figures> ours_;
  std::map<std::string, Figures> baselines_;
};

}  // namespace kladez
