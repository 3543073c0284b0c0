// First principal component of a table with missing cells, by alternating projection steps: rows regressed on
// the loadings, columns on the scores, each over the cells that are there, until the loadings stand.

#include <kavoratb1c/matrix.h>
#include <cstdio>

namespace {

// Employment and economy of eight years (thousands, percent of 1954, hundred millions); one cell each is
// missing.
constexpr int kYears = 8;
constexpr int kColumns = 4;
constexpr double kTable[kYears * kColumns] = {
    60.323, 61.122, 60.171, 61.187, 63.221,        kav::kMissing, 64.989,  63.761,         // people employed
    83.0,   88.5,   88.2,   89.5,   kav::kMissing, 98.1,          99.0,    100.0,          // prices
    23.429, 25.943, 25.805, 28.460, 32.898,        34.700,        36.539,  kav::kMissing,  // national product
    107.61, 108.63, 109.77, 110.93, 112.08,        113.27,        115.094, 116.219         // population
};

/// Scales a column of loadings to length 1 and returns how far it moved from the former one.
double settle(matrix& loadings, matrix& former) {
  loadings.Normalize(0);
  const double moved = loadings.VDiff(0, &former, 0);
  former.copyCol(&loadings, 0, 0);
  return moved;
}

}  // namespace

int main() {
  matrix table(kYears, kColumns, kTable, false, 0, 0);
  table.Normalize();

  matrix scores(kYears, 1, 0.0), loadings(kColumns, 1, 1.0), former(kColumns, 1, 0.0);
  int steps = 0;
  while (settle(loadings, former) > 1e-24 && steps < 500) {
    table.GaussProd(&loadings, 0, &scores);
    table.transGaussProd(&scores, 0, &loadings);
    ++steps;
  }
  table.GaussProd(&loadings, 0, &scores);

  double total = 0.0, left = 0.0;
  matrix residual(kYears, &table);
  residual.subtractResidual(&scores, &loadings, 0);
  for (int k = 0; k < kYears * kColumns; ++k) {
    if (table.getMissing(k)) continue;
    total += table.getElement(k) * table.getElement(k);
    left += residual.getElement(k) * residual.getElement(k);
  }
  std::printf("loadings ");
  for (int j = 0; j < kColumns; ++j) std::printf(" %8.5f", loadings.getElement(j));
  std::printf("\nscores   ");
  for (int i = 0; i < kYears; ++i) std::printf(" %8.5f", scores.getElement(i));
  std::printf("\nexplained %.4f of the variation of the cells present\n", 1.0 - left / total);
  return 0;
}
