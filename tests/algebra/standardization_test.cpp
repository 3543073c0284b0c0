#include "kavoratb1c/algebra/standardization.h"

#include <optional>
#include <utility>

#include "kavoratb1c/stats/vector_transforms.h"
#include "support/tables.h"

using namespace kav;

namespace {

using definitions::WeightedUpdate;

constexpr int kMost = std::numeric_limits<int>::max();

/// Statistics of a column, where they can be computed.
struct Expected {
  double centred(double x) const { return x - mean.value_or(0.0); }
  double reduced(double x) const { return stdev.value_or(0.0) > 0.0 ? x / *stdev : 0.0; }
  double standardized(double x) const { return reduced(centred(x)); }

  std::optional<double> mean, stdev, variance;
};

/// As they are defined, of column j, 0-based.
Expected byDefinition(const matrix& a, int n, int j, const short* rowFlags, const matrix* weights,
                      short unbiased, short frequencies, short missingMode) {
  const WeightedUpdate m(a, j, j, n, weights, [&](int i) {
    return missingMode == kFalse ? rowFlags == nullptr || rowFlags[i] == 0
                                 : missingMode == kTrue && !a.getMissing(i, j);
  });
  if (m.count == 0.0) return {};
  const double divisor = m.divisor(unbiased, frequencies), variance = m.squares / divisor;
  if (divisor <= 0.0) return {m.meanA, {}, {}};
  return {m.meanA, std::sqrt(variance), variance};
}

/// Cell j of a vector of statistics, flagged where there is none.
testing::AssertionResult holdsAt(const matrix& v, int j, std::optional<double> expected) {
  if (v.missing[j] == expected.has_value()) return testing::AssertionFailure() << "flag of " << j;
  return bits::equal(v.values[j], expected.value_or(0.0));
}

}  // namespace

TEST(Standardization, StatisticsEqualTheirDefinitionBitForBit) {
  Random random(52);
  const short options[][2] = {{0, 0}, {-1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {0, -1}};
  for (int round = 0; round < 360; ++round) {
    const int n = round % 9 == 0 ? 300 : round % 9, p = 3;
    const short u = options[round % 6][0], f = options[round % 6][1];
    const auto mode = static_cast<short>(random.below(4) - 1);
    SCOPED_TRACE(testing::Message() << "round " << round << ", missing mode " << mode);
    matrix table(n + random.below(3), p + random.below(2), 0.0);
    fillColumns(table, random, 2);
    const auto weights = randomWeights(random, n);
    const matrix* w = weights.get();
    const std::vector<short> flags = randomFlags(random, n);
    const short* rows = round % 4 == 0 ? nullptr : flags.data();

    Made<matrix> m[4], s[4], v[3], out[2];
    if (round % 2 == 0) s[0].held = new matrix(p, 1, 8.1);
    EXPECT_EQ(M_MeanStDev(&table, n, p, m[0], s[0], rows, w, u, f, mode), 0);
    EXPECT_EQ(M_MeanStDevVar(&table, n, p, m[1], s[1], v[0], rows, w, u, f), 0);
    EXPECT_EQ(M_Mean(&table, n, p, m[2], rows, w), 0);
    M_Standardize(&table, n, p, out[0], m[3], s[2], v[1], rows, w, u, f);
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&table, n, p, m[1], out[1], s[1], v[2], rows), 0);
    EXPECT_EQ(s[0].held != nullptr, round % 2 == 0);
    for (int j = 0; j < p; ++j) {
      const Expected e = byDefinition(table, n, j, rows, w, u, f, mode);
      const Expected all = byDefinition(table, n, j, rows, w, u, f, 0);
      EXPECT_TRUE(holdsAt(*m[0], j, e.mean));
      EXPECT_TRUE(s[0].held == nullptr || holdsAt(*s[0], j, e.stdev));
      for (int k : {1, 3}) EXPECT_TRUE(holdsAt(*m[k], j, all.mean));
      for (int k : {1, 2}) EXPECT_TRUE(holdsAt(*s[k], j, all.stdev));
      for (int k : {0, 1}) EXPECT_TRUE(holdsAt(*v[k], j, all.variance));
      EXPECT_TRUE(bits::equal(m[2]->values[j], all.mean.value_or(0.0)));
      EXPECT_TRUE(bits::equal(v[2]->values[j], s[1]->values[j] * s[1]->values[j]));
      double mean = 0.0, stdev = 0.0, variance = 0.0;
      M_MeanStDevVarOneInMat(&table, n, j + 1, &mean, &stdev, &variance, rows, w, u, f);
      EXPECT_TRUE(bits::equal(
          {mean, stdev, variance},
          {all.mean.value_or(kMissing), all.stdev.value_or(kMissing), all.variance.value_or(kMissing)}));
      for (int i = 0; i < n; ++i) {
        const double x = table.getElement(i, j), z = all.standardized(x);
        EXPECT_TRUE(bits::equal(out[0]->getElement(i, j), z));
        EXPECT_EQ(out[1]->missing[i + n * j], table.getMissing(i, j));
        const bool keeps = table.getMissing(i, j) || (rows != nullptr && rows[i] != 0);
        EXPECT_TRUE(bits::equal(out[1]->getElement(i, j), keeps ? x : z));
      }
    }
  }
}

TEST(Standardization, TransformsEqualTheirDefinitionAndKeepFlaggedCells) {
  using C = matrix*&;
  Random random(53);
  for (int round = 0; round < 40; ++round) {
    const int n = round % 9 == 0 ? 130 : random.below(7), p = 3, n2 = 5;
    matrix table(n, p, 0.0), result(n + 1, p + 1, 7.25), second(n2, p, 0.0), third(4, p, 1.3);
    fillColumns(table, random, 1);
    fillColumns(second, random, 1);
    result.setMissing(0, 0, true);
    const auto weights = randomWeights(random, n);
    const matrix *w = weights.get(), *none = nullptr;
    const auto u = static_cast<short>(random.below(3) - 1);
    // call(rows, columns, table, result); without rows or columns it changes nothing.
    const auto expect = [&](auto call, const matrix& target, auto transform, const matrix* used,
                            short unbiased, short frequencies) {
      const auto own = copyOf(table), other = copyOf(result), expected = copyOf(target);
      matrix *a = own.get(), *o = other.get(), *changed = &target == &table ? a : o;
      for (const int i : {0, -2, kMost}) {
        call(i, i > 0 ? 0 : p, a, o);
        EXPECT_TRUE(bits::equal(cellsOf(*changed), cellsOf(target)));
      }
      call(n, p, a, o);
      for (int k = 0; k < n * p; ++k) {
        const Expected e = byDefinition(table, n, k / n, nullptr, used, unbiased, frequencies, 0);
        expected->setElement(k % n, k / n, (e.*transform)(table.values[k]));
      }
      EXPECT_TRUE(bits::equal(cellsOf(*changed), cellsOf(*expected)));
    };
    const auto centred = &Expected::centred, reduced = &Expected::reduced,
               standardized = &Expected::standardized;
    expect([](int i, int j, C a, C o) { M_Center(a, i, j, o); }, result, centred, none, 0, 0);
    expect([&](int i, int j, C a, C o) { M_CenterW(a, i, j, w, o); }, result, centred, w, 0, 0);
    expect([](int i, int j, C a, C) { M_Center2(a, i, j); }, table, centred, none, 0, 0);
    expect([&](int i, int j, C a, C) { M_CenterW2(a, i, j, w); }, table, centred, w, 0, 0);
    expect([&](int i, int j, C a, C o) { M_Reduce(a, i, j, o, u); }, result, reduced, none, u, 0);
    expect([&](int i, int j, C a, C o) { M_ReduceW(a, i, j, w, o, u); }, result, reduced, w, u, 0);
    expect([&](int i, int j, C a, C) { M_Reduce2(a, i, j, u); }, table, reduced, none, u, 0);
    expect([&](int i, int j, C a, C) { M_ReduceW2(a, i, j, w, u); }, table, reduced, w, u, 0);
    expect([&](int i, int j, C a, C) { M_Standardize2(a, i, j, u); }, table, standardized, none, u, -1);
    expect([&](int i, int j, C a, C) { M_StandardizeW2(a, i, j, w, u); }, table, standardized, w, u, -1);
    expect([&](int i, int j, C a, C o) { M_StandardizeW(a, i, j, w, u, 0, o); }, result, standardized, w, u,
           0);
    const auto standardizeThree = [&](int i, int j, C a, C) {
      const auto b = copyOf(second), c = copyOf(third);
      matrix *also = b.get(), *alsoThird = c.get();
      M_StandardizeMatrix(a, i, j, also, n2, alsoThird, 4);
    };
    expect(standardizeThree, table, standardized, none, -1, -1);

    // One with its statistics; another one by those of the second table, whose deviations divide by n2.
    const auto own = copyOf(table), other = copyOf(table), expected = copyOf(table), byOther = copyOf(table),
               copyOfSecond = copyOf(second);
    matrix m(p, 1, 8.1), s(p, 1, 8.1), *means = &m, *stdevs = &s, *a = own.get(), *last = other.get(),
                                       *b = copyOfSecond.get(), *c = &third;
    M_Standardize3(a, n, p, means, stdevs, u);
    M_NormalizeMatrix(b, n2, p, c, 4, last, n);
    for (int j = 0; j < p; ++j) {
      const Expected e = byDefinition(table, n, j, nullptr, nullptr, u, -1, 0);
      const Expected of = byDefinition(second, n2, j, nullptr, nullptr, -1, -1, 0);
      EXPECT_TRUE(holdsAt(m, j, e.mean));
      EXPECT_TRUE(holdsAt(s, j, e.stdev));
      for (int i = 0; i < n; ++i) {
        expected->setElement(i, j, e.standardized(table.getElement(i, j)));
        byOther->setElement(i, j, of.standardized(table.getElement(i, j)) * std::sqrt(n2 / (n2 - 1.0)));
      }
    }
    EXPECT_TRUE(bits::equal(cellsOf(*a), cellsOf(*expected)));
    EXPECT_TRUE(bits::equal(cellsOf(*last), cellsOf(*byOther)));
  }
}

TEST(Standardization, NormalizeDividesByTheNormsOfUsableCells) {
  const double cells[] = {3.0, kMissing, -4.0, 7.7, 12.0, 0.0, kMissing, 0.0, 2.385, 0.0};
  const double weightCells[] = {0.3, 1.0, 2.385, 0.0, 1.0};
  const short rows[] = {0, 0, 0, 0, 1};
  matrix table(5, 2, cells, false, 0, 0), norms(2, 1, 8.1), *a = &table, *n = &norms;
  const matrix w(5, 1, weightCells, true, 0, 0);
  M_Normalize(a, 5, 2, n, rows, &w, -1, 1);
  EXPECT_TRUE(holds(norms, 2, 1, {5.0, 0.0}));
  EXPECT_TRUE(holds(table, 5, 2,
                    {3.0 / 5.0, 0.0, -4.0 / 5.0, 7.7 / 5.0, 12.0 / 5.0,  //
                     0.0, 0.0, 0.0, 2.385, 0.0}));
}

TEST(Standardization, ByHandIntoAResultThatIsRefilled) {
  const double cells[] = {1.0, 2.0, 3.0, 4.0, 5.0, 7.0}, sd = std::sqrt(7.0 / 3.0);
  const matrix table(3, 2, cells, true, 0, 0);
  const double expected[] = {-1.0, 0.0, 1.0, (4 - 16 / 3.) / sd, (5 - 16 / 3.) / sd, (7 - 16 / 3.) / sd};
  const auto cell = [&](int i, int j) { return expected[i - 1 + 3 * (j - 1)]; };
  expectMakes(3, 2, cell, [&](matrix*& out) {
    Made<matrix> r[3];
    M_Standardize(&table, 3, 2, out, r[0], r[1], r[2], nullptr, nullptr, -1, -1);
  });
}

TEST(Standardization, KnownStatisticsMayBeAnyAndTheTableItsOwnResult) {
  const double cells[] = {2.5, kMissing, -7.0, 4.0, 2.5, 9.25, -7.0, 4.0}, sds[] = {2.0, -2.0};
  const short rows[] = {0, 0, 0, 1};
  const matrix means(2, 1, 0.5), stdevs(2, 1, sds, true, 0, 0);
  for (const bool inPlace : {false, true}) {
    matrix table(4, 2, cells, true, 0, 0), *out = inPlace ? &table : nullptr, v(2, 1, 8.1), *variances = &v;
    table.setMissing(5, true);
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&table, 4, 2, &means, out, &stdevs, variances, rows), 0);
    EXPECT_TRUE(holds(*out, 4, 2, {1.0, kMissing, -3.75, 4.0, 0.0, 9.25, 0.0, 4.0}));
    EXPECT_EQ(flagsOf(*out), "01000100");
    EXPECT_TRUE(holds(v, 2, 1, {4.0, 4.0}));
    if (!inPlace) delete out;
  }
}

TEST(Standardization, KnownStandardDeviationsMayBecomeTheirVariances) {
  const double cells[] = {3.0, 5.0, 9.0, 1.0}, sds[] = {2.0, 4.0};
  const matrix table(2, 2, cells, true, 0, 0), means(2, 1, 1.0);
  matrix stdevs(2, 1, sds, true, 0, 0), *variances = &stdevs, *out = nullptr;
  M_StandardizeKnownMeansStDev(&table, 2, 2, &means, out, &stdevs, variances, nullptr);
  EXPECT_TRUE(holds(*out, 2, 2, {1.0, 2.0, 2.0, 0.0}));
  EXPECT_TRUE(holds(stdevs, 2, 1, {4.0, 16.0}));
  delete out;
}

TEST(Standardization, ByVectIsTheVectorMemberColumnByColumn) {
  Random random(54);
  for (const int n : {1, 30, 59, 88, 88, 59, 30, 1}) {
    const int p = 3;
    matrix table(n, p, 0.0), scaled(n, p, 0.0), rescaled(n, p, 0.0), column(n, 1), result(n, 1);
    fillColumns(table, random, 1);
    const auto w = randomWeights(random, n);
    const matrix ones(n, 1, 1.0), *used = w == nullptr ? &ones : w.get();
    const std::vector<short> flags = randomFlags(random, n * p);
    matrix* r = &result;
    for (int j = 0; j < p; ++j) {
      for (int i = 0; i < n; ++i) column.values[i] = table.getElement(i, j);
      for (int i = 0; i < n; ++i) column.setMissing(i, table.getMissing(i, j));
      V_Standardize(&column, n, flags.data() + n * j, used, -1, r);
      scaled.copyCol(r, 0, j);
      V_Rescale(&column, n, -2.385, 7.7, flags.data() + n * j, r);
      rescaled.copyCol(r, 0, j);
    }
    // In place flagged cells keep what they hold.
    const auto expect = [&](const matrix& expected, bool inPlace, auto run) {
      const auto own = copyOf(table);
      matrix other(n, p, 8.1), *a = own.get(), *o = &other;
      run(a, o);
      for (int k = 0; k < n * p; ++k) {
        const double x = inPlace && table.missing[k] ? table.values[k] : expected.values[k];
        EXPECT_TRUE(bits::equal((inPlace ? a : o)->values[k], x)) << k;
      }
    };
    using C = matrix*&;
    const matrix* weights = w.get();
    const short* f = flags.data();
    expect(scaled, false, [&](C a, C o) { M_StandardizeByVect(a, n, p, f, weights, -1, o); });
    expect(scaled, true, [&](C a, C) { M_StandardizeByVect2(a, n, p, f, weights, -1); });
    expect(rescaled, false, [&](C a, C o) { M_RescaleByVect(a, n, p, -2.385, 7.7, f, o); });
    expect(rescaled, true, [&](C a, C) { M_RescaleByVect2(a, n, p, -2.385, 7.7, f); });
  }
}

TEST(Standardization, WithoutCellsRefillsStatisticsAndChangesNothingElse) {
  using C = matrix*&;
  const matrix v(3, 1, 0.5);
  matrix t(3, 2, 2.385), *a = &t, *r[4] = {};
  const Result statistics = {kP, kOne}, table = {kN, kP}, own = {kNone, kNone, kWritten},
               besideStatistics = {kNone, kNone, kWritten, kP};
  const auto expect = [&](Result made, auto run) {
    WorkerCheck{3, 2}.withoutCells(made, [&](int i, int j, C c) {
      run(i, j, c);
      for (matrix*& other : r) delete std::exchange(other, nullptr);
    });
  };
  expect(statistics, [&](int i, int j, C c) { M_Mean(a, i, j, c, nullptr, &v); });
  expect(statistics, [&](int i, int j, C c) { M_MeanStDev(a, i, j, c, r[3], nullptr, &v, 0, 0, 0); });
  expect(statistics, [&](int i, int j, C c) { M_MeanStDevVar(a, i, j, r[0], r[1], c, nullptr, &v, 0, 0); });
  expect(statistics, [&](int i, int j, C c) { M_Normalize(a, i, j, c, nullptr, &v, 0, 0); });
  expect(besideStatistics, [&](int i, int j, C c) { M_Normalize(c, i, j, r[0], nullptr, &v, 0, 0); });
  expect(besideStatistics, [&](int i, int j, C c) { M_Standardize3(c, i, j, r[0], r[1], 0); });
  expect(table, [&](int i, int j, C c) { M_Standardize(a, i, j, c, r[0], r[1], r[2], nullptr, &v, 0, 0); });
  expect(besideStatistics,
         [&](int i, int j, C c) { M_StandardizeKnownMeansStDev(a, i, j, &v, c, &v, r[0], nullptr); });
  expect(own, [&](int i, int j, C c) { M_StandardizeByVect(a, i, j, nullptr, &v, 0, c); });
  expect(own, [&](int i, int j, C c) { M_RescaleByVect(a, i, j, 0.0, 1.0, nullptr, c); });
  EXPECT_TRUE(holds(t, 3, 2, std::vector<double>(6, 2.385)));
}
