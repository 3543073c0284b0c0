#include "stats/vector_tests.h"

#include <algorithm>

#include "core/block.h"

short V_IsConstant(const matrix* x, int n) {
  if (n < 2) return kTrue;
  const block::Values cells(x, n);
  const double first = cells[0];
  return asFlag(std::all_of(cells.data() + 1, cells.data() + n, [=](double cell) { return cell == first; }));
}
