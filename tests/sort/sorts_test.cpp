#include "kavoratb1c/sort/sorts.h"

#include <algorithm>
#include <climits>
#include <map>
#include <memory>
#include <vector>

#include "core/contents.h"
#include "support/corpus.h"

using namespace kav;

namespace {

using Table = std::unique_ptr<matrix>;
using Cells = std::vector<double>;

/// Calls visit(random, keys, n, from, to, option) with keys of many kinds, for whole ranges and for parts,
/// also such that reach beyond the table.
template <class Visit>
void forKeys(std::uint64_t seed, Visit visit) {
  Random random(seed);
  for (int round = 0; round < 12 * 10 * 4 && !testing::Test::HasFailure(); ++round) {
    const int sizes[] = {0, 1, 2, 3, 10, 31, 32, 33, 399, 400, 401, 3000};
    const double pool[] = {kMissing, -HUGE_VAL, HUGE_VAL, -1e308, 5e-324, 2.385, -7.25, -0.0, 0.0};
    const int n = sizes[round % 12], kind = round / 12 % 10, range = round / 120;
    Cells keys;
    for (int i = 0; i < n; ++i) {
      // Keys that agree in their leading bits, in a long run or in runs of about 24.
      const double agreeing = 1.0 + random.below(4000) * 0x1p-52, few = pool[5 + random.below(4)];
      const double runs = agreeing + random.below(n / 24 + 1) * 0x1p-12, any = random.uniform(-1e3, 1e3);
      const double special = pool[random.below(9)], broken = random.below(10) == 0 ? std::nan("") : any;
      const double all[] = {any, few, 2.385, i * 0.37, i * -0.37, special, broken, agreeing, runs, -agreeing};
      keys.push_back(all[kind]);
    }
    const int begin = random.below(n + 5) - 2, end = begin + random.below(n + 2);
    const int from[] = {1, INT_MIN, begin, begin}, to[] = {n, INT_MAX, end, end - 1};
    const short options[] = {0, -1, -1, 1};
    SCOPED_TRACE(testing::Message() << "kind " << kind << ", n = " << n << ", range " << range);
    visit(random, keys, n, from[range], to[range], options[range]);
  }
}

Table tableOf(const Cells& cells, int columns = 1, bool keepMarkers = true) {
  const int rows = static_cast<int>(cells.size()) / columns;
  return std::make_unique<matrix>(rows, columns, cells.data(), keepMarkers, 0, 0);
}

Table copyOf(const matrix& m) {
  auto copy = std::make_unique<matrix>(m.nX, m.pX, m.values, true, 0, 0);
  std::copy_n(m.missing, addressing::cellCount(m), copy->missing);
  return copy;
}

/// Keys and 1-based rows: filled in forward and walked forward, or both backward.
std::vector<std::pair<double, int>> ordered(const matrix& keys, int from, int to, bool descending) {
  std::multimap<double, int> tree;
  for (int i = from; i <= to && !descending; ++i) tree.insert({keys.getElement(i - 1), i});
  for (int i = to; i >= from && descending; --i) tree.insert({keys.getElement(i - 1), i});
  if (descending) return {tree.rbegin(), tree.rend()};
  return {tree.begin(), tree.end()};
}

/// SortQ as it is defined, cell by cell through the accessors.
void sortByDefinition(matrix& data, int from, int to, matrix& keys, matrix& companion, bool descending,
                      bool writeKeysBack) {
  const Table source = copyOf(data), companionSource = copyOf(companion);
  int p = std::max(from, 1);
  for (const auto& [key, row] : ordered(keys, p, std::min(to, companion.nX), descending)) {
    if (writeKeysBack) keys.setElement(p - 1, key);
    for (int c = 0; c < data.pX; ++c) {
      data.setMissing(p - 1, c, source->getMissing(row - 1, c));
      if (!source->getMissing(row - 1, c)) data.setElement(p - 1, c, source->getElement(row - 1, c));
    }
    for (int c = 1; c <= companion.pX; ++c) companion.vbset(p, c, companionSource->vbget(row, c));
    ++p;
  }
}

/// Cells, those of the key column too, move as a companion's do.
void sortColumnByDefinition(matrix& table, int keyColumn, int from, int to, bool descending) {
  matrix none(0, 0), keys(table.nX, 1, table.values + std::ptrdiff_t{table.nX} * (keyColumn - 1), true, 0, 0);
  sortByDefinition(none, from, to, keys, table, descending, false);
}

void expectSame(const matrix& actual, const matrix& expected) {
  EXPECT_TRUE(bits::equal(cellsOf(actual), cellsOf(expected)));
  EXPECT_EQ(flagsOf(actual), flagsOf(expected));
}

bool precedes(double a, double b) { return a < b || (std::isnan(b) && !std::isnan(a)); }

template <class T, class Less>
std::vector<T> sortedByDefinition(std::vector<T> x, int from, int to, short descending, Less less) {
  const int n = static_cast<int>(x.size()), first = std::clamp(from - (from > 0), 0, n);
  const auto begin = x.begin() + first, end = x.begin() + std::clamp(to, first, n);
  std::stable_sort(begin, end, less);
  if (descending != 0) std::reverse(begin, end);
  return x;
}

}  // namespace

TEST(Sorts, RowsComeInTheOrderOfAMultimap) {
  forKeys(31, [](Random& random, const Cells& cells, int n, int from, int to, short option) {
    const bool keepMarkers = random.below(2) == 0, ownKeys = random.below(4) == 0;
    const short writeKeysBack = ownKeys ? short{0} : static_cast<short>(random.below(3) - 1);
    const Table data = tableOf(corpusCells(random.bits(), 2 * n), 2, keepMarkers);
    const Table companion = tableOf(corpusCells(random.bits(), 2 * n), 2, keepMarkers);
    const Table keys = tableOf(cells), labelKeys = tableOf(cells);
    if (n > 2) keys->missing[random.below(n)] = !keepMarkers;
    matrix none(0, 0), numbers(n, 1);
    Smatrix labels(n, 2), *strings = &labels;
    for (int k = 0; k < 2 * n; ++k) labels.cells[k] = static_cast<char16_t>(k + 1);
    for (int i = 0; i < n; ++i) numbers.values[i] = i + 1.0;
    const Table wanted = copyOf(*data), wantedCompanion = copyOf(*companion), wantedKeys = copyOf(*keys);
    sortByDefinition(*wanted, from, to, ownKeys ? *wanted : *wantedKeys, *wantedCompanion, option == -1,
                     writeKeysBack == -1);
    matrix *x = data.get(), *y = companion.get(), *key = ownKeys ? x : keys.get();
    EXPECT_EQ(SortQ(x, n, 2, from, to, key, y, 2, option, writeKeysBack), 0);
    expectSame(*data, *wanted);
    expectSame(*companion, *wantedCompanion);
    expectSame(*keys, *wantedKeys);
    // Strings go where the numbers of their rows go.
    const Table wantedNumbers = copyOf(numbers);
    sortByDefinition(none, from, to, *labelKeys, *wantedNumbers, option == -1, false);
    EXPECT_EQ(SortQ(strings, n, 2, from, to, labelKeys.get(), &numbers, 1, option, 0), 0);
    expectSame(numbers, *wantedNumbers);
    for (int k = 0; k < 2 * n; ++k) ASSERT_EQ(labels.cells[k][0], numbers.values[k % n] + k / n * n);
    const int keyColumn = 1 + random.below(2);
    std::copy(cells.begin(), cells.end(), x->values + std::ptrdiff_t{n} * (keyColumn - 1));
    const Table wantedTable = copyOf(*x);
    sortColumnByDefinition(*wantedTable, keyColumn, from, to, option == -1);
    EXPECT_EQ(SortQMatrixCol(x, n, 2, keyColumn, from, to, option), 0);
    expectSame(*x, *wantedTable);
  });
}

TEST(Sorts, CellsBeyondTheContainersReadMinusOne) {
  const Table data = tableOf({2.385, -4.5, 0.25, -0.5, 7.125}), keys = tableOf({2.385, -4.5, 0.25});
  const Table companion = tableOf({9.5, 8.5, 7.5, 6.5});
  matrix *x = data.get(), *key = keys.get(), *y = companion.get(), *null = nullptr;
  SortQ(x, 5, 3, 1, 5, key, y, 1, -1, -1);
  EXPECT_TRUE(holds(*data, 5, 1, {2.385, 0.25, -0.5, 7.125, -4.5}));
  EXPECT_TRUE(holds(*keys, 3, 1, {2.385, 0.25, -1.0}));
  EXPECT_TRUE(holds(*companion, 4, 1, {9.5, 7.5, 6.5, -1.0}));
  SortQ(null, 3, 0, 1, 2, key, null, 1, 0, -1);
  EXPECT_TRUE(holds(*keys, 3, 1, {0.25, 2.385, -1.0}));
}

TEST(Sorts, OfCellsThatRowsShareTheLastRowCounts) {
  const auto keys = tableOf({3, 2, 1}), companion = tableOf({10, 20, 30, 40}, 2);
  matrix *data = nullptr, *k = keys.get(), *c = companion.get();
  EXPECT_EQ(SortQ(data, 3, 0, 1, 3, k, c, 2, kFalse, kTrue), 0);
  EXPECT_TRUE(holds(*companion, 2, 2, {30, 20, 10, 40}) && holds(*keys, 3, 1, {1, 2, 3}));
}

TEST(Sorts, WithoutDataOrTableTheRestIsSorted) {
  const double cells[] = {2.5, 1.5, 4.5};
  const Table keys(new matrix(3, 1, cells, true, 0, 0)), companion(new matrix(3, 1, cells, true, 0, 0));
  Smatrix none(0, 0), *labels = &none;
  matrix* null = nullptr;
  SortQ(labels, 3, 0, 1, 3, keys.get(), companion.get(), 1, 0, -1);
  EXPECT_EQ(cellsOf(*keys), (Cells{1.5, 2.5, 4.5}));
  EXPECT_EQ(cellsOf(*companion), (Cells{1.5, 2.5, 4.5}));
  EXPECT_EQ(SortMatrixSeqQ(null, 3, INT_MAX), 0);
  EXPECT_EQ(SortQMatrixCol(null, 3, 2, 1, 1, 3, 0), 0);
}

TEST(Sorts, IndicatorsPartTheRows) {
  const Table data = tableOf({2.385, kMissing, -4.5, 0.25}), keys = tableOf({1.0, 0.0, 1.0, -0.0});
  Smatrix labels(4, 1), *strings = &labels;
  for (int k = 0; k < 4; ++k) labels.cells[k] = u"abcd"[k];
  matrix *x = data.get(), *key = keys.get();
  EXPECT_EQ(SortDataBy01(x, 4, 1, key, 3, -1), 0);
  EXPECT_TRUE(holds(*data, 4, 1, {2.385, 0.25, 2.385, -4.5}));
  EXPECT_TRUE(holds(*keys, 4, 1, {0.0, -0.0, 1.0, 1.0}));
  EXPECT_EQ(SortDataBy01(strings, 4, 1, x, 3, -1), 0);
  EXPECT_EQ(labels.cells[0] + labels.cells[3], u"dc");
}

TEST(Sorts, ColumnAfterColumnSortsTheRunsOfTheOneBefore) {
  // Runs look at one column only, and drift in steps up to 1e-12.
  const Table two = tableOf({1.0, 2.0, 5.0, 5.0, 2.0, 1.0}, 3);
  const Table drift = tableOf({0.0, 0.8e-12, 1.6e-12, 2.4e-12, 3.5e-12, 4.5, 3.25, 2.385, 1.125, 0.5}, 2);
  matrix *x = two.get(), *y = drift.get();
  EXPECT_EQ(SortMatrixSeqQ(x, 2, 3) + SortMatrixSeqQ(y, 5, 2), 0);
  // A column outside has one key for all rows.
  SortQMatrixCol(x, 2, 3, 4, 1, 2, -1);
  EXPECT_TRUE(holds(*two, 2, 3, {2.0, 1.0, 5.0, 5.0, 1.0, 2.0}));
  EXPECT_TRUE(holds(*drift, 5, 2, {2.4e-12, 1.6e-12, 0.8e-12, 0.0, 3.5e-12, 1.125, 2.385, 3.25, 4.5, 0.5}));
  Random random(35);
  for (const int n : {1, 2, 30, 450, 2000}) {
    const Table table = tableOf(corpusCells(random.bits(), 4 * n), 4, n < 31);
    for (int k = random.below(9); k < 4 * n; k += random.below(9)) {
      table->setElement(k, random.below(3) * 2.5 + random.below(40) * 4e-13);
    }
    const Table wanted = copyOf(*table);
    const auto step = [&](int r, int c) { return std::fabs(wanted->vbget(r, c) - wanted->vbget(r - 1, c)); };
    sortColumnByDefinition(*wanted, 1, 1, n, false);
    for (int k = 2; k <= 4; ++k) {
      for (int s = 1, r = 2; s <= n; s = r++) {
        while (r <= n && step(r, k - 1) <= 1e-12) ++r;
        sortColumnByDefinition(*wanted, k, s, r - 1, false);
      }
    }
    x = table.get();
    EXPECT_EQ(SortMatrixSeqQ(x, n, 4), 0);
    expectSame(*table, *wanted);
  }
}

TEST(Sorts, VectorsComeInOrderAndDescendingReversed) {
  // The clef is a pair of surrogates and so comes before the ligature, whose code point is lower.
  const std::u16string texts[] = {u"", u"A", u"AB", u"a", u"aa", u"\u00E4", u"\U0001D11E", u"\uFB01"};
  forKeys(36, [&](Random& random, const Cells& before, int n, int from, int to, short option) {
    Cells x = before;
    EXPECT_EQ(SortQVector(x.data(), n, from, to, option), 0);
    EXPECT_TRUE(bits::equal(x, sortedByDefinition(before, from, to, option, precedes)));
    // A container knows its cells itself, here in two columns; flagged ones keep what they hold.
    matrix m(n / 2, 2, before.data(), true, 0, 0), *argument = &m;
    Cells kept = sortedByDefinition(cellsOf(m), from, to, option, precedes);
    for (std::size_t k = 0; k < kept.size(); k += 19) {
      m.missing[k] = true;
      kept[k] = before[k];
    }
    EXPECT_EQ(SortQVector(argument, -3, from, to, option), 0);
    EXPECT_TRUE(bits::equal(cellsOf(m), kept));
    std::vector<int> integers, places;
    Smatrix strings(n, 1);
    for (int i = 0; i < n; ++i) {
      integers.push_back(random.below(5) == 0 ? INT_MIN : static_cast<int>(random.bits()));
      places.push_back(random.below(8));
      strings.cells[i] = texts[places.back()];
    }
    const std::vector<int> wanted = sortedByDefinition(integers, from, to, option, std::less<int>());
    EXPECT_EQ(SortQVector(integers.data(), n, from, to, option), 0);
    EXPECT_EQ(integers, wanted);
    places = sortedByDefinition(places, from, to, option, std::less<int>());
    EXPECT_EQ(SortQVector(&strings, 77, from, to, option), 0);
    for (int k = 0; k < n; ++k) ASSERT_EQ(strings.cells[k], texts[places[static_cast<std::size_t>(k)]]) << k;
  });
}

TEST(Sorts, OrdersAreTruncatedAndRowsOutsideAreMinusOneOrEmpty) {
  const double special[] = {0.5, 0.0, 301.0, std::nan(""), -3.0, 1e300};
  matrix source(300, 2), order(300, 1), inverse(300, 1);
  Smatrix labels(300, 2);
  Made<matrix> there, back;
  Made<Smatrix> labelsThere;
  for (int k = 0; k < 600; ++k) {
    source.values[k] = k * 2.385;
    labels.cells[k] = static_cast<char16_t>(k + 1);
    order.values[k % 300] = (k * 77 + 5) % 300 + 1.75;
    inverse.values[(k * 77 + 5) % 300] = k % 300 + 1.0;
  }
  SortApply(&source, 300, 2, &order, there);
  SortApply(there, 300, 2, &inverse, back);
  EXPECT_TRUE(holds(*back, 300, 2, cellsOf(source)));
  std::copy_n(special, 6, order.values);
  SortApply(&source, 300, 2, &order, there);
  SortApplyStr(&labels, 300, 2, &order, labelsThere);
  for (int k = 0; k < 600; ++k) {
    const int r = k % 300, c = k / 300 + 1, row = r == 0 ? 1 : r < 6 ? 0 : static_cast<int>(order.values[r]);
    EXPECT_EQ(there->values[k], row == 0 ? -1.0 : source.vbget(row, c)) << k;
    EXPECT_EQ(labelsThere->cells[k], row == 0 ? u"" : labels.vbget(row, c)) << k;
  }
}
