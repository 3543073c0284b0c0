#include "ratios.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace {

struct Contestant {
  std::string name;
  double median = 0.0;  ///< seconds for doing the work once
};

struct Work {
  std::string name;
  std::vector<Contestant> contestants;
};

std::vector<Work>& works() {
  static std::vector<Work> all;
  return all;
}

Work& workOf(const std::string& name) {
  for (Work& work : works()) {
    if (work.name == name) return work;
  }
  works().push_back({name, {}});
  return works().back();
}

/// Names of benchmarks, as filters see them.
std::string keyOf(const Work& work, const Contestant& contestant) {
  std::string key = work.name;
  return key.append(": ").append(contestant.name);
}

std::string readable(double seconds) {
  char text[32];
  if (seconds < 1e-6) {
    std::snprintf(text, sizeof text, "%.1f ns", seconds * 1e9);
  } else if (seconds < 1e-3) {
    std::snprintf(text, sizeof text, "%.2f us", seconds * 1e6);
  } else {
    std::snprintf(text, sizeof text, "%.3f ms", seconds * 1e3);
  }
  return text;
}

/// Collects medians; prints nothing while the benchmarks run.
class Medians : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") {
        medians_[run.run_name.function_name] =
            run.real_accumulated_time / static_cast<double>(run.iterations);
      }
    }
  }

  void store() const {
    for (Work& work : works()) {
      for (Contestant& contestant : work.contestants) {
        const auto found = medians_.find(keyOf(work, contestant));
        if (found != medians_.end()) contestant.median = found->second;
      }
    }
  }

 private:
  std::map<std::string, double> medians_;
};

void print() {
  std::printf("| work | contestant | median | ratio to the library |\n|---|---|---|---|\n");
  for (const Work& work : works()) {
    const double own = work.contestants.front().median;
    if (own == 0.0) continue;  // filtered out
    for (const Contestant& contestant : work.contestants) {
      const bool first = &contestant == &work.contestants.front();
      std::printf("| %s | %s | %s | ", first ? work.name.c_str() : "", contestant.name.c_str(),
                  readable(contestant.median).c_str());
      if (first) {
        std::printf("|\n");
      } else {
        std::printf("%.2f |\n", contestant.median / own);
      }
    }
  }
}

}  // namespace

void contest(const std::string& work, const std::string& contestant, std::function<void()> once) {
  Work& entered = workOf(work);
  entered.contestants.push_back({contestant});
  benchmark::RegisterBenchmark(keyOf(entered, entered.contestants.back()).c_str(),
                               [once = std::move(once)](benchmark::State& state) {
                                 for (auto _ : state) once();
                               });
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
