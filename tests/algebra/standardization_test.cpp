#include "algebra/standardization.h"

#include <functional>
#include <memory>
#include <vector>

#include "stats/vector_transforms.h"
#include "support/bits.h"
#include "support/random.h"

namespace {

/// Statistics of a column, the marker where one is missing.
struct Expected {
  double centred(double x) const { return mean == kMissing ? x : x - mean; }
  double standardized(double x) const { return stdev > 0.0 ? (x - mean) / stdev : 0.0; }

  double mean = kMissing, stdev = kMissing, variance = kMissing;
};

/// As they are defined, cell by cell through the accessors; j is 1-based.
Expected byDefinition(const matrix& a, int n, int j, const short* rowFlags, const matrix* weights,
                      short unbiased, short frequencies, short missingMode) {
  Expected e;
  double total = 0.0, count = 0.0, mean = 0.0, squares = 0.0;
  for (int i = 1; i <= n; ++i) {
    const bool used = missingMode == 0 ? rowFlags == nullptr || rowFlags[i - 1] == 0
                                       : missingMode == -1 && !a.getMissing(i - 1, j - 1);
    const double w = weights == nullptr ? 1.0 : weights->vbget(i, 1);
    if (!used || w == 0.0) continue;
    total += w;
    count += 1.0;
    const double d = a.vbget(i, j) - mean;
    squares += (count == 1.0 ? 0.0 : w - w * w / total) * (d * d);
    mean += (w / total) * d;
  }
  if (count == 0.0) return e;
  e.mean = mean;
  const double divisor = unbiased != -1 ? total : frequencies == -1 ? total - 1.0 : total - total / count;
  if (divisor <= 0.0) return e;
  e.variance = squares / divisor;
  e.stdev = std::sqrt(e.variance);
  return e;
}

/// A column varies, one does not, and the others vary about a mean far from 0; cells from the third row on
/// may be flagged or hold the marker.
void fill(matrix& a, Random& random, bool markers) {
  for (int j = 0; j < a.pX; ++j) {
    for (int i = 0; i < a.nX; ++i) {
      const int kind = i < 2 ? 9 : random.below(10);
      const double x = j == 1 ? 2.385 : random.uniform(-4.7, 9.3) + (j > 1 ? 1e5 : 0.0);
      a.setElement(i, j, kind == 0 && markers ? kMissing : x);
      a.setMissing(i, j, kind == 1);
    }
  }
}

/// @param kind  0 small, 1 general, 2 with zeros, 3 zero in every row, 4 null
std::unique_ptr<matrix> weightsOf(Random& random, int n, int kind) {
  auto w = kind == 4 ? nullptr : std::make_unique<matrix>(n, 1, kind == 0 ? 0.137 : 0.0);
  for (int i = 0; i < n && (kind == 1 || kind == 2); ++i) {
    if (kind == 1 || i < 2 || random.below(3) > 0) w->setElement(i, random.uniform(0.2, 3.1));
  }
  return w;
}

testing::AssertionResult holds(const matrix& v, int j, double expected) {
  if (v.missing[j] != (expected == kMissing)) return testing::AssertionFailure() << "flag of " << j;
  return bits::equal(v.values[j], v.missing[j] ? 0.0 : expected);
}

std::vector<double> cellsOf(const matrix& m) { return {m.values, m.values + m.nX * m.pX}; }

}  // namespace

TEST(Standardization, StatisticsEqualTheirDefinitionBitForBit) {
  Random random(52);
  const short options[][2] = {{0, 0}, {-1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {0, -1}};
  for (int round = 0; round < 360; ++round) {
    const int n = round % 9 == 0 ? 300 : round % 9, p = 3;
    const short u = options[round % 6][0], f = options[round % 6][1];
    const auto mode = static_cast<short>(random.below(4) - 1);
    SCOPED_TRACE("round " + std::to_string(round) + ", missing mode " + std::to_string(mode));
    matrix table(n + random.below(3), p + random.below(2), 0.0);
    fill(table, random, true);
    const auto weights = weightsOf(random, n, random.below(5));
    const matrix* w = weights.get();
    std::vector<short> flags(static_cast<std::size_t>(n) + 1);
    for (std::size_t i = 2; i < flags.size(); ++i) flags[i] = static_cast<short>(random.below(3) - 1);
    const short* rows = round % 4 == 0 ? nullptr : flags.data();

    matrix *m[4] = {}, *s[4] = {}, *v[3] = {}, *out[2] = {};
    if (round % 2 == 0) s[0] = new matrix(p, 1, 8.1);
    EXPECT_EQ(M_MeanStDev(&table, n, p, m[0], s[0], rows, w, u, f, mode), 0);
    EXPECT_EQ(M_MeanStDevVar(&table, n, p, m[1], s[1], v[0], rows, w, u, f), 0);
    EXPECT_EQ(M_Mean(&table, n, p, m[2], rows, w), 0);
    M_Standardize(&table, n, p, out[0], m[3], s[2], v[1], rows, w, u, f);
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&table, n, p, m[1], out[1], s[1], v[2], rows), 0);
    EXPECT_EQ(s[0] != nullptr, round % 2 == 0);
    for (int j = 0; j < p; ++j) {
      const Expected e = byDefinition(table, n, j + 1, rows, w, u, f, mode);
      const Expected all = byDefinition(table, n, j + 1, rows, w, u, f, 0);
      EXPECT_TRUE(holds(*m[0], j, e.mean));
      EXPECT_TRUE(s[0] == nullptr || holds(*s[0], j, e.stdev));
      for (int k : {1, 3}) EXPECT_TRUE(holds(*m[k], j, all.mean));
      for (int k : {1, 2}) EXPECT_TRUE(holds(*s[k], j, all.stdev));
      for (int k : {0, 1}) EXPECT_TRUE(holds(*v[k], j, all.variance));
      EXPECT_TRUE(bits::equal(m[2]->values[j], all.mean == kMissing ? 0.0 : all.mean));
      EXPECT_TRUE(bits::equal(v[2]->values[j], s[1]->values[j] * s[1]->values[j]));
      double mean = 0.0, stdev = 0.0, variance = 0.0;
      M_MeanStDevVarOneInMat(&table, n, j + 1, &mean, &stdev, &variance, rows, w, u, f);
      EXPECT_TRUE(bits::equal({mean, stdev, variance}, {all.mean, all.stdev, all.variance}));
      for (int i = 0; i < n; ++i) {
        const double x = table.getElement(i, j), z = all.standardized(x);
        EXPECT_TRUE(bits::equal(out[0]->getElement(i, j), z));
        EXPECT_EQ(out[1]->missing[i + n * j], table.getMissing(i, j));
        if (table.getMissing(i, j)) continue;
        EXPECT_TRUE(bits::equal(out[1]->getElement(i, j), rows != nullptr && rows[i] != 0 ? x : z));
      }
    }
    for (auto& group : {std::vector(m, m + 4), std::vector(s, s + 4), {v[0], v[1], v[2], out[0], out[1]}}) {
      for (const matrix* made : group) delete made;
    }
  }
}

TEST(Standardization, TransformsEqualTheirDefinitionAndKeepFlaggedCells) {
  Random random(53);
  for (int round = 0; round < 300; ++round) {
    const int n = round % 9 == 0 ? 130 : random.below(7), p = 3, n2 = 5;
    matrix table(n, p, 0.0), result(n + 1, p + 1, 7.25), second(n2, p, 0.0), third(4, p, 1.3), m(p, 1, 8.1),
        s(p, 1, 8.1);
    fill(table, random, false);
    fill(second, random, false);
    result.setMissing(0, 0, true);
    matrix *a = &table, *o = &result, *b = &second, *c = &third, *means = &m, *stdevs = &s;
    const auto weights = weightsOf(random, n, random.below(5));
    const matrix* w = weights.get();
    const auto u = static_cast<short>(random.below(3) - 1);
    const struct {
      std::function<void()> call;
      char kind;
      const matrix *target, *weights;
      short unbiased, frequencies;
    } members[] = {{[&] { M_Center(a, n, p, o); }, 'c', o, nullptr, 0, 0},
                   {[&] { M_CenterW(a, n, p, w, o); }, 'c', o, w, 0, 0},
                   {[&] { M_Center2(a, n, p); }, 'c', a, nullptr, 0, 0},
                   {[&] { M_CenterW2(a, n, p, w); }, 'c', a, w, 0, 0},
                   {[&] { M_Reduce(a, n, p, o, u); }, 'r', o, nullptr, u, 0},
                   {[&] { M_ReduceW(a, n, p, w, o, u); }, 'r', o, w, u, 0},
                   {[&] { M_Reduce2(a, n, p, u); }, 'r', a, nullptr, u, 0},
                   {[&] { M_ReduceW2(a, n, p, w, u); }, 'r', a, w, u, 0},
                   {[&] { M_Standardize2(a, n, p, u); }, 's', a, nullptr, u, -1},
                   {[&] { M_Standardize3(a, n, p, means, stdevs, u); }, 's', a, nullptr, u, -1},
                   {[&] { M_StandardizeW2(a, n, p, w, u); }, 's', a, w, u, -1},
                   {[&] { M_StandardizeW(a, n, p, w, u, 0, o); }, 's', o, w, u, 0},
                   {[&] { M_StandardizeMatrix(a, n, p, b, n2, c, 4); }, 's', a, nullptr, -1, -1},
                   {[&] { M_NormalizeMatrix(b, n2, p, c, 4, a, n); }, 's', a, nullptr, -1, -1}};
    const int k = round % static_cast<int>(std::size(members));
    SCOPED_TRACE("round " + std::to_string(round) + ", member " + std::to_string(k));
    const auto& member = members[k];
    std::vector<double> expected = cellsOf(*member.target);
    std::vector<Expected> own;
    for (int j = 0; j < p; ++j) {
      const auto& [call, kind, target, used, unbiased, frequencies] = member;
      const Expected e = k == 13 ? byDefinition(second, n2, j + 1, nullptr, nullptr, -1, -1, 0)
                                 : byDefinition(table, n, j + 1, nullptr, used, unbiased, frequencies, 0);
      own.push_back(e);
      for (int i = 0; i < n; ++i) {
        const int cell = i + target->nX * j;
        if (target->missing[cell]) continue;
        const double x = table.getElement(i, j), reduced = e.stdev > 0.0 ? x / e.stdev : 0.0;
        const double z = e.standardized(x) * (k == 13 ? std::sqrt(n2 / (n2 - 1.0)) : 1.0);
        expected[static_cast<std::size_t>(cell)] = kind == 'c' ? e.centred(x) : kind == 'r' ? reduced : z;
      }
    }
    member.call();
    EXPECT_TRUE(bits::equal(cellsOf(*member.target), expected));
    for (int j = 0; j < p && k == 9; ++j) {
      EXPECT_TRUE(holds(m, j, own[static_cast<std::size_t>(j)].mean));
      EXPECT_TRUE(holds(s, j, own[static_cast<std::size_t>(j)].stdev));
    }
  }
}

TEST(Standardization, NormalizeDividesByTheNormsOfUsableCells) {
  const double cells[] = {3.0, kMissing, -4.0, 7.7, 12.0, 0.0, kMissing, 0.0, 2.385, 0.0};
  const double weightCells[] = {0.3, 1.0, 2.385, 0.0, 1.0};
  const short rows[] = {0, 0, 0, 0, 1};
  matrix table(5, 2, cells, false, 0, 0), norms(2, 1, 8.1), *a = &table, *n = &norms;
  const matrix w(5, 1, weightCells, true, 0, 0);
  M_Normalize(a, 5, 2, n, rows, &w, -1, 1);
  EXPECT_TRUE(bits::equal(cellsOf(norms), {5.0, 0.0}));
  EXPECT_TRUE(bits::equal(cellsOf(table), {3.0 / 5.0, 0.0, -4.0 / 5.0, 7.7 / 5.0, 12.0 / 5.0,  //
                                           0.0, 0.0, 0.0, 2.385, 0.0}));
}

TEST(Standardization, ByVectIsTheVectorMemberColumnByColumn) {
  Random random(54);
  for (int round = 0; round < 40; ++round) {
    const int n = 1 + round % 4 * 29, p = 3, member = round / 4 % 4;
    matrix table(n, p, 0.0), other(n, p, 8.1), column(n, 1), result(n, 1);
    fill(table, random, false);
    const auto w = weightsOf(random, n, 2);
    std::vector<short> flags(static_cast<std::size_t>(n * p));
    for (short& flag : flags) flag = static_cast<short>(random.below(5) == 0 ? -1 : 0);
    matrix *a = &table, *o = &other, *r = &result;
    std::vector<double> expected;
    for (int j = 0; j < p; ++j) {
      for (int i = 0; i < n; ++i) column.values[i] = table.getElement(i, j);
      for (int i = 0; i < n; ++i) column.setMissing(i, table.getMissing(i, j));
      if (member < 2) V_Standardize(&column, n, flags.data() + n * j, w.get(), -1, r);
      if (member > 1) V_Rescale(&column, n, -2.385, 7.7, flags.data() + n * j, r);
      for (int i = 0; i < n; ++i) {
        const bool keeps = member % 2 == 1 && table.getMissing(i, j);
        expected.push_back(keeps ? table.getElement(i, j) : result.getElement(i));
      }
    }
    if (member == 0) M_StandardizeByVect(a, n, p, flags.data(), w.get(), -1, o);
    if (member == 1) M_StandardizeByVect2(a, n, p, flags.data(), w.get(), -1);
    if (member == 2) M_RescaleByVect(a, n, p, -2.385, 7.7, flags.data(), o);
    if (member == 3) M_RescaleByVect2(a, n, p, -2.385, 7.7, flags.data());
    EXPECT_TRUE(bits::equal(cellsOf(member % 2 == 0 ? other : table), expected)) << "round " << round;
  }
}
