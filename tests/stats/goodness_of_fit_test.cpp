#include "kavoratb1c/stats/goodness_of_fit.h"

#include <climits>
#include <vector>

#include "support/bits.h"
#include "support/random.h"

using namespace kav;

namespace {

/// MAPE, MPE and MAE as they are defined.
std::vector<double> byDefinition(const matrix& obs, const matrix& pred, int n, const matrix* w, int first) {
  double sums[3] = {}, totals[3] = {};
  for (int i = first < 1 ? 0 : first - 1; i < n; ++i) {
    const double y = obs.getElement(i), fitted = pred.getElement(i),
                 weight = w == nullptr ? 1.0 : w->getElement(i);
    const bool anyMarker = y == kMissing || fitted == kMissing;
    const bool used[] = {y != 0.0 && !obs.getMissing(i) && !pred.getMissing(i), y != 0.0 && !anyMarker,
                         !anyMarker};
    const double terms[] = {std::fabs(1.0 - fitted / y), (y - fitted) / y, std::fabs(y - fitted)};
    for (int k = 0; k < 3; ++k) {
      if (!used[k]) continue;
      sums[k] += terms[k] * weight;
      totals[k] += weight;
    }
  }
  return {totals[0] == 0.0 ? sums[0] : 100.0 * sums[0] / totals[0],
          totals[1] == 0.0 ? kMissing : 100.0 * sums[1] / totals[1],
          totals[2] == 0.0 ? kMissing : sums[2] / totals[2]};
}

std::vector<double> measures(const matrix& obs, const matrix& pred, int n, const matrix* w, int first) {
  return {MAPE(&obs, &pred, n, w, first), MPE(&obs, &pred, n, w, first), MAE(&obs, &pred, n, w, first)};
}

}  // namespace

TEST(GoodnessOfFit, MeasuresEqualTheirDefinitionBitForBit) {
  Random random(61);
  for (int n : {1, 2, 7, 40}) {
    for (int round = 0; round < 12; ++round) {
      std::vector<double> cells;
      for (int i = 0; i < 3 * n; ++i) {
        const int kind = random.below(9);
        cells.push_back(kind == 0 ? kMissing : kind == 1 ? 0.0 : random.uniform(-20.0, 60.0));
      }
      matrix obs(n, 1, cells.data(), round % 2 == 0, 0, 0), pred(n, 1, cells.data() + n, round % 4 < 2, 0, 0);
      const matrix w(round < 6 ? n : n - 1, 1, cells.data() + 2 * n, false, 0, 0);
      obs.setMissing(random.below(n), true);
      pred.setMissing(random.below(n), true);
      for (int first : {INT_MIN, 0, 1, 2, 5, n, n + 1, INT_MAX}) {
        EXPECT_TRUE(bits::equal(measures(obs, pred, n, &w, first), byDefinition(obs, pred, n, &w, first)));
        const double unweighted = byDefinition(obs, pred, n, nullptr, first)[0];
        EXPECT_TRUE(bits::equal(MAPE(&obs, &pred, n, nullptr, first), unweighted));
      }
    }
  }
}

TEST(GoodnessOfFit, EmptySums) {
  const double opposite[] = {1.5, -1.5};
  const matrix zeros(2, 1, 0.0), markers(2, 1, kMissing), y(2, 1, 2.0), fitted(2, 1, 3.0), w(2, 1, 1.0);
  const matrix cancelling(2, 1, opposite, true, 0, 0);
  const std::vector<double> empty = {0.0, kMissing, kMissing};
  EXPECT_TRUE(bits::equal(measures(zeros, fitted, 2, &w, 0), {0.0, kMissing, 3.0}));
  EXPECT_TRUE(bits::equal(measures(markers, fitted, 2, &w, 0), empty));
  EXPECT_TRUE(bits::equal(measures(y, fitted, 2, &cancelling, 0), empty));
  EXPECT_TRUE(bits::equal(measures(y, fitted, INT_MIN, &w, 0), empty));
  EXPECT_TRUE(bits::equal(measures(y, fitted, 2, nullptr, 1), {50.0, kMissing, kMissing}));
}

TEST(GoodnessOfFit, RmseWalksOneColumnOfTwoTables) {
  const double y[] = {9.0, 9.0, 9.0, 9.0, 4.5, kMissing, 2.385, -HUGE_VAL}, fitted[] = {8.0, 8.0, 4.0, 5.0};
  matrix obs(4, 2, y, true, 0, 0), pred(2, 2, fitted, true, 0, 0);
  obs.setMissing(4, true);  // flags are not looked at
  // Row 3 of the predictions' column 2 lies outside.
  EXPECT_EQ(RMSE(&obs, 4, 2, &pred, 3), std::sqrt((0.5 * 0.5 + 3.385 * 3.385) / 3.0));
  EXPECT_EQ(RMSE(&obs, 1, 2, &pred, 0), HUGE_VAL);
  EXPECT_TRUE(
      bits::equal({RMSE(&obs, INT_MIN, 2, &pred, 5), RMSE(&obs, 4, 0, &pred, 5), RMSE(&obs, 0, 1, &pred, 0)},
                  {0.0, 0.0, NAN}));
}
