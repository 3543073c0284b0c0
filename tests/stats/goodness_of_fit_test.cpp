#include "kavoratb1c/stats/goodness_of_fit.h"

#include <climits>
#include <vector>

#include "support/bits.h"

using namespace kav;

namespace {

/// MAPE, MPE and MAE.
std::vector<double> measures(const matrix& obs, const matrix& pred, int n, const matrix* w, int first) {
  return {MAPE(&obs, &pred, n, w, first), MPE(&obs, &pred, n, w, first), MAE(&obs, &pred, n, w, first)};
}

}  // namespace

TEST(GoodnessOfFit, MeasuresByHand) {
  const double y[] = {4.0, 0.0, kMissing, 8.0, 2.0}, fitted[] = {5.0, 3.0, 1.0, 6.0, kMissing};
  const double weights[] = {1.0, 2.0, 3.0, 0.5, 7.0};
  const matrix w(5, 1, weights, true, 0, 0), fewer(4, 1, weights, true, 0, 0);
  const matrix obs(5, 1, y, true, 0, 0), pred(5, 1, fitted, true, 0, 0);
  // Relative errors of 4 and 8; what is observed as 0 has none.
  const double mape = 100.0 * 0.375 / 1.5, mpe = 100.0 * -0.125 / 1.5;
  for (const int first : {INT_MIN, 0, 1}) {
    EXPECT_TRUE(bits::equal(measures(obs, pred, 5, &w, first), {mape, mpe, 8.0 / 3.5}));
  }
  EXPECT_TRUE(bits::equal(measures(obs, pred, 5, &w, 2), {25.0, 25.0, 7.0 / 2.5}));
  EXPECT_TRUE(bits::equal(measures(obs, pred, 3, &w, 2), {0.0, kMissing, 3.0}));
  for (const int first : {6, INT_MAX}) {
    EXPECT_TRUE(bits::equal(measures(obs, pred, 5, &w, first), {0.0, kMissing, kMissing}));
  }
  EXPECT_EQ(MAPE(&obs, &pred, 5, nullptr, 0), 25.0);
  // Flagged cells are 0 to the measures that look at markers only; a weight outside is -1.
  const matrix observed(5, 1, y, false, 0, 0), predicted(5, 1, fitted, false, 0, 0);
  EXPECT_TRUE(bits::equal(measures(observed, predicted, 5, &w, 0), {mape, 100.0 * 6.875 / 8.5, 25.0 / 13.5}));
  EXPECT_TRUE(
      bits::equal(measures(observed, predicted, 5, &fewer, 0), {mape, 100.0 * -1.125 / 0.5, 9.0 / 5.5}));
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
