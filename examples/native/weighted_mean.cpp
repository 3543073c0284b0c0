// A native program: the weighted mean of a column with a missing cell.

#include <kavoratb1c/matrix.h>
#include <kavoratb1c/stats/vector_sums.h>
#include <cstdio>

int main() {
  const double prices[] = {12.5, kav::kMissing, 11.0, 14.25};
  const double quantities[] = {3.0, 1.0, 2.0, 4.0};
  const short excluded[4] = {};
  const matrix x(4, 1, prices, false, 0, 0);  // the missing cell is flagged
  const matrix w(4, 1, quantities, false, 0, 0);
  std::printf("mean price %.4f, %d of %d prices known\n", V_Mean(&x, 4, excluded, &w), x.counts[0], x.nX);
}
