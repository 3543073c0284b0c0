// Rows that take off multiples of other rows, some cells of each side by side. Compiled once for each
// instruction set, as product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

constexpr Index kSides = kSideVectors * kLanes;

void subtract(const RowTerms& terms, Vector* sums) {
  const double* factor = terms.factors;
  const double* cells = terms.rows;
  for (Index k = 0; k < terms.count; ++k) {
    for (Index v = 0; v < kSideVectors; ++v) sums[v] -= load(cells + v * kLanes) * *factor;
    factor += terms.factorStep;
    cells += terms.rowStep;
  }
}

}  // namespace

void subtractRows(const RowTerms& terms) {
  Vector sums[kSideVectors];
  for (Index v = 0; v < kSideVectors; ++v) sums[v] = load(terms.row + v * kLanes);
  subtract(terms, sums);
  for (Index v = 0; v < kSideVectors; ++v) store(terms.row + v * kLanes, sums[v]);
}

void backSubstitute(const double* u, std::ptrdiff_t n, double* x) {
  for (Index i = n - 1; i >= 0; --i) {
    double* row = x + kSides * i;
    Vector sums[kSideVectors];
    for (Index v = 0; v < kSideVectors; ++v) sums[v] = load(row + v * kLanes);
    subtract({row, u + n * i + i + 1, 1, row + kSides, kSides, n - i - 1}, sums);
    for (Index v = 0; v < kSideVectors; ++v) store(row + v * kLanes, sums[v] / u[n * i + i]);
  }
}

}  // namespace kav::kernels::KAV_ISA
