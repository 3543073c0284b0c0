// The product of two tables. Compiled once for each instruction set, with KAV_ISA its namespace and
// KAV_VECTOR_BYTES the size of its vectors. Everything else has internal linkage and nothing is shared: code
// for one instruction set must not serve another.

#include "kernels/kernels.h"
#include "kernels/tiles.h"

namespace kernels::KAV_ISA {

namespace {

using Index = std::ptrdiff_t;

constexpr Index kLanes = KAV_VECTOR_BYTES / static_cast<Index>(sizeof(double));

typedef double Vector __attribute__((vector_size(KAV_VECTOR_BYTES), aligned(8), may_alias));

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

inline Vector load(const double* from) { return *reinterpret_cast<const Vector*>(from); }

inline void store(double* to, Vector x) { *reinterpret_cast<Vector*>(to) = x; }

/// Packed as tiles read them: for each k the cells of kTileRows rows side by side, 0.0 beyond the last row.
void packA(const Product& p, Index row, Index rows, Index k0, Index depth, double* to) {
  for (Index begin = 0; begin < rows; begin += kTileRows) {
    const Index used = least(kTileRows, rows - begin);
    const double* from = p.a.cells + (row + begin) * p.a.row + k0 * p.a.column;
    for (Index k = 0; k < depth; ++k) {
      const double* cell = from + k * p.a.column;
      for (Index i = 0; i < used; ++i) to[k * kTileRows + i] = cell[i * p.a.row];
      for (Index i = used; i < kTileRows; ++i) to[k * kTileRows + i] = 0.0;
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
    for (Index k = 0; k < depth; ++k) {
      for (Index j = 0; j < kTileColumns; ++j) {
        const double cell = j < used ? from[k * p.b.row + j * p.b.column] : 0.0;
        for (Index copy = 0; copy < kCopies; ++copy) *to++ = cell;
      }
    }
  }
}

/// One tile of c, its sums in registers: they start at 0.0, or go on from what c holds.
void tile(const double* a, const double* b, Index depth, double* c, Index stride, bool continued) {
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
#if KAV_VECTOR_BYTES == 16
      const Vector factor = load(b + j * kCopies);
#else
      const double factor = b[j];
#endif
      for (Index v = 0; v < kTileVectors; ++v) sums[j][v] += cells[v] * factor;
    }
    a += kTileRows;
    b += kTileColumns * kCopies;
  }
  for (Index j = 0; j < kTileColumns; ++j) {
    for (Index v = 0; v < kTileVectors; ++v) store(c + j * stride + v * kLanes, sums[j][v]);
  }
}

/// A tile that reaches beyond c, in a tile of its own.
void edgeTile(const double* a, const double* b, Index depth, double* c, Index stride, Index rows,
              Index columns, bool continued) {
  double whole[kTileRows * kTileColumns] = {};
  for (Index j = 0; continued && j < columns; ++j) {
    for (Index i = 0; i < rows; ++i) whole[i + j * kTileRows] = c[i + j * stride];
  }
  tile(a, b, depth, whole, kTileRows, continued);
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

/// The tiles of one packed block of a with the packed columns of b.
void blockProduct(const Product& p, const double* a, const double* b, Index row, Index rows, Index column,
                  Index columns, Index depth, bool continued) {
  for (Index j = 0; j < columns; j += kTileColumns) {
    for (Index i = 0; i < rows; i += kTileRows) {
      if (p.upperOnly && column + j + kTileColumns <= row + i) continue;
      const double* tileA = a + i * depth;
      const double* tileB = b + j * depth * kCopies;
      double* c = p.c + (row + i) + (column + j) * p.stride;
      const Index usedRows = least(kTileRows, rows - i), usedColumns = least(kTileColumns, columns - j);
      if (usedRows == kTileRows && usedColumns == kTileColumns) {
        tile(tileA, tileB, depth, c, p.stride, continued);
      } else {
        edgeTile(tileA, tileB, depth, c, p.stride, usedRows, usedColumns, continued);
      }
    }
  }
}

}  // namespace

void product(const Product& p, double* scratch) {
  if (isSmall(p)) {
    smallProduct(p);
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

}  // namespace kernels::KAV_ISA
