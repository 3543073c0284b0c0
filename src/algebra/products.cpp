#include "kavoratb1c/algebra/products.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "access/results.h"
#include "algebra/dense.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/thresholds.h"

using namespace kav;

using dense::Scale;
using dense::View;
using dense::viewOf;
using results::into;
using results::refilled;

namespace {

/// Inverse of the leading n x n block; zeros where it is singular.
std::unique_ptr<matrix> inverseOf(const matrix* b, int n, double tolerance) {
  const block::Values cells(b, n, n);
  matrix square(n, n);
  results::fillInto(&square, n, n, [&](int j) { return [x = cells.column(j)](int i) { return x[i]; }; });
  auto inverse = std::make_unique<matrix>(n, n, 0.0);
  short singular = kFalse;
  square.inverse1(inverse.get(), singular, tolerance);
  return inverse;
}

/// The diagonal of the leading block of a table, alone.
std::vector<double> diagonalOf(const matrix* d, int size) {
  std::vector<double> diagonal;
  diagonal.reserve(static_cast<std::size_t>(std::max(size, 0)));
  for (int k = 0; k < size; ++k) diagonal.push_back(d == nullptr ? kOutside : d->getElement(k, k));
  return diagonal;
}

/// c = a . diag(v) . a' into a caller's container.
void symmetricInto(const View& a, int size, int depth, const block::Values& v, matrix* c) {
  into(c, size, size, [&](block::Target& target) {
    dense::multiplySymmetric(a, size, depth, target, dense::vectorScale(v));
  });
}

/// (a.b).a' for a of size x depth.
void sandwich(const View& a, const View& b, int size, int depth, matrix*& c) {
  refilled(c, size, size, depth, [&](block::Target& target) {
    matrix half(size, depth);
    dense::multiply(a, b, size, depth, depth, half.values, size);
    dense::multiply({half.values, 1, size}, a.transposed(), size, size, depth, target);
  });
}

double quadraticForm(const matrix* x, const matrix* b, const matrix* y, int n) {
  if (n < 1) return 0.0;
  matrix product(n, 1, 0.0);
  M_ProductBV(b, n, n, y, &product);
  return V_ProductTrV1V2(x, n, &product);
}

/// All products of a column of a with one of b, row by row, the columns of b varying fastest.
template <class Of>
void crossColumns(const matrix* a, int n, int p, const matrix* b, int q, matrix* c, Of of) {
  if (!results::haveCells(n, p, q)) return;
  const block::Values left(a, n, p), right(b, n, q);
  into(c, n, results::productColumns(p, q), [&](block::Target& target) {
    double* column = target.data();
    for (int k = 0; k < p; ++k) {
      const double* x = left.column(k);
      for (int l = 0; l < q; ++l, column += target.leadingDimension()) {
        const double* y = right.column(l);
        for (int i = 0; i < n; ++i) column[i] = of(x[i], y[i]);
      }
    }
  });
}

/// The same in place of a.
template <class Of>
void crossColumnsInPlace(matrix*& a, int n, int* p, const matrix* b, int q, Of of) {
  if (p == nullptr || !results::haveCells(n, *p, q)) return;
  matrix product(n, results::productColumns(*p, q), 0.0);
  crossColumns(a, n, *p, b, q, &product, of);
  results::replace(a, product);
  *p = product.pX;
}

/// Divides the entries of a column beyond the machine epsilon by the weights of their rows, either sign by
/// its own.
///
/// @return the positive weight sum
double divideByWeights(double* column, const double* weights, int n) {
  double positive = 0.0;
  double negative = 0.0;
  for (int i = 0; i < n; ++i) {
    if (column[i] > kEpsilon) positive += weights[i];
    if (column[i] < -kEpsilon) negative += weights[i];
  }
  for (int i = 0; i < n; ++i) {
    if (column[i] > kEpsilon) {
      if (positive != 0.0) column[i] /= positive;
    } else if (column[i] < -kEpsilon && negative != 0.0) {
      column[i] /= negative;
    }
  }
  return positive;
}

}  // namespace

int M_ProductAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c) {
  refilled(c, n, q, p, [&](block::Target& target) {
    const block::Values left(a, n, p), right(b, p, q);
    dense::multiply(viewOf(left), viewOf(right), n, q, p, target);
  });
  return 0;
}

int M_ProductABMissing(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c) {
  M_ProductAB(a, n, p, b, q, c);
  if (!results::haveCells(n, p, q)) return 0;
  const block::Values left(a, n, p), right(b, p, q);
  const block::Flags leftFlags(a, n, p), rightFlags(b, p, q);
  const auto missingRow = [&](int i) {
    for (int k = 0; k < p; ++k) {
      if (isMissing(left.column(k)[i], leftFlags.column(k)[i])) return true;
    }
    return false;
  };
  const auto missingColumn = [&](int j) {
    for (int k = 0; k < p; ++k) {
      if (isMissing(right.column(j)[k], rightFlags.column(j)[k])) return true;
    }
    return false;
  };
  // Every cell of a row or column with a missing factor has a missing term.
  const auto flag = [&](int i, int j) {
    if (!c->missing[addressing::linearIndex(i, j, n)]) c->setElement(i, j, 0.0);
    c->setMissing(i, j, true);
  };
  for (int i = 0; i < n; ++i) {
    if (!missingRow(i)) continue;
    for (int j = 0; j < q; ++j) flag(i, j);
  }
  for (int j = 0; j < q; ++j) {
    if (!missingColumn(j)) continue;
    for (int i = 0; i < n; ++i) flag(i, j);
  }
  return 0;
}

void M_ProductATrB(const matrix* a, int n, int p, const matrix* b, int m, matrix*& c) {
  refilled(c, n, m, p, [&](block::Target& target) {
    const block::Values left(a, n, p), right(b, m, p);
    dense::multiply(viewOf(left), viewOf(right).transposed(), n, m, p, target);
  });
}

void M_ProductTrAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c) {
  refilled(c, p, q, n, [&](block::Target& target) {
    const block::Values left(a, n, p), right(b, n, q);
    dense::multiply(viewOf(left).transposed(), viewOf(right), p, q, n, target);
  });
}

void M_ProductATrA(const matrix* a, int n, int p, matrix*& c) {
  refilled(c, n, n, p, [&](block::Target& target) {
    dense::multiplySymmetric(viewOf(block::Values(a, n, p)), n, p, target);
  });
}

void M_ProductTrAA(const matrix* a, int n, int p, matrix*& c) {
  refilled(c, p, p, n, [&](block::Target& target) {
    dense::multiplySymmetric(viewOf(block::Values(a, n, p)).transposed(), p, n, target);
  });
}

void M_ProductADTrA(const matrix* a, int n, int p, const matrix* d, matrix*& c) {
  refilled(c, n, n, p, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    dense::multiplySymmetric(viewOf(cells), n, p, target, Scale{diagonalOf(d, p).data(), 1});
  });
}

void M_ProductTrADA(const matrix* a, int n, int p, const matrix* d, matrix*& c) {
  refilled(c, p, p, n, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    dense::multiplySymmetric(viewOf(cells).transposed(), p, n, target, Scale{diagonalOf(d, n).data(), 1});
  });
}

void M_ProductADiagVTrA(const matrix* a, int n, int p, const matrix* v, matrix* c) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p);
  symmetricInto(viewOf(cells), n, p, block::Values(v, p), c);
}

void M_ProductTrADiagVA(const matrix* a, int n, int p, const matrix* v, matrix* c) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p);
  symmetricInto(viewOf(cells).transposed(), p, n, block::Values(v, n), c);
}

void M_ProductADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c) {
  refilled(c, n, p, 1, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    const std::vector<double> diagonal = diagonalOf(d, p);
    results::fill(target, n, p, [&](int j) {
      return [x = cells.column(j), d = diagonal[static_cast<std::size_t>(j)]](int i) { return x[i] * d; };
    });
  });
}

void M_ProductTrADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c) {
  refilled(c, p, n, 1, [&](block::Target& target) {
    const block::Values cells(a, n, p);
    const std::vector<double> diagonal = diagonalOf(d, n);
    results::fill(target, p, n, [&](int j) {
      return [&cells, j, d = diagonal[static_cast<std::size_t>(j)]](int i) { return cells.column(i)[j] * d; };
    });
  });
}

void M_ProductADiagV(const matrix* a, int n, int p, const matrix* v, matrix* c) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p), factors(v, p);
  results::fillInto(c, n, p, [&](int j) {
    return [x = cells.column(j), factor = factors[j]](int i) { return x[i] * factor; };
  });
}

void M_ProductDiagVA(const matrix* v, int n, const matrix* a, int p, matrix* c) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p), factors(v, n);
  results::fillInto(c, n, p, [&](int j) {
    return [x = cells.column(j), factor = factors.data()](int i) { return factor[i] * x[i]; };
  });
}

void M_ProductDiagV1ADiagV2(const matrix* x, int n, const matrix* a, int p, const matrix* y, matrix* c) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p), left(x, n), right(y, p);
  results::fillInto(c, n, p, [&](int j) {
    return
        [x = cells.column(j), of = left.data(), factor = right[j]](int i) { return of[i] * x[i] * factor; };
  });
}

void M_ProductABTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c) {
  if (!results::haveCellsOrRefill(c, n, n, p)) return;
  const block::Values cells(a, n, p), middle(b, p, p);
  sandwich(viewOf(cells), viewOf(middle), n, p, c);
}

void M_ProductTrABA(const matrix* a, int n, int p, const matrix* b, matrix*& c) {
  if (!results::haveCellsOrRefill(c, p, p, n)) return;
  const block::Values cells(a, n, p), middle(b, n, n);
  sandwich(viewOf(cells).transposed(), viewOf(middle), p, n, c);
}

void M_ProductAinvBTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c) {
  if (results::haveCellsOrRefill(c, n, n, p)) M_ProductABTrA(a, n, p, inverseOf(b, p, kZero).get(), c);
}

void M_ProductTrAinvBA(const matrix* a, int n, int p, const matrix* b, matrix*& c) {
  if (results::haveCellsOrRefill(c, p, p, n)) M_ProductTrABA(a, n, p, inverseOf(b, n, kEpsilon).get(), c);
}

int M_ProductBV(const matrix* b, int n, int p, const matrix* v, matrix* w) {
  if (!results::haveCells(n, p)) return 0;
  const block::Values table(b, n, p), vector(v, p);
  into(w, n, 1,
       [&](block::Target& target) { dense::multiply(viewOf(table), viewOf(vector), n, 1, p, target); });
  return 0;
}

void M_ProductVB(const matrix* v, int n, const matrix* b, int q, matrix*& w) {
  refilled(w, q, 1, n, [&](block::Target& target) {
    const block::Values table(b, n, q), vector(v, n);
    kernels::best().columnSums(
        {table.data(), table.leadingDimension(), n, q, nullptr, nullptr, vector.data(), target.data()});
  });
}

double M_ProductTrVBV(const matrix* v, int n, const matrix* b) { return quadraticForm(v, b, v, n); }

double M_ProductTrV1BV2(const matrix* x, int n, const matrix* b, const matrix* y) {
  return quadraticForm(x, b, y, n);
}

double M_ProductTrVinvBV(const matrix* v, int n, const matrix* b) {
  return quadraticForm(v, inverseOf(b, n, kEpsilon).get(), v, n);
}

double M_FrobeniusNorm(const matrix* a, int n, int p, const matrix* b) {
  const block::Values left(a, n, p), right(b, n, p);
  double trace = 0.0;
  for (int j = 0; j < p && n >= 1; ++j) {
    const double* x = left.column(j);
    const double* y = right.column(j);
    double sum = 0.0;
    for (int i = 0; i < n; ++i) sum += x[i] * y[i];
    trace += sum;
  }
  return trace;
}

void M_ProductHorizAB(const matrix* a, int n, int p, const matrix* b, int q, matrix* c) {
  crossColumns(a, n, p, b, q, c, [](double x, double y) { return x * y; });
}

void M_ProductHorizAB2(matrix*& a, int n, int* p, const matrix* b, int q) {
  crossColumnsInPlace(a, n, p, b, q, [](double x, double y) { return x * y; });
}

void M_ProductDesignAB2(matrix*& a, int n, int* p, const matrix* b, int q, int mode, const matrix* weights,
                        matrix*& frequencies) {
  crossColumnsInPlace(a, n, p, b, q, [](double x, double y) { return x == 0.0 || y == 0.0 ? 0.0 : x * y; });
  if (mode != 3 || p == nullptr) return;
  const int columns = *p;
  results::refill(frequencies, columns, 1);
  if (weights == nullptr || !results::haveCells(n, columns, q)) return;
  const block::Values rowWeights(weights, n);
  block::Target sums(frequencies, columns);
  into(a, n, columns, [&](block::Target& table) {
    for (int j = 0; j < columns; ++j) {
      sums[j] = divideByWeights(table.column(j), rowWeights.data(), n);
    }
  });
  sums.store();
}
