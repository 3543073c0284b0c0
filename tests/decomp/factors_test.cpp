#include "kavoratb1c/decomp/factors.h"

#include <gmock/gmock.h>

#include "kavoratb1c/decomp/eigen.h"
#include "support/residuals.h"

using square::cells;

TEST(Factors, EigenvaluesAreKeptAndSelected) {
  struct {
    short drop;
    double minimum, cumulative;
    int most;
    double kaiser;
    int kept, selected;
  } const cases[] = {{-1, 0.8, 0, 0, 0, 3, 3}, {1, 0.8, 0, 0, 1, 4, 2},      {-1, 0.5, 80, 0, 0, 4, 2},
                     {-1, 0.5, 0, 3, 0, 4, 3}, {-1, 0.5, 100.1, 9, 0, 4, 4}, {-1, 0.5, 99, 3, 4, 4, 0},
                     {-1, 9, 0, 0, 0, 1, 1},   {0, 9, 0, 0, 0, 4, 4}};
  for (const auto& c : cases) {
    const double last = c.drop == -1 ? 0.5 : 0.0, total[] = {4, 6, 7, 7 + last};
    const auto values = cells(4, 1, {4, 2, 1, 0.5}), percentages = cells(4, 1, {9, 9, 9, 9});
    matrix *v = values.get(), *out = percentages.get();
    int kept = 58, selected = 58;
    EXPECT_EQ(FilterEigen(v, 4, c.drop, c.minimum, c.cumulative, c.most, c.kaiser, kept, selected, out), 0);
    EXPECT_TRUE(kept == c.kept && selected == c.selected && v->values[3] == last) << kept << ", " << selected;
    for (int k = 0; k < 4; ++k)
      EXPECT_NEAR(out->values[k], k < kept ? 100.0 * v->values[k] / total[kept - 1] : 0.0, 1e-13);
  }
}

TEST(Factors, CosinesAndBiplots) {
  const auto f = cells(4, 2, {3, 0, 1, -2, 4, 0, NAN, 0}), loadings = cells(1, 2, {2, 9}),
             values = cells(2, 1, {4, 0}), cosines = cells(4, 2, {7, 7, 7, 7, 7, 7, 7, 7});
  matrix *out = cosines.get(), *scores = nullptr, *scaled = nullptr;
  cosines->setMissing(3, 1, true);
  cComputeCosines(f.get(), 4, 2, out);
  EXPECT_TRUE(holds(*out, 4, 2, {9. / 25., 7, 7, 1, 16. / 25., 7, 7, 7}));
  BiplotTransData(f.get(), loadings.get(), loadings.get(), 4, 1, 1, 2, values.get(), 3.0, 0.5, scores,
                  scaled);
  const std::unique_ptr<matrix> first(scores), second(scaled);
  EXPECT_TRUE(holds(*scores, 5, 2, {18, 0, 6, -12, 12, 0, 0, 0, 0, 0}) && holds(*scaled, 1, 2, {2 / 6., 0}));
  // With no supplementary rows, in the containers that fit.
  scores = out;
  BiplotTransData(f.get(), nullptr, loadings.get(), 4, 7, 1, 2, values.get(), 1.0, 0.0, scores, scaled);
  EXPECT_TRUE(scores == out && scaled == second.get());
  EXPECT_TRUE(holds(*scores, 4, 2, {3, 0, 1, -2, 0, 0, 0, 0}) && holds(*scaled, 1, 2, {2, 0}));
}
