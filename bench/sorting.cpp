// Sorts, quantiles and ranks.

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <numeric>
#include <vector>

#include "kavoratb1c/sort/sorts.h"
#include "kavoratb1c/stats/frequencies.h"
#include "kavoratb1c/stats/quantiles.h"
#include "kavoratb1c/stats/ranks.h"
#include "ratios.h"
#include "support/random.h"

namespace {

constexpr int kColumns = 5;

std::vector<double> randomNumbers(int n) {
  Random random(20);
  std::vector<double> x(static_cast<std::size_t>(n));
  for (double& cell : x) cell = random.uniform(-1e3, 1e3);
  return x;
}

/// A table with its keys.
struct Keyed {
  explicit Keyed(std::vector<double> keyCells)
      : n(static_cast<int>(keyCells.size())),
        keys(new matrix(n, 1, keyCells.data(), true, 0, 0)),
        data(new matrix(n, kColumns)),
        companion(nullptr) {
    std::iota(data->values, data->values + std::ptrdiff_t{n} * kColumns, 0.5);
  }
  Keyed(const Keyed&) = delete;
  ~Keyed() {
    delete keys;
    delete data;
  }

  int n;
  matrix* keys;
  matrix* data;
  matrix* companion;
};

void sortByLibrary(Keyed& table) {
  SortQ(table.data, table.n, kColumns, 1, table.n, table.keys, table.companion, 0, 0, 0);
}

/// Rows moved cell by cell through the accessors, in the order that next() gives.
template <class Next>
void moveRows(Keyed& table, Next next) {
  const matrix before(table.n, table.data);
  for (int k = 0; k < table.n; ++k) {
    const int row = next();
    for (int j = 0; j < kColumns; ++j) {
      table.data->setMissing(k, j, before.getMissing(row, j));
      if (!before.getMissing(row, j)) table.data->setElement(k, j, before.getElement(row, j));
    }
  }
}

/// The definition of the order.
void sortByMultimap(Keyed& table) {
  std::multimap<double, int> entries;
  for (int i = 0; i < table.n; ++i) entries.emplace(table.keys->values[i], i);
  moveRows(table, [entry = entries.begin()]() mutable { return (entry++)->second; });
}

void sortByStableSort(Keyed& table) {
  std::vector<int> rows(static_cast<std::size_t>(table.n));
  std::iota(rows.begin(), rows.end(), 0);
  const double* keys = table.keys->values;
  std::stable_sort(rows.begin(), rows.end(), [keys](int a, int b) { return keys[a] < keys[b]; });
  moveRows(table, [row = rows.begin()]() mutable { return *row++; });
}

void enterRowSorts(const std::string& work, std::vector<double> keys) {
  const auto table = std::make_shared<Keyed>(std::move(keys));
  contest(work, "library", [table] { sortByLibrary(*table); });
  contest(work, "ordered multimap and accessors", [table] { sortByMultimap(*table); });
  contest(work, "std::stable_sort of row numbers and accessors", [table] { sortByStableSort(*table); });
}

void enterVectorSorts(const std::string& work, int n) {
  struct Data {
    std::vector<double> x, sorted;
  };
  const auto data = std::make_shared<Data>();
  data->x = randomNumbers(n);
  contest(work, "library", [data, n] {
    data->sorted = data->x;
    SortQVector(data->sorted.data(), n, 1, n, 0);
  });
  contest(work, "std::stable_sort", [data] {
    data->sorted = data->x;
    std::stable_sort(data->sorted.begin(), data->sorted.end());
  });
  contest(work, "std::sort", [data] {
    data->sorted = data->x;
    std::sort(data->sorted.begin(), data->sorted.end());
  });
}

void enterQuantiles(const std::string& work, int n) {
  const std::vector<double> cells = randomNumbers(n);
  const auto x = std::make_shared<matrix>(n, 1, cells.data(), true, 0, 0);
  contest(work, "library", [x, n] { benchmark::DoNotOptimize(V_Quantile(x.get(), n, 0.3)); });
  contest(work, "a copy sorted by std::stable_sort", [x, n] {
    std::vector<double> copy(x->values, x->values + n);
    std::stable_sort(copy.begin(), copy.end());
    benchmark::DoNotOptimize(copy[static_cast<std::size_t>((n - 1) * 0.3)]);
  });
  contest(work, "std::nth_element on a copy", [x, n] {
    std::vector<double> copy(x->values, x->values + n);
    std::nth_element(copy.begin(), copy.begin() + static_cast<int>((n - 1) * 0.3), copy.end());
    benchmark::DoNotOptimize(copy[static_cast<std::size_t>((n - 1) * 0.3)]);
  });
}

std::string rowsText(int n) { return withThousands(n) + " rows"; }

/// How cost grows with the number of rows.
void enterCurves(int largest, int largestText) {
  struct Data {
    std::unique_ptr<matrix> x, ones;
    std::unique_ptr<Smatrix> labels;
  };
  const auto data = std::make_shared<Data>();
  const std::vector<double> cells = randomNumbers(largest);
  data->x = std::make_unique<matrix>(largest, 1, cells.data(), true, 0, 0);
  for (int i = 0; i < largest; ++i) data->x->values[i] = std::round(data->x->values[i] * 1000.0);
  data->ones = std::make_unique<matrix>(largest, 1, 1.0);
  data->labels = std::make_unique<Smatrix>(largestText, 1);
  for (int i = 0; i < largestText; ++i) {
    // As many different labels as a tenth of the rows.
    const std::string digits =
        std::to_string(std::abs(static_cast<int>(data->x->values[i])) % (largestText / 10));
    data->labels->cells[i] = u"label " + std::u16string(digits.begin(), digits.end());
  }
  openTable("Growth of ranks");
  for (int n = 1000; n <= largest; n *= 10) {
    contest("V_GetRanks of " + rowsText(n), "library", [data, n] {
      matrix* ranks = nullptr;
      V_GetRanks(data->x.get(), n, ranks);
      delete ranks;
    });
    contest("V_GetRanksTies of " + rowsText(n), "library", [data, n] {
      matrix *ranks = nullptr, *sizes = nullptr;
      int ties = 0;
      V_GetRanksTies(data->x.get(), n, data->ones.get(), ranks, &ties, sizes);
      delete ranks;
      delete sizes;
    });
    contest("V_NbDistinct of " + rowsText(n), "library",
            [data, n] { benchmark::DoNotOptimize(V_NbDistinct(data->x.get(), n)); });
  }
  openTable("Growth of texts");
  for (int n = 1000; n <= largestText; n *= 10) {
    contest("V_FreqStr of " + rowsText(n), "library", [data, n] {
      benchmark::DoNotOptimize(V_FreqStr(data->labels.get(), n, data->ones.get(), u"label 77"));
    });
    contest("V_Mode of " + rowsText(n), "library", [data, n] {
      benchmark::DoNotOptimize(V_Mode(data->labels.get(), n, nullptr, data->ones.get()));
    });
  }
}

}  // namespace

void enterSorting() {
  constexpr int kMany = 1000000;
  openTable("Sorts and quantiles");
  enterRowSorts("SortQ of 10 random rows, 5 columns", randomNumbers(10));
  enterRowSorts("SortQ of 1,000 random rows, 5 columns", randomNumbers(1000));
  enterRowSorts("SortQ of 1,000,000 random rows, 5 columns", randomNumbers(kMany));
  std::vector<double> keys = randomNumbers(kMany);
  for (double& key : keys) key = std::round(key / 20.0);
  enterRowSorts("SortQ of 1,000,000 rows of 101 keys, 5 columns", keys);
  keys = randomNumbers(kMany);
  std::sort(keys.begin(), keys.end());
  enterRowSorts("SortQ of 1,000,000 sorted rows, 5 columns", keys);
  enterVectorSorts("SortQVector of 10 doubles", 10);
  enterVectorSorts("SortQVector of 1,000 doubles", 1000);
  enterVectorSorts("SortQVector of 1,000,000 doubles", kMany);
  enterQuantiles("V_Quantile of 10 rows", 10);
  enterQuantiles("V_Quantile of 1,000 rows", 1000);
  enterQuantiles("V_Quantile of 1,000,000 rows", kMany);
  // A 32-bit process has no room for ten million strings beside the rest.
  enterCurves(10000000, sizeof(void*) == 4 ? 1000000 : 10000000);
}
