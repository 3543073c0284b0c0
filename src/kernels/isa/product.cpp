// The product of two tables. Compiled once for each instruction set, see vectors.h. Everything else has
// internal linkage.

#include "kernels/isa/functions.h"
#include "kernels/tiles.h"

namespace kav::kernels::KAV_ISA {

namespace {

// Eight vector registers hold six sums, a column of a and a factor; sixteen hold twelve sums. Without an
// instruction that spreads a double over a vector the factors of b are stored as often as a vector has lanes.
#if defined(__i386__)
constexpr Index kTileVectors = 1, kTileColumns = 6;
#elif KAV_VECTOR_BYTES == 16
constexpr Index kTileVectors = 3, kTileColumns = 4;
#else
constexpr Index kTileVectors = 2, kTileColumns = 6;
#endif
constexpr Index kTileRows = kTileVectors * kLanes;
constexpr Index kCopies = KAV_VECTOR_BYTES == 16 ? 2 : 1;
static_assert(kBlockRows % kTileRows == 0 && kBlockColumns % kTileColumns == 0);
static_assert(kTileRows <= kMostTileRows && kTileColumns <= kMostTileColumns);

inline Index least(Index a, Index b) { return a < b ? a : b; }

/// Cells that lie side by side in memory, `width` for each k, one group after the other.
template <Index width>
void packNeighbours(const double* from, Index step, Index depth, double* to) {
  for (Index k = 0; k < depth; ++k) {
    for (Index i = 0; i < width; ++i) to[k * width + i] = from[k * step + i];
  }
}

/// Packed as tiles read them: for each k the cells of kTileRows rows side by side, 0.0 beyond the last row.
void packA(const Product& p, Index row, Index rows, Index k0, Index depth, double* to) {
  for (Index begin = 0; begin < rows; begin += kTileRows) {
    const Index used = least(kTileRows, rows - begin);
    const double* from = p.a.cells + (row + begin) * p.a.row + k0 * p.a.column;
    if (used == kTileRows && p.a.row == 1) {
      packNeighbours<kTileRows>(from, p.a.column, depth, to);
    } else {
      for (Index k = 0; k < depth; ++k) {
        const double* cell = from + k * p.a.column;
        for (Index i = 0; i < used; ++i) to[k * kTileRows + i] = cell[i * p.a.row];
        for (Index i = used; i < kTileRows; ++i) to[k * kTileRows + i] = 0.0;
      }
    }
    if (p.scale != nullptr) {
      for (Index k = 0; k < depth; ++k) {
        const double factor = p.scale[(k0 + k) * p.scaleStride];
        for (Index i = 0; i < used; ++i) to[k * kTileRows + i] *= factor;
      }
    }
    to += depth * kTileRows;
  }
}

/// The same for columns of b, each cell kCopies times.
void packB(const Product& p, Index column, Index columns, Index k0, Index depth, double* to) {
  for (Index begin = 0; begin < columns; begin += kTileColumns) {
    const Index used = least(kTileColumns, columns - begin);
    const double* from = p.b.cells + k0 * p.b.row + (column + begin) * p.b.column;
    if (used == kTileColumns && p.b.column == 1 && kCopies == 1) {
      packNeighbours<kTileColumns>(from, p.b.row, depth, to);
      to += depth * kTileColumns;
      continue;
    }
    for (Index k = 0; k < depth; ++k) {
      for (Index j = 0; j < kTileColumns; ++j) {
        const double cell = j < used ? from[k * p.b.row + j * p.b.column] : 0.0;
        for (Index copy = 0; copy < kCopies; ++copy) *to++ = cell;
      }
    }
  }
}

/// Where a tile finds the cells of a and b for each k: packed, or side by side in tables.
struct Packed {
  static constexpr Index stepA = kTileRows, stepB = kTileColumns * kCopies, copies = kCopies;
};
struct SideBySide {
  Index stepA, stepB;
  static constexpr Index copies = 1;
};

/// One tile of c, its sums in registers: they start at 0.0, or go on from what c holds.
template <class Place>
void tile(const Place& place, const double* a, const double* b, Index depth, double* c, Index stride,
          bool continued) {
  Vector sums[kTileColumns][kTileVectors];
  for (Index j = 0; j < kTileColumns; ++j) {
    for (Index v = 0; v < kTileVectors; ++v) {
      sums[j][v] = continued ? load(c + j * stride + v * kLanes) : Vector{};
    }
  }
  for (Index k = 0; k < depth; ++k) {
    Vector cells[kTileVectors];
    for (Index v = 0; v < kTileVectors; ++v) cells[v] = load(a + v * kLanes);
    for (Index j = 0; j < kTileColumns; ++j) {
      if constexpr (Place::copies == kLanes) {
        const Vector factor = load(b + j * kLanes);
        for (Index v = 0; v < kTileVectors; ++v) sums[j][v] += cells[v] * factor;
      } else {
        const double factor = b[j];
        for (Index v = 0; v < kTileVectors; ++v) sums[j][v] += cells[v] * factor;
      }
    }
    a += place.stepA;
    b += place.stepB;
  }
  for (Index j = 0; j < kTileColumns; ++j) {
    for (Index v = 0; v < kTileVectors; ++v) store(c + j * stride + v * kLanes, sums[j][v]);
  }
}

/// The same of rows x columns cells, where fewer than a tile's in a tile of its own.
template <class Place>
void tile(const Place& place, const double* a, const double* b, Index depth, double* c, Index stride,
          Index rows, Index columns, bool continued) {
  if (rows >= kTileRows && columns >= kTileColumns) {
    tile(place, a, b, depth, c, stride, continued);
    return;
  }
  rows = least(rows, kTileRows);
  columns = least(columns, kTileColumns);
  double whole[kTileRows * kTileColumns] = {};
  for (Index j = 0; continued && j < columns; ++j) {
    for (Index i = 0; i < rows; ++i) whole[i + j * kTileRows] = c[i + j * stride];
  }
  tile(place, a, b, depth, whole, kTileRows, continued);
  for (Index j = 0; j < columns; ++j) {
    for (Index i = 0; i < rows; ++i) c[i + j * stride] = whole[i + j * kTileRows];
  }
}

/// Without packing: for each column of c the columns of a, one after the other, each on top of the sums so
/// far.
void smallProduct(const Product& p) {
  for (Index j = 0; j < p.columns; ++j) {
    double* c = p.c + j * p.stride;
    for (Index i = 0; !p.continued && i < p.rows; ++i) c[i] = 0.0;
    for (Index k = 0; k < p.depth; ++k) {
      const double* a = p.a.cells + k * p.a.column;
      const double factor = p.b.cells[k * p.b.row + j * p.b.column];
      if (p.scale != nullptr) {
        const double scale = p.scale[k * p.scaleStride];
        for (Index i = 0; i < p.rows; ++i) c[i] += (a[i * p.a.row] * scale) * factor;
      } else if (p.a.row == 1) {
        for (Index i = 0; i < p.rows; ++i) c[i] += a[i] * factor;
      } else {
        for (Index i = 0; i < p.rows; ++i) c[i] += a[i * p.a.row] * factor;
      }
    }
  }
}

/// Whether a tile has cells that are wanted.
inline bool isWanted(const Product& p, Index row, Index column) {
  return !p.upperOnly || column + kTileColumns > row;
}

/// The tiles of one packed block of a with the packed columns of b.
void blockProduct(const Product& p, const double* a, const double* b, Index row, Index rows, Index column,
                  Index columns, Index depth, bool continued) {
  for (Index j = 0; j < columns; j += kTileColumns) {
    for (Index i = 0; i < rows; i += kTileRows) {
      if (!isWanted(p, row + i, column + j)) continue;
      tile(Packed(), a + i * depth, b + j * depth * kCopies, depth, p.c + (row + i) + (column + j) * p.stride,
           p.stride, rows - i, columns - j, continued);
    }
  }
}

/// The tiles of tables that are used where they are.
void productInPlace(const Product& p) {
  const SideBySide place = {p.a.column, p.b.row};
  for (Index j = 0; j < p.columns; j += kTileColumns) {
    for (Index i = 0; i < p.rows; i += kTileRows) {
      if (!isWanted(p, i, j)) continue;
      tile(place, p.a.cells + i, p.b.cells + j, p.depth, p.c + i + j * p.stride, p.stride, p.rows - i,
           p.columns - j, p.continued);
    }
  }
}

}  // namespace

void product(const Product& p, double* scratch) {
  if (isSmall(p)) {
    smallProduct(p);
    return;
  }
  if (p.sideBySide) {
    productInPlace(p);
    return;
  }
  double* const packedA = scratch;
  double* const packedB = scratch + kBlockRows * least(p.depth, kBlockDepth);
  for (Index column = 0; column < p.columns; column += kBlockColumns) {
    const Index columns = least(kBlockColumns, p.columns - column);
    for (Index k = 0; k < p.depth; k += kBlockDepth) {
      const Index depth = least(kBlockDepth, p.depth - k);
      packB(p, column, columns, k, depth, packedB);
      for (Index row = 0; row < p.rows; row += kBlockRows) {
        const Index rows = least(kBlockRows, p.rows - row);
        if (p.upperOnly && column + columns <= row) break;
        packA(p, row, rows, k, depth, packedA);
        blockProduct(p, packedA, packedB, row, rows, column, columns, depth, k > 0 || p.continued);
      }
    }
  }
}

}  // namespace kav::kernels::KAV_ISA
