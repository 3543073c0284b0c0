// Inverses by singular values, and of the variables that are not excluded.

#include "kavoratb1c/decomp/inverses.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "decomp/kept.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/decomp/inverse_triangular.h"
#include "kavoratb1c/decomp/singular_values.h"
#include "numerics/thresholds.h"

using namespace kav;

namespace {

/// Inverts the kept part by invert(small, inverse), which says 0 or what failed.
template <class Invert>
int invertKept(int n, const matrix* excluded, const matrix* a, matrix*& inverse, Invert invert) {
  const block::Values exclusions(excluded, n);
  int size = n;
  for (int i = 0; i < n; ++i) size -= exclusions[i] > 0.0 ? 1 : 0;
  const std::vector<int> kept = kept::variables(excluded, n);
  matrix small(size, size, 0.0), smallInverse(size, size, 0.0);
  kept::extract(a, n, kept, small);
  const int status = size < 1 ? 0 : invert(small, smallInverse);
  if (status == 0) kept::scatter(smallInverse, kept, n, inverse);
  return status;
}

}  // namespace

int M_InvGeneralized(const matrix* a, int n, matrix* g, double tolerance, int& rank) {
  rank = 0;
  if (n < 1) return 0;
  matrix x(n, n), w(n + 1, 1, 0.0), u(n, n, 0.0), v(n, n, 0.0);
  block::copyTo(block::Values(a, n, n), n, n, x.values);
  int info;
  M_SVDecomp(&x, n, n, &w, &u, n, &v, n, 21, info);
  if (info < 0) return -1;
  // NaN is not below the tolerance.
  while (rank < n && !(w.values[rank] < tolerance)) {
    w.values[rank] = 1.0 / w.values[rank];
    ++rank;
  }
  std::fill(w.values + rank, w.values + n, 0.0);
  M_ProductADiagVTrA(&u, n, n, &w, g);
  return 0;
}

int cCleanConstraintsAndInvert(int n, const matrix* excluded, const matrix* a, matrix*& inverse) {
  return invertKept(n, excluded, a, inverse, [](const matrix& small, matrix& result) {
    if (small.nX == 1) {
      const double value = small.values[0] == 0.0 ? kZero : small.values[0];
      result.values[0] = 1.0 / value;
      return 0;
    }
    short singular = kFalse;
    return small.inverse1(&result, singular, kZero);
  });
}

int cCleanConstraintsAndInvertTriang(int n, const matrix* excluded, const matrix* t, short lower,
                                     matrix*& inverse) {
  return invertKept(n, excluded, t, inverse, [=](const matrix& small, matrix& result) {
    matrix* out = &result;
    return M_InverseTriang(&small, small.nX, lower, out, kZero);
  });
}
