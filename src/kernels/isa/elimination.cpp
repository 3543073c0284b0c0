// Columns and rows that take off multiples of a pivot's. Compiled once for each instruction set, as
// product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

/// Columns that use the loaded factors together.
constexpr Index kColumns = sizeof(void*) == 8 ? 4 : 2;

inline Vector masked(Bits mask, Vector x) {
  return reinterpret_cast<Vector>(mask & reinterpret_cast<Bits>(x));
}

/// The larger one; NaN in x is passed over.
inline Vector larger(Vector x, Vector most) { return x > most ? x : most; }

inline double masked(std::uint64_t mask, double x) {
  return __builtin_bit_cast(double, mask& __builtin_bit_cast(std::uint64_t, x));
}

template <Index columns>
void eliminateColumns(const Elimination& e, Index first) {
  double* x[columns];
  Vector most[columns] = {};
  for (Index c = 0; c < columns; ++c) x[c] = e.x + e.stride * (first + c);
  Index i = 0;
  for (; e.rows - i >= kLanes; i += kLanes) {
    const Vector factors = load(e.factors + i);
    const Bits counts = *reinterpret_cast<const Bits*>(e.counts + i);
    for (Index c = 0; c < columns; ++c) {
      const Vector cells = load(x[c] + i) - factors * e.pivots[first + c];
      store(x[c] + i, cells);
      most[c] = larger(masked(counts, cells), most[c]);
    }
  }
  for (Index c = 0; c < columns; ++c) {
    double largest = 0.0;
    for (Index lane = 0; lane < kLanes; ++lane) largest = most[c][lane] > largest ? most[c][lane] : largest;
    for (Index k = i; k < e.rows; ++k) {
      x[c][k] -= e.factors[k] * e.pivots[first + c];
      const double size = masked(e.counts[k], x[c][k]);
      largest = size > largest ? size : largest;
    }
    e.largest[first + c] = largest;
  }
}

}  // namespace

void eliminate(const Elimination& e) {
  Index column = 0;
  for (; e.columns - column >= kColumns; column += kColumns) eliminateColumns<kColumns>(e, column);
  for (; column < e.columns; ++column) eliminateColumns<1>(e, column);
}

// The cells of the pivot's column go along and are put back: their row is one run of vectors.
void sweep(const Sweep& s) {
  const Vector least = spread(s.threshold);
  const Bits size = ~reinterpret_cast<Bits>(spread(-0.0));
  double* x = s.cells;
  for (Index i = 0; i < s.order; x += ++i) {
    if (i == s.pivot) continue;
    const double a = s.column[i], kept = i > s.pivot ? x[s.pivot] : 0.0;
    Index j = 0;
    for (; i + 1 - j >= kLanes; j += kLanes) {
      const Vector cells = load(x + j) - load(s.divided + j) * a;
      store(x + j, masked(~Bits(masked(size, cells) < least), cells));
    }
    for (; j <= i; ++j) {
      const double cell = x[j] - a * s.divided[j];
      x[j] = __builtin_fabs(cell) < s.threshold ? 0.0 : cell;
    }
    if (i > s.pivot) x[s.pivot] = kept;
  }
}

}  // namespace kav::kernels::KAV_ISA
