// Dense arithmetic with a fixed order of operations, compiled for several instruction sets. Internal.
//
// A result's bits do not depend on the instruction set: vectors run across results, never along one sum, and
// multiplications and additions are not fused. Matrices are column-major; a stride is the leading dimension,
// the distance from one column to the next, unless said otherwise.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kav::kernels {

/// A matrix as a kernel reads it: cell (i, k) is at cells[i * row + k * column].
struct View {
  const double* cells;
  std::ptrdiff_t row;
  std::ptrdiff_t column;

  View transposed() const { return {cells, column, row}; }
};

/// A matrix product.
///
///     c(i, j) = sum over k of (a(i, k) * scale[k]) * b(k, j),   k = 0 .. depth-1 ascending, from 0.0
struct Product {
  View a;               ///< rows x depth
  View b;               ///< depth x columns
  const double* scale;  ///< depth factors, scaleStride apart; null: the terms are a(i, k) * b(k, j)
  std::ptrdiff_t scaleStride;
  std::ptrdiff_t rows, columns, depth;
  double* c;              ///< rows x columns, out
  std::ptrdiff_t stride;  ///< leading dimension of c
  bool upperOnly;         ///< cells with i > j need not be computed
  bool continued;         ///< accumulates into c: sums start from what it holds
  /// Set only when a.row and b.column are 1, the depth is small, and kMostLanes more cells can be read behind
  /// the last cells of a and of b: then a and b are read in place, not packed.
  bool sideBySide = false;
};

/// Doubles of scratch memory that a product needs.
std::size_t productScratch(const Product& product);

/// to(j, i) = factor * from(i, j) for a matrix of rows x columns.
struct Transposition {
  const double* from;
  std::ptrdiff_t fromStride;  ///< leading dimension of from
  std::ptrdiff_t rows, columns;
  double factor;
  double* to;             ///< must not overlap from
  std::ptrdiff_t stride;  ///< leading dimension of to
};

/// A block of rows of some columns, and the columns' means and sums of squares so far.
struct ColumnRows {
  const double* const* x;  ///< the cells of each column in those rows, contiguous
  std::ptrdiff_t columns;
  const double *ofMean, *ofSquare;  ///< one per row: w / W and w - w^2 / W, see moments::Share
  std::ptrdiff_t count;             ///< rows
  double *means, *squares;          ///< one cell per column, accumulated into
  double* deviations;               ///< null, or out, row by row: x - m
  double* weighted;                 ///< likewise: (w - w^2 / W) (x - m)
  std::ptrdiff_t stride;            ///< distance of rows in both, a multiple of kMostLanes
};

/// Most lanes that any kernel processes per call.
inline constexpr int kMostLanes = 16;

/// Rows of a table in which a column has no missing cell, for its co-moments with the others.
struct PairRows {
  const double* x;               ///< row by row, row r at x + stride * r; 0.0 where a cell is missing
  const std::uint64_t* present;  ///< the same shape: all bits set where a cell is present, else 0
  std::ptrdiff_t stride;         ///< distance of rows
  const int* rows;               ///< `count` of them
  const double* weights;         ///< one per entry of rows, not 0.0
  std::ptrdiff_t count;
};

/// Running sums of one column with others, one cell per other column: sum of weights, number of rows,
/// co-moment and both means, over the rows in which both are present.
struct PairSums {
  double *total, *count, *products, *meanA, *meanB;
};

/// A row from which multiples of other rows are subtracted: row -= factors[k] rows[k].
struct RowTerms {
  double* row;
  const double* factors;
  std::ptrdiff_t factorStep;  ///< distance of factors
  const double* rows;
  std::ptrdiff_t rowStep;  ///< distance of rows
  std::ptrdiff_t count;    ///< other rows
};

/// Columns from which multiples of the pivot row are subtracted: x(i, j) -= factors[i] pivots[j].
struct Elimination {
  double* x;
  std::ptrdiff_t stride, rows, columns;
  const double* factors;        ///< one per row
  const double* pivots;         ///< one per column
  const std::uint64_t* counts;  ///< one per row: all bits but the sign if its cells are candidates, else 0
  double* largest;  ///< one per column, out: the largest candidate in absolute value, NaN passed over;
                    /// < 0.0 without a candidate
};

/// A packed symmetric matrix, the lower triangle row by row: column[i] divided[j] is subtracted from every
/// cell (i, j) outside the pivot's row and column; a result below threshold in absolute value becomes 0.0.
struct Sweep {
  double* cells;
  std::ptrdiff_t order, pivot;
  const double *column, *divided;
  double threshold;
};

/// Columns to be reflected, side by side: contiguous rows of reflectLanes cells, one column per lane.
struct Reflection {
  double* rows;
  std::ptrdiff_t count;
  const double* times;  ///< null, or one factor per lane: times * along is added to the cells
  const double* along;  ///< one per row
  const double* next;   ///< null, or one per row
  double* sums;         ///< one per lane: accumulates next times the updated cells
};

/// A run of `count` plane rotations, each of two columns, the second of which is the first of the next: for
/// k = 0 .. count-1 columns x at first + k step and y at first + (k+1) step become c x + s y and c y - s x.
struct RotationRun {
  std::ptrdiff_t first, step, count;
  const double* rotations;  ///< c, s of each rotation
};

/// A symmetric matrix A, both triangles, from which u e' + e u' is subtracted, and then its product with w.
struct RankTwo {
  double* a;
  std::ptrdiff_t stride, size;
  const double *u, *e;  ///< null: A is left unchanged
  const double* w;
  double* product;  ///< accumulates A.w, columns in ascending order
};

/// For each column j the sum over the rows i of y[i] (x(i,j) + factors[j] work[i]), from 0.0.
struct ColumnSums {
  const double* x;
  std::ptrdiff_t stride, rows, columns;
  const double *factors, *work;  ///< null: nothing is added to x(i,j), not even 0.0
  const double* y;
  double* sums;  ///< one per column, out
};

/// Columns updated: x(i,j) becomes (x(i,j) + factors[j] work[i]) + times[j] y[i].
struct ColumnUpdate {
  double* x;
  std::ptrdiff_t stride, rows, columns;
  const double *factors, *work;  ///< null: not added
  const double *times, *y;       ///< likewise
  const double* shares;          ///< null, or one factor per column
  double* sums;  ///< one per row: accumulates shares[j] times the updated x(i,j), columns in ascending order
};

/// One row and several others, for the heterogeneous Euclidean-overlap distances between them, see
/// missing/nearest_neighbours.h.
struct Distances {
  const double* rows;  ///< cell (i, j) of the others at rows[i + stride * j]; NaN where it is missing
  std::ptrdiff_t stride;
  std::ptrdiff_t columns;
  const double* row;     ///< one cell per column, NaN where it is missing
  const double* ranges;  ///< one per column; where not above 0.0 cells are only equal or different
  double bound;          ///< distances from this on are not needed
  double* squared;       ///< out, distanceLanes squared distances
};

/// The kernels for one instruction set.
struct Table {
  const char* name;
  void (*product)(const Product& product, double* scratch);
  void (*transpose)(const Transposition& transposition);

  /// Accumulates into the means and sums of squares of some columns by the weighted update of
  /// numerics/moments.h, in the order of the rows.
  void (*columnMoments)(const ColumnRows& rows);

  /// Columns that pairMoments processes per call, a lane each.
  int pairLanes;

  /// Accumulates into the sums of column a with columns b .. b + pairLanes - 1, in the order of the rows, by
  /// the weighted update of numerics/moments.h: products += (w - w^2 / W) (x_b - m_b) (x_a - m_a), and so on.
  void (*pairMoments)(const PairRows& rows, std::ptrdiff_t a, std::ptrdiff_t b, const PairSums& sums);

  /// Cells of a row that subtractRows and backSubstitute process per call, a lane each.
  int sides;

  /// row[c] -= factors[k] rows[k][c] for c = 0 .. sides-1, k = 0 .. count-1 one after the other.
  void (*subtractRows)(const RowTerms& terms);

  /// Solves U x = y in place for `sides` right-hand sides, i = n-1 down to 0; x holds y row by row, `sides`
  /// cells per row:
  ///
  ///     x(i) = (y(i) - u(i, i+1) x(i+1) - u(i, i+2) x(i+2) - ...) / u(i, i)
  ///
  /// @param u  n x n, row-major; cells left of the diagonal are ignored
  void (*backSubstitute)(const double* u, std::ptrdiff_t n, double* x);

  /// Subtracts, and finds the largest candidate of each column.
  void (*eliminate)(const Elimination& elimination);

  /// Columns that reflect processes per call, a lane each.
  int reflectLanes;
  void (*reflect)(const Reflection& reflection);

  /// Rows that rotate processes per call, a lane each: cell (i, j) is at columns[rotateLanes * j + i].
  int rotateLanes;
  void (*rotate)(double* columns, const RotationRun* runs, std::ptrdiff_t count);

  void (*rankTwo)(const RankTwo& update);
  void (*columnSums)(const ColumnSums& sums);
  void (*updateColumns)(const ColumnUpdate& update);

  void (*sweep)(const Sweep& sweep);

  /// Rows that distances processes per call, a lane each.
  int distanceLanes;

  /// Squared distances of a row to distanceLanes others, the terms added in the order of the columns.
  /// @return false, with nothing written, as soon as all have reached the bound (NaN: none ever does)
  bool (*distances)(const Distances& distances);
};

/// The tables that this processor and system can run, the plainest first, and their number.
const Table* const* supported(int* count);

/// The fastest of them, chosen when the library is loaded.
const Table& best();

}  // namespace kav::kernels
