// Means and sums of squares of several columns over the same rows. Compiled once for each instruction set, as
// product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

/// Vectors of columns whose chains of means overlap.
constexpr int kMostVectors = KAV_VECTOR_BYTES == 16 ? 4 : 3;

/// Some columns, a lane each. Beside the last one of the table that one goes along once more.
template <int vectors>
struct Columns {
  Columns(const ColumnRows& table, Index first) : begin(first), used(table.columns - first) {
    for (Index c = 0; c < vectors * kNarrowLanes; ++c) {
      const Index column = begin + (c < used ? c : used - 1);
      x[c] = table.x[column];
      mean[c / kNarrowLanes][c % kNarrowLanes] = table.means[column];
      squares[c / kNarrowLanes][c % kNarrowLanes] = table.squares[column];
    }
  }

  void put(const ColumnRows& table) const {
    for (Index c = 0; c < vectors * kNarrowLanes && c < used; ++c) {
      table.means[begin + c] = mean[c / kNarrowLanes][c % kNarrowLanes];
      table.squares[begin + c] = squares[c / kNarrowLanes][c % kNarrowLanes];
    }
  }

  /// Row r, given its cells.
  template <bool keep>
  void add(const ColumnRows& table, Index r, const Narrow* cells) {
    const double ofMean = table.ofMean[r], ofSquare = table.ofSquare[r];
    for (Index v = 0; v < vectors; ++v) {
      const Narrow d = cells[v] - mean[v];
      squares[v] += ofSquare * (d * d);
      mean[v] += ofMean * d;
      if constexpr (keep) {
        const Index at = table.stride * r + begin + v * kNarrowLanes;
        storeNarrow(table.deviations + at, d);
        storeNarrow(table.weighted + at, ofSquare * d);
      }
    }
  }

  Index begin, used;
  const double* x[vectors * kNarrowLanes];
  Narrow mean[vectors] = {}, squares[vectors] = {};
};

template <int vectors, bool keep>
void addRows(const ColumnRows& table, Index column) {
  Columns<vectors> columns(table, column);
  Index r = 0;
  for (; table.count - r >= kNarrowLanes; r += kNarrowLanes) {
    Narrow rows[kNarrowLanes][vectors];
    for (Index v = 0; v < vectors; ++v) {
      Narrow cells[kNarrowLanes], turned[kNarrowLanes];
      for (Index c = 0; c < kNarrowLanes; ++c) cells[c] = loadNarrow(columns.x[v * kNarrowLanes + c] + r);
      transposeLanes(cells, turned);
      for (Index k = 0; k < kNarrowLanes; ++k) rows[k][v] = turned[k];
    }
    for (Index k = 0; k < kNarrowLanes; ++k) columns.template add<keep>(table, r + k, rows[k]);
  }
  for (; r < table.count; ++r) {
    double cells[vectors * kNarrowLanes];
    for (Index c = 0; c < vectors * kNarrowLanes; ++c) cells[c] = columns.x[c][r];
    Narrow row[vectors];
    for (Index v = 0; v < vectors; ++v) row[v] = loadNarrow(cells + v * kNarrowLanes);
    columns.template add<keep>(table, r, row);
  }
  columns.put(table);
}

template <int vectors>
Index addTo(const ColumnRows& table, Index column) {
  if (table.deviations != nullptr) {
    addRows<vectors, true>(table, column);
  } else {
    addRows<vectors, false>(table, column);
  }
  return vectors * kNarrowLanes;
}

}  // namespace

void columnMoments(const ColumnRows& table) {
  Index column = 0;
  while (table.columns - column > (kMostVectors - 1) * kNarrowLanes) {
    column += addTo<kMostVectors>(table, column);
  }
  while (table.columns - column > kNarrowLanes) column += addTo<2>(table, column);
  if (column < table.columns) addTo<1>(table, column);
}

}  // namespace kav::kernels::KAV_ISA
