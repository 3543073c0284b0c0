#include "kavoratb1c/stats/ranks.h"

#include <algorithm>
#include <climits>
#include <set>

#include "core/contents.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "support/random.h"

using namespace kav;

namespace {

struct Results {
  Made<matrix> ranks, sizes;
  int count = -7;
};

}  // namespace

TEST(Ranks, EqualTheirDefinitions) {
  Random random(51);
  for (const int n : {1, 2, 3, 33, 399, 450}) {
    const double few[] = {kMissing, -0.0, 0.0, 2.385, -4.5, 1e300};
    matrix m(n, 1), two(n, 2), w(n, 1), ones(n, 1, 1.0);
    for (int i = 0; i < n; ++i) {
      m.values[i] = random.below(3) == 0 ? few[random.below(6)] : random.below(n) / 8.0;
      two.values[i] = two.values[2 * n - 1 - i] = m.values[i];
      w.values[i] = random.uniform(0.25, 4.0);
    }
    const std::vector<double> x = cellsOf(m);
    const double firstWeight = w.values[std::min_element(x.begin(), x.end()) - x.begin()];
    const std::set<double> values(x.begin(), x.end());
    std::vector<double> dense, mid, floored, sizes;
    for (const double value : values) sizes.push_back(double(std::count(x.begin(), x.end(), value)));
    for (const double cell : x) {
      const auto place = std::distance(values.begin(), values.find(cell));
      double rank = 0.0, sum = 0.0, total = 0.0;
      for (int i = 0; i < n; ++i) rank += m.values[i] < cell;
      for (int i = 0; i < n; ++i) {
        const double weight = m.values[i] != cell ? 0.0 : total == 0.0 ? firstWeight : w.values[i];
        sum += (rank += m.values[i] == cell) * weight;
        total += weight;
      }
      dense.push_back(1.0 + double(place));
      mid.push_back(sizes[static_cast<std::size_t>(place)] == 1.0 ? rank : sum / total);
      floored.push_back(std::floor(mid.back()));
    }
    std::erase(sizes, 1.0);
    Results plain, tied, whole, single, table;
    V_GetRanks(&m, n, plain.ranks);
    EXPECT_TRUE(holds(*plain.ranks, n, 1, dense));
    V_GetRanksTies(&m, n, &w, tied.ranks, &tied.count, tied.sizes);
    EXPECT_TRUE(holds(*tied.ranks, n, 1, mid));
    EXPECT_TRUE(holds(*tied.sizes, tied.count, 1, sizes));
    V_GetRanksTiesInt(&m, n, &w, whole.ranks, nullptr, whole.sizes);
    EXPECT_TRUE(holds(*whole.ranks, n, 1, floored));
    V_ExtractDistinct(&m, n, single.ranks, &single.count);
    EXPECT_TRUE(holds(*single.ranks, V_NbDistinct(&m, n), 1, {values.begin(), values.end()}));
    EXPECT_EQ(single.count, V_NbDistinct(&m, n));
    // With unit weights ranks add up to those without ties, in each column.
    int ties[2] = {-7, -7};
    M_GetRanksTies(&two, n, 2, &ones, table.ranks, ties);
    EXPECT_EQ(V_Sum2(table.ranks, 2 * n), n * (n + 1.0));
    EXPECT_EQ(V_Sum2(table.ranks, n), n * (n + 1.0) / 2.0);
    EXPECT_EQ(std::pair(ties[0], ties[1]), std::pair(tied.count, tied.count));
  }
}

TEST(Ranks, FirstOfTheTiedCountsWithTheWeightOfTheSmallest) {
  const double cells[] = {2.0, 1.0, 2.0}, weights[] = {1.0, 5.0, 3.0};
  const matrix x(3, 1, cells, true, 0, 0), w(3, 1, weights, true, 0, 0), broken(3, 1, std::nan(""));
  Results result, unweighted;
  V_GetRanksTies(&x, 3, &w, result.ranks, &result.count, result.sizes);
  EXPECT_TRUE(holds(*result.ranks, 3, 1, {2.375, 1.0, 2.375}));
  // A flagged cell keeps what it holds.
  result.ranks->setMissing(0, true);
  V_GetRanksTies(&x, 3, nullptr, result.ranks, &unweighted.count, unweighted.sizes);
  EXPECT_TRUE(holds(*result.ranks, 3, 1, {2.375, kMissing, kMissing}));
  M_GetRanksTies(&x, 3, 1, nullptr, unweighted.ranks, &unweighted.count);
  EXPECT_TRUE(holds(*unweighted.ranks, 3, 1, {kMissing, kMissing, kMissing}));
  EXPECT_EQ(V_NbDistinct(&broken, 3), 3);
}
