// Tables transposed, and scaled on the way. Compiled once for each instruction set, as product.cpp is.

#include <cstdint>

#include "kernels/kernels.h"

namespace kernels::KAV_ISA {

namespace {

using Index = std::ptrdiff_t;

/// Cells that are transposed at a time, in either direction: those of a cache line.
constexpr Index kTile = 8;

/// Tiles between the one that is written and the one whose lines are asked for. A column of the target
/// touches another line in every row, which no processor foresees by itself.
constexpr Index kTilesAhead = 8;

// Half a line is the widest vector that is worth while: the moves between lanes double with the width.
constexpr Index kLanes = KAV_VECTOR_BYTES == 16 ? 2 : 4;

typedef double Vector __attribute__((vector_size(kLanes * sizeof(double)), aligned(8), may_alias));
typedef long long Lanes __attribute__((vector_size(kLanes * sizeof(double))));

inline Vector load(const double* from) { return *reinterpret_cast<const Vector*>(from); }

inline void store(double* to, Vector x) { *reinterpret_cast<Vector*>(to) = x; }

/// kLanes x kLanes cells.
inline void transposeInRegisters(const Transposition& t, const double* from, double* to) {
#if KAV_VECTOR_BYTES == 16
  const Vector a = t.factor * load(from), b = t.factor * load(from + t.fromStride);
  store(to, __builtin_shuffle(a, b, Lanes{0, 2}));
  store(to + t.stride, __builtin_shuffle(a, b, Lanes{1, 3}));
#else
  const Vector a = t.factor * load(from), b = t.factor * load(from + t.fromStride);
  const Vector c = t.factor * load(from + 2 * t.fromStride), d = t.factor * load(from + 3 * t.fromStride);
  const Vector evenAB = __builtin_shuffle(a, b, Lanes{0, 4, 2, 6});
  const Vector evenCD = __builtin_shuffle(c, d, Lanes{0, 4, 2, 6});
  const Vector oddAB = __builtin_shuffle(a, b, Lanes{1, 5, 3, 7});
  const Vector oddCD = __builtin_shuffle(c, d, Lanes{1, 5, 3, 7});
  store(to, __builtin_shuffle(evenAB, evenCD, Lanes{0, 1, 4, 5}));
  store(to + t.stride, __builtin_shuffle(oddAB, oddCD, Lanes{0, 1, 4, 5}));
  store(to + 2 * t.stride, __builtin_shuffle(evenAB, evenCD, Lanes{2, 3, 6, 7}));
  store(to + 3 * t.stride, __builtin_shuffle(oddAB, oddCD, Lanes{2, 3, 6, 7}));
#endif
}

inline void transposeTile(const Transposition& t, Index row, Index column) {
  for (Index i = row; i < row + kTile; i += kLanes) {
    for (Index j = column; j < column + kTile; j += kLanes) {
      transposeInRegisters(t, t.from + i + t.fromStride * j, t.to + j + t.stride * i);
    }
  }
}

void transposeCells(const Transposition& t, Index row, Index rowEnd, Index column, Index columnEnd) {
  for (Index i = row; i < rowEnd; ++i) {
    for (Index j = column; j < columnEnd; ++j) {
      t.to[j + t.stride * i] = t.factor * t.from[i + t.fromStride * j];
    }
  }
}

/// Columns before the first one whose cells begin lines of the target, where that is the same in every row.
inline Index columnsBeforeALine(const Transposition& t) {
  if (t.stride % kTile != 0) return 0;
  const auto cell = static_cast<Index>(reinterpret_cast<std::uintptr_t>(t.to) / sizeof(double) % kTile);
  const Index columns = (kTile - cell) % kTile;
  return columns < t.columns ? columns : t.columns;
}

}  // namespace

void transpose(const Transposition& t) {
  const Index begin = columnsBeforeALine(t);
  const Index end = begin + (t.columns - begin) / kTile * kTile;
  const Index rows = t.rows / kTile * kTile;
  Index rowAhead = 0, columnAhead = begin;
  const auto nextAhead = [&] {
    rowAhead += kTile;
    if (rowAhead < rows) return;
    rowAhead = 0;
    columnAhead += kTile;
  };
  for (Index tile = 0; tile < kTilesAhead && rows > 0; ++tile) nextAhead();

  transposeCells(t, 0, t.rows, 0, begin);
  for (Index column = begin; column < end; column += kTile) {
    for (Index row = 0; row < rows; row += kTile) {
      if (columnAhead < end) {
        for (Index i = 0; i < kTile; ++i)
          __builtin_prefetch(t.to + columnAhead + t.stride * (rowAhead + i), 1);
        nextAhead();
      }
      transposeTile(t, row, column);
    }
  }
  transposeCells(t, rows, t.rows, begin, end);
  transposeCells(t, 0, t.rows, end, t.columns);
}

}  // namespace kernels::KAV_ISA
