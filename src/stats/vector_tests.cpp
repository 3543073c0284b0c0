#include "kavoratb1c/stats/vector_tests.h"

#include <algorithm>

#include "access/usable.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

template <class Test>
bool everyCell(const matrix* x, int n, Test test) {
  const block::Values cells(x, n);
  return std::all_of(cells.data(), cells.data() + std::max(n, 0), test);
}

bool isIn(double x, double lower, double upper, bool strictly) {
  return strictly ? x > lower && x < upper : x >= lower && x <= upper;
}

}  // namespace

short V_IsConstant(const matrix* x, int n) {
  if (n < 2) return kTrue;
  const block::Values cells(x, n);
  const double first = cells[0];
  return asFlag(std::all_of(cells.data() + 1, cells.data() + n, [=](double cell) { return cell == first; }));
}

short V_Is01(const matrix* x, int n) {
  return asFlag(everyCell(x, n, [](double cell) { return cell == 0.0 || cell == 1.0; }));
}

short V_IsWeights(const matrix* x, int n) { return asFlag(V_Sum2(x, n) > 0.0); }

short V_IsCWeights(const matrix* x, int n) {
  return asFlag(V_IsWeights(x, n) == kTrue && everyCell(x, n, scalar::IsLong));
}

short V_IsIndicator(const matrix* x, int n) {
  return asFlag(V_IsWeights(x, n) == kTrue && V_Is01(x, n) == kTrue);
}

short V_IsPositive(const matrix* x, int n, short strictly) {
  return asFlag(strictly == kTrue ? everyCell(x, n, [](double cell) { return cell > 0.0; })
                                  : everyCell(x, n, [](double cell) { return cell >= 0.0; }));
}

short V_IsSorted(const matrix* x, int n, short strictly) {
  const usable::Cells cells(x, n);
  const double* before = nullptr;
  bool sorted = true;
  usable::forEach(n, usable::Present(cells), [&](int i) {
    const double* cell = cells.values() + i;
    if (before != nullptr) sorted = sorted && (strictly == kTrue ? *before < *cell : *before <= *cell);
    before = cell;
  });
  return asFlag(sorted);
}

short V_IsInInterval(const matrix* x, int n, double lower, double upper, short strictly,
                     short ignoreMissing) {
  const usable::Cells cells(x, n);
  const usable::Present present(cells);
  for (int i = 0; i < n; ++i) {
    const bool holds = present(i) ? isIn(cells[i], lower, upper, strictly == kTrue) : ignoreMissing == kTrue;
    if (!holds) return kFalse;
  }
  return kTrue;
}

short V_V1inferiorV2(const matrix* x, int n, const matrix* y) { return V_V1GreaterThanMatCols(y, n, x, 1); }

short V_V1GreaterThanMatCols(const matrix* w, int n, const matrix* y, int p) {
  const usable::Cells bounds(w, n);
  const usable::Present bounded(bounds);
  const block::Values cells(y, n, p);
  const block::Flags flags(y, n, p);
  for (int j = 0; j < p; ++j) {
    const double* column = cells.column(j);
    const usable::Present present(column, flags.column(j));
    for (int i = 0; i < n; ++i) {
      if (!present(i) || !bounded(i) || !(bounds[i] > column[i])) return kFalse;
    }
  }
  return kTrue;
}
