// The numeric container: a table of doubles, column after column, with a missing flag for every cell, a
// weight for every row, and counts and cached statistics for every column.
#pragma once

#include <cstddef>

#include "core/marker.h"
#include "platform/export.h"

/// A table of nX rows and pX columns. Cell (i, j), both 0-based, lies at linear index i + nX * j; a vector is
/// a table of one column. A size below 1 means no cells.
///
/// Access is by linear index only: a read outside 0 .. nX*pX-1 gives -1.0, a write there changes nothing and
/// returns -1.0; i and j are not looked at separately. A flagged cell cannot be overwritten by the element
/// writers.
///
/// The object owns its nine arrays. They are made once, at construction, and never grow. Their pointers must
/// not be re-pointed: all nine lie in one block of memory, which the destructor finds through them. Members
/// that give
/// another container a new shape ask that it was built with at least that many cells, and leave it alone
/// otherwise. Where such a shape has more rows or columns than the container was built with, the rows and
/// columns beyond have no weights, counts or statistics: readers treat them as outside.
///
/// Constructors throw std::bad_alloc when memory is out or no memory could hold the size; no other member of
/// this class throws unless it says so. Out of the 32-bit Windows DLL no exception can be caught: it ends
/// the process.
class KAV_API matrix {
 public:
  // Fields, open to workers.

  int nX;          ///< rows
  int pX;          ///< columns
  double* values;  ///< nX*pX cells, column after column
  bool* missing;   ///< nX*pX flags; a flagged cell built from an array holds 0.0
  int normalized;  ///< 1 while normu and norsigma are valid
  int descValid;   ///< 1 while descmu, descsigma and weightcorr are those of descMode; every write clears it
  int* counts;     ///< pX; cells of the column not flagged when the container was built
  short descMode;  ///< variance mode of descmu and descsigma; -1 asks for the unbiased denominator
  double* normu;   ///< pX; column centres of the normalization
  double* norsigma;   ///< pX; column scales of the normalization
  double* descmu;     ///< pX; weighted column means
  double* descsigma;  ///< pX; weighted column standard deviations
  double* weights;    ///< nX; row weights, 1.0 at first
  double sumOfWeights;
  double* weightcorr;  ///< pX; variance denominators, at first the cells not flagged less one

  // Construction. Unless said otherwise no cell is flagged and counts, weights and denominators are those of
  // a table without missing cells.

  /// Cells 0.0; nothing may depend on it.
  matrix(int rows, int columns);

  /// Every cell v.
  matrix(int rows, int columns, int v);
  matrix(int rows, int columns, double v);

  /// From rows * columns integers, column after column; integers are never missing.
  ///
  /// @param a  null reads nothing
  matrix(int rows, int columns, const int* a);
  matrix(int rows, int columns, const short* a);

  /// From doubles, column after column: the way in for every macro array.
  ///
  /// A value at or below -1.7E+306, or NaN, is missing: value 0.0, flag set, count and denominator of its
  /// column lowered by one. The column of linear index k is k / rows whatever srcRows is. Cells beyond those
  /// read hold 0.0.
  ///
  /// @param a           srcRows * srcCols doubles; null reads nothing; never more than rows * columns are
  /// read
  /// @param keepAll     true stores every value as it stands, markers included, and flags nothing
  /// @param srcRows     0 stands for rows
  /// @param srcCols     0 stands for columns
  matrix(int rows, int columns, const double* a, bool keepAll, int srcRows, int srcCols);

  /// A copy with another number of rows. Cells are taken by linear index, so fewer rows are the first rows
  /// only when src has one column; beyond src's cells a value is -1.0. A value that equals the marker comes
  /// out flagged. Counts and denominators are copied, weights for the new rows (1.0 beyond src's),
  /// sumOfWeights as it stands, and the normalization when src has one.
  matrix(int rows, const matrix* src);

  matrix(const matrix&) = delete;
  ~matrix();

  /// Copies the fields, array pointers included: both objects then share their arrays and only one of them
  /// may be destroyed. Deliberate; what this object held is not released.
  matrix& operator=(const matrix& other);

  // Cells, one at a time. Loops over many cells go through the fields.

  int getNbrLines() const;
  int getNbrCols() const;

  double getElement(int k) const;
  double getElement(int i, int j) const;

  /// 1-based row and column.
  double vbget(int i, int j) const;

  /// Writes unless the cell is flagged; makes the cached statistics stale either way.
  /// @return 0.0, or -1.0 outside
  double setElement(int k, double x);
  double setElement(int i, int j, double x);

  /// 1-based row and column.
  double vbset(int i, int j, double x);

  /// True when the cell is flagged or holds the marker; false outside.
  bool getMissing(int k) const;
  bool getMissing(int i, int j) const;

  /// Sets the flag alone: value, counts and denominators stay. Ignored outside.
  void setMissing(int k, bool f);
  void setMissing(int i, int j, bool f);

  // Rows and columns.

  /// Sets the row weights and their sum, added in row order.
  /// @param w  nX weights; null changes nothing
  void weighting(const double* w);

  /// Centre and scale of the normalization; -1.0 without one, or outside.
  double getNorMu(int j) const;
  double getNorSigma(int j) const;

  /// The variance denominator of a column, made 1.0 where it is 0.0 so that one can always divide; -1.0
  /// outside.
  double getWeightcorr(int j) const;

  // Statistics of the columns. Rows count with their weights; cells that are missing do not count.

  /// Cached mean and standard deviation of a column, computed by calcDescStat when they are stale or of
  /// another mode; -1.0 outside.
  double getDescMu(int j, short mode);
  double getDescSigma(int j, short mode);

  /// Fills descmu, descsigma and weightcorr for a mode, unless they are valid for it. With W the sum of the
  /// weights of the c cells that count: weightcorr is W - W/c in mode -1, else W. Without a cell both
  /// statistics are the marker and weightcorr stays; with a denominator not above 0 the deviation is the
  /// marker.
  /// @return 0
  int calcDescStat(short mode);

  /// Standardizes every column in place by its mean and unbiased deviation (denominator W - W/c), which are
  /// kept in normu and norsigma; a column that does not vary is only centred. Flagged cells stay, an
  /// unflagged marker is transformed like a number.
  /// @return 0; -1, with nothing done, when the container is normalized already
  int Normalize();

  /// Divides a column by its Euclidean length over all rows, by 1 when that is 0.
  /// @return 0
  int Normalize(int j);

  /// Sum of the squares of a column over all rows, as stored.
  double VInnerProd(int j) const;

  /// Multiplies row i by s; row r by s[r] for r < n. Cells by linear index; a null s changes nothing.
  /// @return 0.0
  double SProd(int i, double s);
  double weighting(const double* s, int n);

  /// Inverse of the nX x nX matrix: LU decomposition with implicit scaling and partial pivoting (Crout, as in
  /// Press et al., Numerical Recipes, section 2.3), of equal pivots the last. A flagged cell counts as 0.0.
  ///
  /// @param out       receives the inverse by the element rule, column by column; unchanged when singular;
  ///                  may be this matrix
  /// @param singular  set to -1 when singular, else as it was
  /// @param tol       only its sign counts: pivots up to 1e-8 in absolute value are zero when it is above
  ///                  0, up to 2.220446049250313e-16 otherwise
  /// @return 0, or -1 when singular. Throws std::bad_alloc.
  int inverse1(matrix* out, short& singular, double tol) const;

  // Projection steps of alternating least squares, with missing cells. X is this table, t the table of the
  // other factor, k the 0-based column of t that is used and of out that is written by the element rule. A
  // cell of X that is flagged, NaN or the marker is absent: its term is left out of the denominator, not of
  // the numerator, where a flagged cell counts by what it holds. A denominator of 0.0 or NaN counts as 1.0.
  // Throw std::bad_alloc.

  /// Row step: out(r, k) = sum over j of X(r, j) t(j, k) / sum of t(j, k)^2, for the rows r of out. The
  /// weighted form multiplies the numerator's terms by the weight of row r.
  void GaussProd(const matrix* t, int k, matrix* out) const;
  void GaussProdWeighted(const matrix* t, int k, matrix* out) const;

  /// Column step: out(c, k) = sum over i of X(i, c) t(i, k) / sum of t(i, k)^2, for the rows c of out. The
  /// weighted form weights the numerator by this table's rows, the denominator by those of t.
  void transGaussProd(const matrix* t, int k, matrix* out) const;
  void transGaussProdWeighted(const matrix* t, int k, matrix* out) const;

  /// Sum of the squares of column col over all rows i, but those where the companion cell of m is absent:
  /// m(idx, i) when byRow, else m(i, idx). Companions outside m are not absent. The weighted form multiplies
  /// by the row's weight.
  double VInnerProd(int col, bool byRow, int idx, const matrix* m) const;
  double VInnerProdWeighted(int col, bool byRow, int idx, const matrix* m) const;

  // Products with this table as first operand, over its own sizes; other operands read -1.0 outside, results
  // are written by the element rule. Throw std::bad_alloc.

  /// out = X.b and X'.b, with as many columns as b.
  void matProd(const matrix* b, matrix* out) const;
  void transMatProd(const matrix* b, matrix* out) const;

  /// Column outCol of out = X times column col of v.
  void matVecProd(const matrix* v, int col, matrix* out, int outCol) const;

  /// Scalar product of column col with column vCol of v, over this table's rows.
  double vecProd(int col, const matrix* v, int vCol) const;

  /// Adds the outer product of row i with itself, times the row's weight, to the pX x pX table out.
  void trans1vecProd(int i, matrix* out) const;

  /// Multiplies column j, or row i, by s.
  void VSProd(int j, double s);
  void transVSProd(int i, double s);

  /// Sum of the squares of row i.
  double lineSqrSum(int i) const;

  /// Sum of the squared differences of column col to column otherCol of another table, and of all cells.
  double VDiff(int col, const matrix* other, int otherCol) const;
  double MDiff(const matrix* other) const;

  /// Weighted mean of the present cells of a column whose row has a weight other than 0.0; the marker when
  /// there is none.
  double calcMu(int j) const;

  /// Every cell x becomes 1 - x.
  void oneMinus();

  /// Takes the part that factor k explains off: X(i, j) -= scores(i, k) loadings(j, k).
  void subtractResidual(const matrix* scores, const matrix* loadings, int k);

  /// Row i of out = the sum over the first factors k of scores(i, k) loadings(j, k), for this table's columns
  /// j.
  void predictLine(int i, const matrix* scores, const matrix* loadings, int factors, matrix* out) const;

  // Transfer.

  /// Gives target the shape nX x pX and the value v in every cell. A target of that shape is refilled, flags
  /// and statistics untouched; otherwise (also when it is null or the pattern of an uninitialized pointer) it
  /// is re-pointed to a new container, which belongs to the caller. What it pointed to before is not
  /// released. Throws std::bad_alloc.
  static void matCheck(matrix*& target, int nX, int pX, double v);

  /// All cells in linear order; a flagged cell is written as the marker. A null out writes nothing, in every
  /// form.
  void copyMatTo(double* out) const;

  /// The values as they stand, and the sizes.
  void copyMatTo(double* out, int* rows, int* cols) const;

  /// Truncated toward zero; outside the range of an integer, and for NaN, -2147483648.
  void copyMatTo(int* out) const;

  /// As 16-bit booleans: 0 for exactly 0.0, -1 for any other value, NaN included.
  void copyMatTo(short* out) const;

  /// Gives dest this shape and writes every cell by the element rule.
  void copyMatTo(matrix* dest) const;

  /// Column srcCol of src into column dstCol, cell by cell by the element rule. Nothing when a column is
  /// outside.
  void copyCol(const matrix* src, int srcCol, int dstCol);

  /// Row srcRow of src into row dstRow. Nothing when a row is outside.
  void copyLine(const matrix* src, int srcRow, int dstRow);

  /// Swaps row srcRow of src with row dstRow of this. A flagged cell on either side keeps its value while the
  /// other side still receives it.
  void transferLineFrom(matrix* src, int srcRow, int dstRow);

  /// Stacks the columns into dest: nX*pX rows, one column, element rule.
  void vectorizeTo(matrix* dest) const;

  /// Writes the transpose to dest, pX x nX, element rule. dest may share this object's arrays; then it throws
  /// std::bad_alloc when memory is out.
  void transposeTo(matrix* dest) const;

  /// Debug dump to standard output.
  void print() const;

  /// Memory for the arrays of a small container, aligned as the allocator aligns; outlives the container.
  struct Room {
    void* memory;
    std::size_t bytes;
  };

 protected:
  // For containers that live as long as one call: the arrays go into room where they fit.

  matrix(Room room, int rows, int columns, double v);
  matrix(Room room, int rows, int columns, const int* a);
  matrix(Room room, int rows, int columns, const short* a);

  /// Read only. The values may be a's own memory, where nothing in it has to be changed; there are no row
  /// weights then.
  matrix(Room room, int rows, int columns, const double* a, bool keepAll);

  /// The same with values of its own.
  struct Own {};
  matrix(Room room, int rows, int columns, const double* a, bool keepAll, Own);

 private:
  /// Everything but the values, or with values that lie elsewhere.
  matrix(Room room, int rows, int columns, double* elsewhere = nullptr);
};
