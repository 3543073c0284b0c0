#include "kavoratb1c/algebra/logarithms.h"

#include <cmath>

#include "support/residuals.h"

using namespace kav;

using square::cells;

TEST(Logarithms, AreTakenOfCellsThatArePresent) {
  const auto natural = cells(2, 3, {0, -1, 1, kMissing, 100, 0.01}), decimal = copyOf(*natural);
  natural->setMissing(0, 2, true);
  decimal->setMissing(0, 2, true);
  const short second[] = {0, 7};
  matrix* a = natural.get();
  M_LogMatrix(a, 2, 3, second);
  EXPECT_TRUE(holds(*a, 2, 3, {-HUGE_VAL, -1, 0, kMissing, 100, 0.01}));
  M_Log10Matrix(decimal.get(), 2, 3);
  EXPECT_TRUE(holds(*decimal, 2, 3, {-HUGE_VAL, NAN, 0, kMissing, 100, -2}));
}
