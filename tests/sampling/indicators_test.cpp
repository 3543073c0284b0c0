// Random indicators follow their law in samples_test.cpp, with the schemes that draw rows.

#include "kavoratb1c/sampling/indicators.h"

#include "support/tables.h"

using namespace kav;

TEST(Indicators, AreOneFromAPositionToAnother) {
  for (int n = -1; n <= 4; ++n) {
    for (int from = -1; from <= 6; ++from) {
      for (int to = -1; to <= 6; ++to) {
        const auto indicator = [&](int i, int) { return i >= from && i <= to ? 1.0 : 0.0; };
        expectMakes(n, 1, indicator, [&](matrix*& x) { GenerateIndicator(x, n, from, to); });
      }
    }
  }
}
