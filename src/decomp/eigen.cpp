
#include "kavoratb1c/decomp/eigen.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "access/block.h"
#include "access/checked_elements.h"
#include "access/results.h"
#include "decomp/rotations.h"
#include "decomp/tridiagonal.h"
#include "decomp/tridiagonalization.h"
#include "kavoratb1c/sort/sorts.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/plain_elements.h"

using namespace kav;

namespace {

/// Columns from which it pays to look at several at once.
constexpr int kFewColumns = 6;

/// The reduction as it is defined: z becomes the matrix of eigenvectors to start from, d and e the diagonals.
template <class Cells>
void reduce(const Cells& z, int n, double* d, double* e) {
  for (int i = n - 1; i >= 1; --i) {
    double scale = 0.0;
    for (int k = 0; k < i && i > 1; ++k) scale += std::fabs(z(i, k));
    if (scale == 0.0) {
      e[i] = z(i, i - 1);
      d[i] = 0.0;
      continue;
    }
    double h = 0.0;
    for (int k = 0; k < i; ++k) {
      z.set(i, k, z(i, k) / scale);
      h += z(i, k) * z(i, k);
    }
    const double f = z(i, i - 1), g = f >= 0.0 ? -scalar::sqr(h) : scalar::sqr(h);
    e[i] = scale * g;
    h -= f * g;
    z.set(i, i - 1, f - g);
    double sum = 0.0;
    for (int j = 0; j < i; ++j) {
      z.set(j, i, z(i, j) / h);
      double product = 0.0;
      for (int k = 0; k <= j; ++k) product += z(j, k) * z(i, k);
      for (int k = j + 1; k < i; ++k) product += z(k, j) * z(i, k);
      e[j] = product / h;
      sum += e[j] * z(i, j);
    }
    const double half = sum / (h + h);
    for (int j = 0; j < i; ++j) {
      const double u = z(i, j);
      e[j] = e[j] - half * u;
      for (int k = 0; k <= j; ++k) z.set(j, k, z(j, k) - (u * e[k] + e[j] * z(i, k)));
    }
    d[i] = h;
  }
  d[0] = 0.0;
  e[0] = 0.0;
}

/// The transformations of reduce() put together, in z.
template <class Cells>
void accumulate(const Cells& z, int n, double* d) {
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i && d[i] != 0.0; ++j) {
      double g = 0.0;
      for (int k = 0; k < i; ++k) g += z(i, k) * z(k, j);
      for (int k = 0; k < i; ++k) z.set(k, j, z(k, j) - g * z(k, i));
    }
    d[i] = z(i, i);
    z.set(i, i, 1.0);
    for (int j = 0; j < i; ++j) {
      z.set(j, i, 0.0);
      z.set(i, j, 0.0);
    }
  }
}

/// Rotations applied at once, cell by cell.
template <class Cells>
struct AtOnce {
  void rotate(int i, double c, double s) const {
    for (int k = 0; k < n; ++k) {
      const double f = z(k, i + 1);
      z.set(k, i + 1, s * z(k, i) + c * f);
      z.set(k, i, c * z(k, i) - s * f);
    }
  }

  Cells z;
  int n;
};

template <class Cells>
int decompose(const Cells& z, int n, double* d, double* e) {
  reduce(z, n, d, e);
  accumulate(z, n, d);
  AtOnce<Cells> vectors{z, n};
  return tridiagonal::qlSteps(n, d, e, vectors);
}

/// The same on plain memory: rotations are kept and applied to many rows at once.
struct Kept {
  void rotate(int i, double c, double s) { log.rotate(i + 1, i, c, s); }

  rotations::Log log;
};

int decomposePlain(const elements::Plain& z, int n, double* d) {
  householder::Tridiagonalization reduced(z, n);
  Kept vectors{rotations::Log(z, n, n)};
  const int status = tridiagonal::qlSteps(n, reduced.d.data(), reduced.e.data(), vectors);
  vectors.log.finish();
  std::copy(reduced.d.begin(), reduced.d.end(), d);
  return status;
}

/// Decreasing values, the columns of vectors with them.
void sortDecreasing(matrix*& values, matrix*& vectors, int n) {
  matrix rows(n, n);
  vectors->transposeTo(&rows);
  matrix *sorted = &rows, *none = nullptr;
  SortQ(sorted, n, n, 1, n, values, none, 0, kTrue, kTrue);
  sorted->transposeTo(vectors);
}

}  // namespace

int M_Eigen(const matrix* a, matrix*& values, matrix*& vectors, int n, int sort) {
  results::refill(values, n, 1);
  results::refill(vectors, n, n);
  if (n < 1) return 0;
  const block::Values cells(a, n, n);
  std::vector<double> d(static_cast<std::size_t>(n)), e(d.size());
  int status;
  if (n >= kFewColumns && block::isPlain(vectors, n, n)) {
    const elements::Plain z(vectors->values, vectors->nX);
    for (int j = 0; j < n; ++j) {
      for (int i = j; i < n; ++i) z.column(j)[i] = z.column(i)[j] = cells.column(j)[i];
    }
    vectors->descValid = 0;
    status = decomposePlain(z, n, d.data());
  } else {
    const elements::Checked z(vectors);
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < n; ++i) z.set(i, j, cells.column(j)[i]);
    }
    status = decompose(z, n, d.data(), e.data());
  }
  for (int k = 0; k < n; ++k) values->setElement(k, 0, d[static_cast<std::size_t>(k)]);
  if (status == 0 && sort != 0) sortDecreasing(values, vectors, n);
  return status;
}
