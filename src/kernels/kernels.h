// Dense arithmetic with a fixed order of operations, compiled for several instruction sets. Internal.
//
// A result's bits do not depend on the instruction set: vectors run across results, never along one sum, and
// multiplications and additions are not fused.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kav::kernels {

/// A table as a kernel reads it: cell (i, k) is at cells[i * row + k * column].
struct View {
  const double* cells;
  std::ptrdiff_t row;
  std::ptrdiff_t column;

  View transposed() const { return {cells, column, row}; }
};

/// A product of tables.
///
///     c(i, j) = sum over k of (a(i, k) * scale[k]) * b(k, j),   k = 0 .. depth-1 ascending, from 0.0
struct Product {
  View a;               ///< rows x depth
  View b;               ///< depth x columns
  const double* scale;  ///< depth factors, or null: then it is a(i, k) * b(k, j)
  std::ptrdiff_t scaleStride;
  std::ptrdiff_t rows, columns, depth;
  double* c;              ///< column after column
  std::ptrdiff_t stride;  ///< from column to column of c
  bool upperOnly;         ///< cells with j < i need not be computed
  bool continued;         ///< sums go on from what c holds
  /// a.row and b.column are 1, the depth is small, and behind the last cells of either kMostLanes more can be
  /// read: then they are used where they are.
  bool sideBySide = false;
};

/// Doubles of scratch memory that a product needs.
std::size_t productScratch(const Product& product);

/// to(j, i) = factor * from(i, j) for a table of rows x columns; both lie column after column.
struct Transposition {
  const double* from;
  std::ptrdiff_t fromStride;  ///< from column to column of from
  std::ptrdiff_t rows, columns;
  double factor;
  double* to;             ///< no cell of from
  std::ptrdiff_t stride;  ///< from column to column of to
};

/// Rows of some columns, and their means and sums of squares so far.
struct ColumnRows {
  const double* const* x;  ///< each column's cells in those rows, one after the other
  std::ptrdiff_t columns;
  const double *ofMean, *ofSquare;  ///< for each row w / W and w - w^2 / W, as moments::Share has them
  std::ptrdiff_t count;             ///< of rows
  double *means, *squares;          ///< one cell for each column
  double* deviations;               ///< null, or row after row: x - m
  double* weighted;                 ///< likewise: (w - w^2 / W) (x - m)
  std::ptrdiff_t stride;            ///< from row to row of both, a multiple of kMostLanes
};

/// Lanes that a kernel goes on with side by side, at most.
inline constexpr int kMostLanes = 16;

/// Rows of a table in which a column is present, for its co-moments with the others.
struct PairRows {
  const double* x;               ///< row r at x + stride r; 0.0 where a cell is missing
  const std::uint64_t* present;  ///< the same shape: all bits set where a cell is there, else 0
  std::ptrdiff_t stride;
  const int* rows;
  const double* weights;  ///< one for each of rows, not 0.0
  std::ptrdiff_t count;
};

/// Running sums of one column with the others, one cell for each of those: sum of weights, number of rows,
/// co-moment and both means over the rows that the two share.
struct PairSums {
  double *total, *count, *products, *meanA, *meanB;
};

/// A row of cells side by side that takes off multiples of others.
struct RowTerms {
  double* row;
  const double* factors;
  std::ptrdiff_t factorStep;
  const double* rows;
  std::ptrdiff_t rowStep;
  std::ptrdiff_t count;
};

/// Columns that take off multiples of a pivot's row.
struct Elimination {
  double* x;
  std::ptrdiff_t stride, rows, columns;
  const double* factors;        ///< one for each row
  const double* pivots;         ///< one for each column
  const std::uint64_t* counts;  ///< for each row: all bits but the sign where its cells count, else 0
  double* largest;  ///< for each column, out: the largest absolute value among those that count; NaN
                    ///< is none, and without any 0.0
};

/// A packed symmetric table, the lower triangle row after row, that takes off column[i] divided[j] in every
/// cell (i, j) outside the pivot's row and column; what is below the threshold in absolute value becomes 0.0.
struct Sweep {
  double* cells;
  std::ptrdiff_t order, pivot;
  const double *column, *divided;
  double threshold;
};

/// Rows of reflectLanes cells, one after the other, of columns that are reflected.
struct Reflection {
  double* rows;
  std::ptrdiff_t count;
  const double* times;  ///< null, or for each lane what of `along` is added
  const double* along;  ///< one for each row
  const double* next;   ///< null, or one for each row
  double* sums;         ///< for each lane, goes on with the sum of next times the cells as they are then
};

/// Plane rotations of pairs of columns, each pair beginning with the column that the one before ended with:
/// columns first + k step and first + (k+1) step become c x + s y and c y - s x.
struct RotationRun {
  std::ptrdiff_t first, step, count;
  const double* rotations;  ///< c, s of each
};

/// A symmetric table, both triangles, that takes off u e' + e u', and its product with a vector.
struct RankTwo {
  double* a;
  std::ptrdiff_t stride, size;
  const double *u, *e;  ///< null: the table stays
  const double* w;
  double* product;  ///< goes on with A.w, columns in ascending order
};

/// Sums of y[i] (x(i,j) + factors[j] work[i]) over the rows, for each column.
struct ColumnSums {
  const double* x;
  std::ptrdiff_t stride, rows, columns;
  const double *factors, *work;  ///< null: 0.0 is not even added
  const double* y;
  double* sums;
};

/// Columns that become (x(i,j) + factors[j] work[i]) + times[j] y[i].
struct ColumnUpdate {
  double* x;
  std::ptrdiff_t stride, rows, columns;
  const double *factors, *work;  ///< null: not added
  const double *times, *y;       ///< likewise
  const double* shares;          ///< null, or what of each column, as it is then, is added to sums
  double* sums;                  ///< one for each row; goes on, columns in ascending order
};

/// One row and others, for their heterogeneous Euclidean-overlap distances: see
/// missing/nearest_neighbours.h.
struct Distances {
  const double* rows;  ///< cell (i, j) of the others at rows[i + stride * j]; NaN where one is missing
  std::ptrdiff_t stride;
  std::ptrdiff_t columns;
  const double* row;     ///< one cell a column, likewise
  const double* ranges;  ///< one a column; where it is not above 0.0 cells are only equal or different
  double bound;
  double* squared;  ///< out
};

/// The kernels for one instruction set.
struct Table {
  const char* name;
  void (*product)(const Product& product, double* scratch);
  void (*transpose)(const Transposition& transposition);

  /// Goes on with the means and sums of squares of some columns by the weighted update of core/moments.h, in
  /// the order of the rows.
  void (*columnMoments)(const ColumnRows& rows);

  /// Columns that pairMoments goes on with side by side.
  int pairLanes;

  /// Goes on with the sums of column a with columns b .. b + pairLanes - 1, by the weighted update of
  /// core/moments.h: products += (w - w^2 / W) (x_b - m_b) (x_a - m_a), and so on, in the order of the rows.
  void (*pairMoments)(const PairRows& rows, std::ptrdiff_t a, std::ptrdiff_t b, const PairSums& sums);

  /// Cells of a row that the next two go on with side by side.
  int sides;

  /// row[c] -= factors[k] rows[k][c] for k = 0 .. count-1, one after the other, and c < sides.
  void (*subtractRows)(const RowTerms& terms);

  /// Solves U x = y in place, x holding y row by row, `sides` cells a row: for i = n-1 down to 0
  ///
  ///     x(i) = (y(i) - u(i, i+1) x(i+1) - u(i, i+2) x(i+2) - ...) / u(i, i)
  ///
  /// @param u  n x n, row after row; cells left of the diagonal are not looked at
  void (*backSubstitute)(const double* u, std::ptrdiff_t n, double* x);

  /// x(i, j) -= factors[i] pivots[j], and the largest of each column.
  void (*eliminate)(const Elimination& elimination);

  /// Columns that reflect goes on with side by side, a lane each.
  int reflectLanes;
  void (*reflect)(const Reflection& reflection);

  /// Rows that rotate goes on with side by side: cell (i, j) of some is at columns[rotateLanes * j + i].
  int rotateLanes;
  void (*rotate)(double* columns, const RotationRun* runs, std::ptrdiff_t count);

  void (*rankTwo)(const RankTwo& update);
  void (*columnSums)(const ColumnSums& sums);
  void (*updateColumns)(const ColumnUpdate& update);

  void (*sweep)(const Sweep& sweep);

  /// Rows that the next one goes on with side by side, a lane each.
  int distanceLanes;

  /// Squared distances of a row to that many others, the terms added in the order of the columns.
  /// @return false as soon as all of them have reached the bound (NaN: none does); then they are not known to
  ///         their end
  bool (*distances)(const Distances& distances);
};

/// Those that this processor and system can run, the plainest first, and how many they are.
const Table* const* supported(int* count);

/// The best of them, chosen when the library is loaded.
const Table& best();

}  // namespace kav::kernels
