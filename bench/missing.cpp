// Missing cells estimated, labels counted, rows drawn at random.

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "definitions/nearest_neighbours.h"
#include "kavoratb1c/checks/qualitative.h"
#include "kavoratb1c/missing/estimates.h"
#include "kavoratb1c/missing/nearest_neighbours.h"
#include "kavoratb1c/sampling/indicators.h"
#include "kavoratb1c/sampling/samples.h"
#include "kavoratb1c/stats/frequencies.h"
#include "kavoratb1c/tables/categories.h"
#include "plain_forms.h"
#include "ratios.h"
#include "support/random.h"

using namespace kav;

namespace {

constexpr int kMany = 1000000;

using Totals = std::map<std::u16string, double>;

/// One cell in twenty is missing.
bool isGap(Random& random) { return random.below(20) == 0; }

/// Random numbers with gaps. Estimates fill the gaps; open() makes them anew.
struct Numbers {
  Numbers(int rows, int columns)
      : n(rows), p(columns), table(n, p), gaps(new bool[static_cast<std::size_t>(cells())]) {
    Random random(385);
    for (std::ptrdiff_t k = 0; k < cells(); ++k) {
      table.values[k] = random.uniform(-4.0, 4.0);
      gaps[static_cast<std::size_t>(k)] = isGap(random);
    }
    open();
  }

  std::ptrdiff_t cells() const { return std::ptrdiff_t{n} * p; }

  /// What a flagged cell holds does not matter.
  void open() { std::copy_n(gaps.get(), cells(), table.missing); }

  int n, p;
  matrix table;
  std::unique_ptr<bool[]> gaps;
};

/// Labels of `kinds` different kinds, each as often as the others, in random order and with gaps. Whoever
/// fills the gaps opens them again.
struct Labels {
  Labels(int rows, int columns, int kinds) : n(rows), p(columns), table(n, p) {
    Random random(239);
    std::vector<int> kindOf(static_cast<std::size_t>(n * p));
    for (std::size_t k = 0; k < kindOf.size(); ++k) kindOf[k] = static_cast<int>(k) % kinds;
    for (std::size_t left = kindOf.size(); left > 1; --left) {
      std::swap(kindOf[left - 1], kindOf[static_cast<std::size_t>(random.below(static_cast<int>(left)))]);
    }
    for (int k = 0; k < n * p; ++k) {
      if (isGap(random)) {
        gaps.push_back(k);
      } else {
        table.cells[k] = textOf(kindOf[static_cast<std::size_t>(k)]);
      }
    }
  }

  static std::u16string textOf(int kind) {
    const std::string digits = std::to_string(kind);
    return u"label " + std::u16string(digits.begin(), digits.end());
  }

  void open() {
    for (int k : gaps) table.cells[k].clear();
  }

  int n, p;
  Smatrix table;
  std::vector<int> gaps;
};

void nearestByLibrary(Numbers& numbers, Labels* labels) {
  numbers.open();
  EstimateRowsWithMissingNN(&numbers.table, numbers.n, numbers.p, nullptr, nullptr, 0,
                            labels ? &labels->table : nullptr, labels ? labels->p : 0, nullptr);
  if (labels) labels->open();
}

void nearestByPlainSearch(Numbers& numbers, Labels* labels) {
  numbers.open();
  const int n = numbers.n, p = numbers.p, labelColumns = labels ? labels->p : 0;
  double* const cells = numbers.table.values;
  bool* const missing = numbers.table.missing;
  std::u16string* const texts = labels ? labels->table.cells : nullptr;
  const auto at = [n](int i, int j) { return i + std::ptrdiff_t{n} * j; };
  const auto isMissing = [=](int i, int j) {
    return j < p ? missing[at(i, j)] : texts[at(i, j - p)].empty();
  };
  std::vector<int> rows;
  std::vector<double> ranges;
  for (int i = 0; i < n; ++i) rows.push_back(i);
  for (int j = 0; j < p; ++j) {
    ranges.push_back(
        definitions::range(rows, [&](int i) { return isMissing(i, j) ? std::nan("") : cells[at(i, j)]; }));
  }
  definitions::fillFromNearest(
      n, p + labelColumns, rows, isMissing, [&](int i, int j) { return !isMissing(i, j); },
      [&](int i, int k, int j) {
        if (isMissing(i, j) || isMissing(k, j)) return 1.0;
        if (j >= p) return texts[at(i, j - p)] == texts[at(k, j - p)] ? 0.0 : 1.0;
        return definitions::difference(cells[at(i, j)], cells[at(k, j)], ranges[static_cast<std::size_t>(j)]);
      },
      [&](int i, int k, int j) {
        if (j < p) {
          cells[at(i, j)] = cells[at(k, j)];
          missing[at(i, j)] = false;
        } else {
          texts[at(i, j - p)] = texts[at(k, j - p)];
        }
      });
  if (labels) labels->open();
}

void enterNearest() {
  constexpr int kColumns = 20, kMostByPlainSearch = 10000, kMixed = 5000;
  const std::string plainSearch = "plain search, every distance to its end";
  std::vector<std::shared_ptr<Numbers>> tables;
  for (int n : {500, 1000, 2000, 5000, 10000, 20000}) {
    tables.push_back(std::make_shared<Numbers>(n, kColumns));
  }
  openTable("Missing cells");
  for (const auto& numbers : tables) {
    const std::string work = "EstimateRowsWithMissingNN of " + withThousands(numbers->n) + " x 20";
    contest(work, "library", [numbers] { nearestByLibrary(*numbers, nullptr); });
    if (numbers->n > kMostByPlainSearch) continue;
    contest(work, plainSearch, [numbers] { nearestByPlainSearch(*numbers, nullptr); });
  }
  const auto numbers = std::make_shared<Numbers>(kMixed, kColumns / 2);
  const auto labels = std::make_shared<Labels>(kMixed, kColumns / 2, 5);
  const std::string mixed = "EstimateRowsWithMissingNN of 5,000 x 20, half of them labels";
  contest(mixed, "library", [=] { nearestByLibrary(*numbers, labels.get()); });
  contest(mixed, plainSearch, [=] { nearestByPlainSearch(*numbers, labels.get()); });

  openTable("Growth of nearest neighbours");
  for (const auto& table : tables) {
    contest(
        "EstimateRowsWithMissingNN by n^2 of " + withThousands(table->n) + " rows", "library",
        [table] { nearestByLibrary(*table, nullptr); }, 1.0 * table->n * table->n);
  }
}

void enterMeans(const std::shared_ptr<matrix>& ones) {
  openTable("Missing cells");
  const auto numbers = std::make_shared<Numbers>(kMany, 10);
  const std::string work = "EstimateRowsWithMissingMean of 1,000,000 x 10";
  contest(work, "library", [=] {
    numbers->open();
    EstimateRowsWithMissingMean(&numbers->table, numbers->n, numbers->p, nullptr, ones.get());
  });
  const auto copy = std::make_shared<matrix>(numbers->n, numbers->p);
  contest(work, "a copy of the table", [=] {
    std::copy_n(numbers->table.values, numbers->cells(), copy->values);
    std::copy_n(numbers->gaps.get(), numbers->cells(), copy->missing);
  });
  contest(work, "plain loops", [=] {
    numbers->open();
    plain::fillWithMeans(numbers->table.values, numbers->table.missing, ones->values, numbers->n, numbers->p);
  });
}

/// The weight of each label that is not empty.
Totals totalsByMap(const Labels& labels, const matrix& weights) {
  Totals totals;
  for (int i = 0; i < labels.n; ++i) {
    if (!labels.table.cells[i].empty()) totals[labels.table.cells[i]] += weights.values[i];
  }
  return totals;
}

/// @param totals  at least one
Totals::const_iterator modeOf(const Totals& totals) {
  return std::max_element(totals.begin(), totals.end(),
                          [](const auto& a, const auto& b) { return a.second < b.second; });
}

/// What M_InfoQuali finds, used again by the next call.
struct Info {
  ~Info() {
    for (const Smatrix* m : {modes, categories}) delete m;
    for (const matrix* m : {modeFrequencies, counts, frequencies}) delete m;
  }

  void byLibrary(const Labels& labels, int n, const matrix& weights) {
    M_InfoQuali(&labels.table, n, labels.p, modes, modeFrequencies, &total, counts, categories, frequencies,
                nullptr, &weights, kTrue);
  }

  Smatrix *modes = nullptr, *categories = nullptr;
  matrix *modeFrequencies = nullptr, *counts = nullptr, *frequencies = nullptr;
  int total = 0;
};

/// The same by a map.
struct InfoByMap {
  void find(const Labels& labels, const matrix& weights) {
    const Totals totals = totalsByMap(labels, weights);
    mode = modeOf(totals)->first;
    modeFrequency = modeOf(totals)->second;
    categories.clear();
    frequencies.clear();
    for (const auto& [text, frequency] : totals) {
      categories.push_back(text);
      frequencies.push_back(frequency);
    }
  }

  std::u16string mode;
  double modeFrequency = 0.0;
  std::vector<std::u16string> categories;
  std::vector<double> frequencies;
};

void enterCounts(const std::shared_ptr<Labels>& labels, const std::string& size,
                 const std::shared_ptr<matrix>& ones) {
  const std::string byMap = "std::map";
  contest("V_Mode" + size, "library",
          [=] { benchmark::DoNotOptimize(V_Mode(&labels->table, labels->n, nullptr, ones.get())); });
  contest("V_Mode" + size, byMap, [=] {
    const std::u16string mode = modeOf(totalsByMap(*labels, *ones))->first;
    benchmark::DoNotOptimize(mode.data());
  });

  const auto info = std::make_shared<Info>();
  const auto infoByMap = std::make_shared<InfoByMap>();
  contest("M_InfoQuali, sorted," + size, "library", [=] { info->byLibrary(*labels, labels->n, *ones); });
  contest("M_InfoQuali, sorted," + size, byMap, [=] { infoByMap->find(*labels, *ones); });

  contest("EstimateRowsWithMissingMode" + size, "library", [=] {
    EstimateRowsWithMissingMode(&labels->table, labels->n, labels->p, nullptr, ones.get());
    labels->open();
  });
  contest("EstimateRowsWithMissingMode" + size, byMap, [=] {
    const Totals totals = totalsByMap(*labels, *ones);
    const std::u16string& mode = modeOf(totals)->first;
    for (int i = 0; i < labels->n; ++i) {
      if (labels->table.cells[i].empty()) labels->table.cells[i] = mode;
    }
    labels->open();
  });

  contest("V_NbDistinct" + size, "library",
          [=] { benchmark::DoNotOptimize(V_NbDistinct(&labels->table, labels->n)); });
  contest("V_NbDistinct" + size, byMap, [=] {
    // The empty label counts too.
    Totals seen;
    for (int i = 0; i < labels->n; ++i) seen[labels->table.cells[i]] = 1.0;
    benchmark::DoNotOptimize(seen.size());
  });
}

void enterIndicators(const std::shared_ptr<Labels>& labels, const std::string& size, int kinds) {
  const auto categories = std::make_shared<Smatrix>(kinds, 1);
  for (int k = 0; k < kinds; ++k) categories->cells[k] = Labels::textOf(k);
  const auto table = std::make_shared<matrix>(labels->n, kinds);
  contest("BuildDisjunctiveTable" + size, "library", [=] {
    const int counts[] = {kinds};
    matrix* c = table.get();
    BuildDisjunctiveTable(&labels->table, labels->n, 1, counts, categories.get(), kinds, c, 0, 0);
  });
  contest("BuildDisjunctiveTable" + size, "std::map", [=] {
    Totals columns;
    for (int k = 0; k < kinds; ++k) columns[categories->cells[k]] = k;
    std::fill_n(table->values, std::ptrdiff_t{labels->n} * kinds, 0.0);
    for (int i = 0; i < labels->n; ++i) {
      const auto found = columns.find(labels->table.cells[i]);
      if (found == columns.end()) continue;
      table->values[i + std::ptrdiff_t{labels->n} * static_cast<int>(found->second)] = 1.0;
    }
  });
}

/// Time by n, for the first rows of the labels.
void enterGrowth(const std::shared_ptr<Labels>& labels, const std::string& kinds,
                 const std::shared_ptr<matrix>& ones) {
  for (int n = 10000; n <= labels->n; n *= 10) {
    const auto info = std::make_shared<Info>();
    contest(
        "M_InfoQuali, " + kinds + ", by n of " + withThousands(n) + " rows", "library",
        [=] { info->byLibrary(*labels, n, *ones); }, n);
  }
}

/// Rows drawn, used again by the next call.
struct Sample {
  explicit Sample(int n) : rows(n, 1), positions(n, 1) {}

  Smatrix rows;
  matrix positions;
};

void enterSamples(const std::shared_ptr<Labels>& labels) {
  constexpr int kSeed = 2385;
  const std::string byMersenneTwister = "std::mt19937_64, std::uniform_int_distribution";
  const auto sample = std::make_shared<Sample>(labels->n);
  const std::string work = "M_SamplingWithReplacement of 1,000,000 labels";
  contest(work, "library", [=] {
    Smatrix* rows = &sample->rows;
    matrix* positions = &sample->positions;
    int seed = kSeed, next = 0;
    M_SamplingWithReplacement(&labels->table, labels->n, 1, labels->n, rows, positions, &seed, kTrue, &next);
  });
  contest(work, byMersenneTwister, [=] {
    std::mt19937_64 random(kSeed);
    std::uniform_int_distribution<int> below(0, labels->n - 1);
    for (int k = 0; k < labels->n; ++k) {
      const int row = below(random);
      sample->positions.values[k] = row + 1.0;
      sample->rows.cells[k] = labels->table.cells[row];
    }
  });

  const std::string indicator = "GenerateRandomIndicator of 1,000,000, half of them ones";
  contest(indicator, "library", [=] {
    matrix* x = &sample->positions;
    int seed = kSeed, next = 0;
    GenerateRandomIndicator(x, kMany, kMany / 2, &seed, kTrue, &next);
  });
  contest(indicator, byMersenneTwister, [=] {
    std::mt19937_64 random(kSeed);
    int wanted = kMany / 2;
    for (int i = 0; i < kMany; ++i) {
      const bool taken = std::uniform_int_distribution<int>(0, kMany - i - 1)(random) < wanted;
      sample->positions.values[i] = taken ? 1.0 : 0.0;
      wanted -= taken ? 1 : 0;
    }
  });
}

}  // namespace

void enterMissing() {
  const auto ones = std::make_shared<matrix>(kMany, 1, 1.0);
  enterNearest();
  enterMeans(ones);

  const auto few = std::make_shared<Labels>(kMany, 1, 10);
  const auto some = std::make_shared<Labels>(kMany, 1, 1000);
  const auto many = std::make_shared<Labels>(kMany, 1, kMany / 2);
  const std::string size = " of 1,000,000 labels, ";
  openTable("Labels");
  enterCounts(few, size + "10 kinds", ones);
  enterCounts(some, size + "1,000 kinds", ones);
  enterCounts(many, size + "500,000 kinds", ones);
  enterIndicators(few, size + "10 kinds", 10);
  openTable("Growth of categories");
  enterGrowth(some, "1,000 kinds", ones);
  enterGrowth(many, "500,000 kinds", ones);
  openTable("Random samples");
  enterSamples(some);
}
