// LU factors in place, and determinants from them.

#include "kavoratb1c/decomp/lu.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "access/checked_elements.h"
#include "access/results.h"
#include "decomp/kept.h"
#include "numerics/lu_panels.h"
#include "numerics/plain_elements.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

constexpr short kSingular = -1;
constexpr short kNoPivot = 1;

/// Stands in for a pivot of 0.0, so that every table without a row of zeros has factors.
constexpr double kTinyPivot = 1e-20;

/// The determinant where there is no memory for the factors.
constexpr double kOutOfMemory = -kMissing;

/// What a decomposition hands out besides the factors.
struct Exchanges {
  explicit Exchanges(int n) : scales(static_cast<std::size_t>(n)), rows(scales.size()) {}

  /// Row `pivot` changes places with row j.
  void record(int j, int pivot) {
    if (pivot != j) {
      parity = -parity;
      scales[static_cast<std::size_t>(pivot)] = scales[static_cast<std::size_t>(j)];
    }
    rows[static_cast<std::size_t>(j)] = pivot + 1;
  }

  std::vector<double> scales;
  std::vector<int> rows;
  double parity = 1.0;
};

/// The pivot of column j, its cells below multiplied by its reciprocal.
template <class Cells>
void finish(const Cells& a, int n, int j) {
  if (a(j, j) == 0.0) a.set(j, j, kTinyPivot);
  if (j + 1 == n) return;
  const double reciprocal = 1.0 / a(j, j);
  for (int i = j + 1; i < n; ++i) a.set(i, j, a(i, j) * reciprocal);
}

/// As it is defined, column by column.
template <class Cells>
short decompose(const Cells& a, int n, Exchanges& exchanges) {
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      double sum = a(i, j);
      for (int k = 0; k < std::min(i, j); ++k) sum -= a(i, k) * a(k, j);
      a.set(i, j, sum);
    }
    const int pivot = lu::pivotRow(a, n, exchanges.scales.data(), j);
    if (pivot < 0) return kNoPivot;
    for (int k = 0; k < n && pivot != j; ++k) {
      const double cell = a(pivot, k);
      a.set(pivot, k, a(j, k));
      a.set(j, k, cell);
    }
    exchanges.record(j, pivot);
    finish(a, n, j);
  }
  return 0;
}

/// A square block in memory of its own.
struct Copy {
  Copy(const matrix* a, int size) : n(size), cells(addressing::elementsInMemory<double>(n, n)) {
    block::copyTo(block::Values(a, n, n), n, n, cells.data());
  }

  double* column(int j) { return cells.data() + std::ptrdiff_t{n} * j; }

  int n;
  std::vector<double> cells;
};

/// The same by panels. Where there is no pivot the cells are not as the definition leaves them.
short decomposePanels(Copy& copy, Exchanges& exchanges) {
  const elements::Plain a(copy.cells.data(), copy.n);
  const double* scales = exchanges.scales.data();
  const auto pivotOf = [&](int j) {
    const int pivot = lu::pivotRow(a, copy.n, scales, j);
    if (pivot >= 0) exchanges.record(j, pivot);
    return pivot;
  };
  const auto finishColumn = [&](int j) {
    finish(a, copy.n, j);
    return true;
  };
  return lu::Panels(copy.cells.data(), copy.n).decompose(pivotOf, finishColumn) ? 0 : kNoPivot;
}

/// The product of a diagonal by its logarithms, 1.0 for none.
template <class Cell>
double productOf(int n, Cell cell) {
  double sum = 0.0;
  int negatives = 0;
  for (int i = 0; i < n; ++i) {
    const double x = cell(i);
    if (x == 0.0) return 0.0;
    if (x < 0.0) ++negatives;
    sum += scalar::naturalLog(x < 0.0 ? -x : x);
  }
  const double product = scalar::exponential(sum);
  return negatives % 2 == 0 ? product : -product;
}

}  // namespace

void M_LUDecomp(matrix*& a, int n, matrix*& index, double& parity, short& status) {
  status = 0;
  parity = 1.0;
  results::keepAny(index, std::max(n, 0), 1);
  if (n < 1) return;
  Copy copy(a, n);
  Exchanges exchanges(n);
  if (!lu::rowScales(elements::Plain(copy.cells.data(), n), n, exchanges.scales.data())) {
    status = kSingular;
    return;
  }
  const Exchanges none = exchanges;
  if (block::isPlain(a, n, n) && decomposePanels(copy, exchanges) == 0) {
    for (int j = 0; j < n; ++j) std::copy_n(copy.column(j), n, a->values + std::ptrdiff_t{a->nX} * j);
    a->descValid = 0;
  } else {
    exchanges = none;
    status = decompose(elements::Checked(a), n, exchanges);
  }
  parity = exchanges.parity;
  for (int j = 0; j < n; ++j) {
    const int row = exchanges.rows[static_cast<std::size_t>(j)];
    if (row > 0) index->setElement(j, 0, row);
  }
}

double M_DeterminantTriang(const matrix* t, int n, short& status) {
  status = 0;
  return productOf(n, [=](int i) { return t == nullptr ? kOutside : t->getElement(i, i); });
}

double M_Determinant(const matrix* a, int n, short& status) {
  status = 0;
  if (n < 1) return 1.0;
  try {
    Copy copy(a, n);
    Exchanges exchanges(n);
    const elements::Plain cells(copy.cells.data(), n);
    status = lu::rowScales(cells, n, exchanges.scales.data()) ? decomposePanels(copy, exchanges) : kSingular;
    return status == 0 ? exchanges.parity * productOf(n, [&](int i) { return cells(i, i); }) : 0.0;
  } catch (...) {
    status = kSingular;
    return kOutOfMemory;
  }
}

double M_DeterminantCleaned(const matrix* a, int n, const matrix* excluded, short& status) {
  const std::vector<int> kept = kept::variables(excluded, n);
  const auto m = static_cast<int>(kept.size());
  matrix small(m, m);
  kept::extract(a, n, kept, small);
  return M_Determinant(&small, m, status);
}
