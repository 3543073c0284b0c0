#include "ratios.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace {

struct Contestant {
  std::string name;
  double pieces;
  double median = 0.0;  ///< seconds for doing one piece of the work; 0.0 was not run
};

struct Work {
  std::string name, table;
  std::vector<Contestant> contestants;
};

std::vector<Work>& works() {
  static std::vector<Work> all;
  return all;
}

std::string& opened() {
  static std::string table;
  return table;
}

Work& workOf(const std::string& name) {
  for (Work& work : works()) {
    if (work.name == name) return work;
  }
  works().push_back({name, name.rfind("VB_", 0) == 0 ? "Entries" : opened(), {}});
  return works().back();
}

/// Names of benchmarks, as filters see them.
std::string keyOf(const Work& work, const Contestant& contestant) {
  std::string key = work.name;
  return key.append(": ").append(contestant.name);
}

std::string readable(double seconds) {
  char text[32];
  if (seconds < 1e-9) {
    std::snprintf(text, sizeof text, "%.1f ps", seconds * 1e12);
  } else if (seconds < 1e-6) {
    std::snprintf(text, sizeof text, "%.1f ns", seconds * 1e9);
  } else if (seconds < 1e-3) {
    std::snprintf(text, sizeof text, "%.2f us", seconds * 1e6);
  } else {
    std::snprintf(text, sizeof text, "%.3f ms", seconds * 1e3);
  }
  return text;
}

/// One contestant's repetitions.
class Turns {
 public:
  explicit Turns(std::function<void()> once) : once_(std::move(once)) {}

  void operator()(benchmark::State& state) {
    if (longOnes_ == kMostLongOnes) {
      state.SkipWithError("measured often enough");
      return;
    }
    const auto start = std::chrono::steady_clock::now();
    for (auto _ : state) once_();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    if (taken.count() > static_cast<double>(state.iterations())) ++longOnes_;
  }

 private:
  static constexpr int kMostLongOnes = 3;

  std::function<void()> once_;
  int longOnes_ = 0;  ///< repetitions that took more than a second for doing the work once
};

/// Collects times; prints nothing while the benchmarks run.
class Medians : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
      times_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                   static_cast<double>(run.iterations));
    }
  }

  void store() {
    for (Work& work : works()) {
      for (Contestant& contestant : work.contestants) {
        const auto found = times_.find(keyOf(work, contestant));
        if (found != times_.end()) contestant.median = medianOf(found->second) / contestant.pieces;
      }
    }
  }

 private:
  static double medianOf(std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    return (times[times.size() / 2] + times[(times.size() - 1) / 2]) / 2.0;
  }

  std::map<std::string, std::vector<double>> times_;
};

/// The rows of one work; a filter may leave out some of its contestants.
void print(const Work& work) {
  const double own = work.contestants.front().median;
  bool named = false;
  for (const Contestant& contestant : work.contestants) {
    if (contestant.median == 0.0) continue;
    std::printf("| %s | %s | %s | ", named ? "" : work.name.c_str(), contestant.name.c_str(),
                readable(contestant.median).c_str());
    named = true;
    if (&contestant == &work.contestants.front() || own == 0.0) {
      std::printf("|\n");
    } else {
      std::printf("%.2f |\n", contestant.median / own);
    }
  }
}

bool wasRun(const Work& work) {
  return std::any_of(work.contestants.begin(), work.contestants.end(),
                     [](const Contestant& contestant) { return contestant.median != 0.0; });
}

void print() {
  std::vector<std::string> tables;
  for (const Work& work : works()) {
    if (wasRun(work) && std::find(tables.begin(), tables.end(), work.table) == tables.end()) {
      tables.push_back(work.table);
    }
  }
  for (const std::string& table : tables) {
    std::printf("\n## %s\n\n", table.c_str());
    std::printf("| work | contestant | median | ratio to the library |\n|---|---|---|---|\n");
    for (const Work& work : works()) {
      if (work.table == table) print(work);
    }
  }
}

}  // namespace

void openTable(const std::string& name) { opened() = name; }

void contest(const std::string& work, const std::string& contestant, std::function<void()> once,
             double pieces) {
  Work& entered = workOf(work);
  entered.contestants.push_back({contestant, pieces});
  benchmark::RegisterBenchmark(keyOf(entered, entered.contestants.back()).c_str(), Turns(std::move(once)));
}

std::string withThousands(int n) {
  std::string text = std::to_string(n);
  for (std::size_t place = text.size(); place > 3; place -= 3) text.insert(place - 3, 1, ',');
  return text;
}

int runContests(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  char repetitions[] = "--benchmark_repetitions=15";
  char interleaved[] = "--benchmark_enable_random_interleaving=true";
  char minimum[] = "--benchmark_min_time=0.02";
  // Before the caller's own, so that those win.
  for (char* option : {minimum, interleaved, repetitions}) arguments.insert(arguments.begin() + 1, option);
  auto count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  medians.store();
  print();
  return 0;
}
