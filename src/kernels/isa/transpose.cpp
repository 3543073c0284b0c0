// Tables transposed, and scaled on the way. Compiled once for each instruction set, as product.cpp is.

#include <cstdint>

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

/// Cells that are transposed at a time, in either direction: those of a cache line.
constexpr Index kTile = 8;

/// Tiles between the one that is written and the one whose lines are asked for. A column of the target
/// touches another line in every row, which no processor foresees by itself.
constexpr Index kTilesAhead = 8;

/// kNarrowLanes x kNarrowLanes cells.
inline void transposeInRegisters(const Transposition& t, const double* from, double* to) {
  Narrow columns[kNarrowLanes], rows[kNarrowLanes];
  for (Index j = 0; j < kNarrowLanes; ++j) columns[j] = t.factor * loadNarrow(from + t.fromStride * j);
  transposeLanes(columns, rows);
  for (Index i = 0; i < kNarrowLanes; ++i) storeNarrow(to + t.stride * i, rows[i]);
}

inline void transposeTile(const Transposition& t, Index row, Index column) {
  for (Index i = row; i < row + kTile; i += kNarrowLanes) {
    for (Index j = column; j < column + kTile; j += kNarrowLanes) {
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

}  // namespace kav::kernels::KAV_ISA
