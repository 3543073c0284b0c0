#include "kavoratb1c/tables/fills.h"

#include <climits>

#include "support/tables.h"

TEST(Fills, VectorsOfNumbersAreRefilledWhereTheyFit) {
  const auto falseInto = [](matrix*& v, int n, double) { return InitVectorToFalse(v, n); };
  for (const auto fill : {SetVectorToValue, V_SetToValue, +falseInto}) {
    for (const int n : {INT_MIN, 0, 1, 3, 4}) {
      matrix held(3, 1, 4.75), *v = &held;
      held.setMissing(1, true);
      EXPECT_EQ(fill(v, n, 2.385), 0);
      const std::unique_ptr<matrix> made(v == &held ? nullptr : v);
      EXPECT_EQ(made == nullptr, n == 3);
      const double x = fill == +falseInto ? 0.0 : 2.385;
      EXPECT_TRUE(holds(*v, n, 1, std::vector<double>(std::size_t(std::max(n, 0)), x)));
    }
  }
  for (const int n : {INT_MIN, 0, 1, 3, 4}) {
    const auto position = [](int i, int) { return i; };
    expectMakes(n, 1, position, [&](matrix*& v) { EXPECT_EQ(V_Set1toN(v, n), 0); });
  }
}

TEST(Fills, FlagsAreClearedUpToTheEnd) {
  short flags[] = {-1, -1, -1};
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags, 2), 0);
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags + 2, -1), 0);
  EXPECT_EQ(InitVARIANTBOOLToFalse(nullptr, 5), 0);
  EXPECT_EQ(std::vector<short>(flags, flags + 3), (std::vector<short>{0, 0, -1}));
}

TEST(Fills, VectorsOfStrings) {
  for (const int n : {INT_MIN, 0, 2, 3}) {
    Smatrix held(3, 1), *v = &held;
    V_SetToValueStr(v, n, u"east");
    const std::unique_ptr<Smatrix> made(v == &held ? nullptr : v);
    EXPECT_EQ(made == nullptr, n == 3);
    for (int k = 0; k < n; ++k) EXPECT_EQ(v->getElement(k), u"east");
    EXPECT_EQ(v->nX, n);
  }
}
