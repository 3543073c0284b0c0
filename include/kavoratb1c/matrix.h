// The numeric container: a column-major table of doubles with a missing flag for every cell, a weight for
// every row, and counts and cached statistics for every column.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/marker.h"

/// A table of nX rows and pX columns. Cell (i, j), both 0-based, lies at linear index i + nX * j; a vector is
/// a table of one column. A size below 1 means no cells.
///
/// Element rule: every access goes by linear index, and i and j are not checked separately. A read outside 0
/// .. nX*pX-1 returns -1.0; a write there changes nothing and returns -1.0. A write to a flagged cell is
/// dropped: the cell keeps its value and its flag.
///
/// The object owns its nine arrays. They are allocated at construction, never grow, and lie in one block of
/// memory that the destructor finds through them: their pointers must not be changed. A member that gives
/// another container a new shape requires that it was built with at least that many cells, and otherwise
/// leaves it unchanged. Where the new shape has more rows or columns than the container was built with, the
/// additional rows have no weights and the additional columns no counts or statistics: getters treat them as
/// outside, sums give such rows the weight 1.0.
///
/// Constructors throw std::bad_alloc when memory is exhausted or the size exceeds any memory; other members
/// throw only where stated. An exception cannot be caught across the boundary of the 32-bit Windows DLL:
/// there it ends the process.
class KAV_API matrix {
 public:
  // Fields, accessible to workers.

  int nX;          ///< rows
  int pX;          ///< columns
  double* values;  ///< nX*pX cells, column-major
  bool* missing;   ///< nX*pX flags; a flagged cell built from an array holds 0.0
  int normalized;  ///< 1 while normu and norsigma are valid
  int descValid;   ///< 1 while descmu, descsigma, weightcorr are valid for descMode; element writes clear it
  int* counts;     ///< pX; cells of the column that were not flagged at construction
  short descMode;  ///< variance mode of descmu and descsigma; -1 selects the unbiased denominator
  double* normu;   ///< pX; column centres of the normalization
  double* norsigma;   ///< pX; column scales of the normalization
  double* descmu;     ///< pX; weighted column means
  double* descsigma;  ///< pX; weighted column standard deviations
  double* weights;    ///< nX; row weights, initially 1.0
  double sumOfWeights;
  double* weightcorr;  ///< pX; variance denominators, initially the number of unflagged cells minus one

  // Construction. Unless stated otherwise no cell is flagged, and counts, weights and denominators are those
  // of a table without missing cells.

  /// Every cell 0.0, which callers must not rely on.
  matrix(int rows, int columns);

  /// Every cell v.
  matrix(int rows, int columns, int v);
  matrix(int rows, int columns, double v);

  /// From integers, which are never missing.
  ///
  /// @param a  rows * columns integers, column-major; null leaves every cell 0.0
  matrix(int rows, int columns, const int* a);
  matrix(int rows, int columns, const short* a);

  /// From doubles; every array of doubles that a macro passes arrives this way.
  ///
  /// A value at or below -1.7E+306, or NaN, is missing: the cell holds 0.0, its flag is set, and the count
  /// and the denominator of its column are lowered by one. The column of linear index k is k / rows whatever
  /// srcRows is. Cells beyond the array hold 0.0.
  ///
  /// @param a           srcRows * srcCols doubles, column-major, of which at most rows * columns are read;
  ///                    null leaves every cell 0.0
  /// @param keepAll     true stores every value unchanged, markers included, and flags nothing
  /// @param srcRows     0 stands for rows
  /// @param srcCols     0 stands for columns
  matrix(int rows, int columns, const double* a, bool keepAll, int srcRows, int srcCols);

  /// A copy with another number of rows.
  ///
  /// Cells are copied by linear index: with fewer rows they are the first rows of src only when src has one
  /// column. Cells beyond those of src hold -1.0. A cell that is missing in src, flagged or holding the
  /// marker, is flagged. Counts, denominators, row weights and sumOfWeights are copied unchanged, as is the
  /// normalization when src has one; rows beyond those of src have the weight 1.0.
  ///
  /// @param src  must not be null
  matrix(int rows, const matrix* src);

  matrix(const matrix&) = delete;
  ~matrix();

  /// Copies the fields, array pointers included: both objects then share their arrays, and only one of them
  /// may be destroyed. The arrays that this object had are not released. This is deliberate.
  matrix& operator=(const matrix& other);

  // Single cells, by the element rule. Loops over many cells should use the fields.

  int getNbrLines() const;
  int getNbrCols() const;

  double getElement(int k) const;
  double getElement(int i, int j) const;

  /// 1-based row and column.
  double vbget(int i, int j) const;

  /// Writes the cell unless it is flagged; the cached statistics become stale in either case.
  /// @return 0.0, or -1.0 outside
  double setElement(int k, double x);
  double setElement(int i, int j, double x);

  /// 1-based row and column.
  double vbset(int i, int j, double x);

  /// True when the cell is flagged or holds the marker; false outside.
  bool getMissing(int k) const;
  bool getMissing(int i, int j) const;

  /// Sets the flag only; value, counts, denominators and cached statistics remain unchanged. Ignored outside.
  void setMissing(int k, bool f);
  void setMissing(int i, int j, bool f);

  // Rows and columns.

  /// Sets the row weights and their sum, which is accumulated in row order.
  /// @param w  nX weights; null changes nothing
  void weighting(const double* w);

  /// Centre and scale of a column's normalization; -1.0 when there is none, or outside.
  double getNorMu(int j) const;
  double getNorSigma(int j) const;

  /// The variance denominator of a column; 1.0 when it is 0.0, so that it can always be divided
  /// by. -1.0 outside.
  double getWeightcorr(int j) const;

  // Column statistics. Rows are weighted; missing cells are left out.

  /// Mean and standard deviation of a column, from the cache; calcDescStat recomputes them when they are
  /// stale or of another mode. -1.0 outside.
  double getDescMu(int j, short mode);
  double getDescSigma(int j, short mode);

  /// Computes descmu, descsigma and weightcorr for a mode, unless they are valid for it.
  ///
  /// With c the number of present cells of a column, those of weight 0.0 included, and W the sum of their
  /// weights, weightcorr is W - W/c in mode -1 and W in any other. A column without present cells has the
  /// marker as mean and as standard deviation, and its weightcorr remains unchanged; a denominator at or
  /// below 0.0 makes the standard deviation the marker.
  ///
  /// @return 0
  int calcDescStat(short mode);

  /// Standardizes every column in place by its mean and its unbiased standard deviation (denominator W - W/c,
  /// as in calcDescStat), stores them in normu and norsigma, and the denominator in weightcorr.
  ///
  /// A column that does not vary is only centred. Flagged cells remain unchanged; an unflagged marker is
  /// transformed like any number.
  ///
  /// @return 0; -1, with nothing changed, when the container is normalized already
  int Normalize();

  /// Divides column j by its Euclidean norm over all rows, missing cells by their values; a column of norm
  /// 0.0 remains unchanged.
  /// @return 0
  int Normalize(int j);

  /// Sum of the squares of a column over all rows, missing cells by their values.
  double VInnerProd(int j) const;

  /// SProd multiplies row i by s; weighting multiplies every row r < n by s[r], but none when s is null. The
  /// row weights are neither read nor changed.
  /// @return 0.0
  double SProd(int i, double s);
  double weighting(const double* s, int n);

  /// Inverse of the nX x nX matrix in the first nX*nX cells: LU decomposition with implicit scaling and
  /// partial pivoting (Crout; Press et al., Numerical Recipes, section 2.3). Of equal pivots the last is
  /// taken. A flagged cell counts as 0.0.
  ///
  /// @param out       receives the inverse column by column, by the element rule; unchanged when the matrix
  ///                  is singular; may be this object; may be null
  /// @param singular  set to -1 when the matrix is singular, otherwise unchanged
  /// @param tol       only its sign matters: a pivot is zero when its absolute value is at most 1e-8 for a
  ///                  tol above 0.0, at most 2.220446049250313e-16 otherwise
  /// @return 0, or -1 when the matrix is singular. Throws std::bad_alloc. Cost cubic in nX.
  int inverse1(matrix* out, short& singular, double tol) const;

  // Projection steps of alternating least squares with missing cells. X is this table and t the table of the
  // other factor; column k (0-based) of t is read and column k of out is written. A cell of X that is
  // flagged, NaN or the marker is absent: its term is left out of the denominator but not of the numerator,
  // where the cell enters by its value (this is deliberate). A denominator of 0.0 or NaN is replaced by 1.0.
  // With t or out null nothing happens.

  /// Row step: out(r, k) = sum over j of X(r, j) t(j, k) / sum of t(j, k)^2, for the rows r of out. The
  /// weighted form multiplies the numerator, but not the denominator, by the weight of row r of X.
  void GaussProd(const matrix* t, int k, matrix* out) const;
  void GaussProdWeighted(const matrix* t, int k, matrix* out) const;

  /// Column step: out(c, k) = sum over i of X(i, c) t(i, k) / sum of t(i, k)^2, for the rows c of out. The
  /// weighted form multiplies the terms of the numerator by the row weights of X, those of the denominator by
  /// the row weights of t.
  void transGaussProd(const matrix* t, int k, matrix* out) const;
  void transGaussProdWeighted(const matrix* t, int k, matrix* out) const;

  /// Sum of the squares of column col over the rows i whose companion cell in m is not absent: m(idx, i) when
  /// byRow is true, otherwise m(i, idx). A companion outside m, or a null m, is not absent. The weighted form
  /// multiplies each square by the row's weight.
  double VInnerProd(int col, bool byRow, int idx, const matrix* m) const;
  double VInnerProdWeighted(int col, bool byRow, int idx, const matrix* m) const;

  // Products with this table as the first operand X, over its nX rows and pX columns. The other operands read
  // -1.0 outside, and everywhere when they are null. Unless stated otherwise missing cells enter by their
  // values. Results are written by the element rule; a null out is not written to.

  /// out = X b and out = X' b, with as many columns as b; a null b leaves out unchanged.
  void matProd(const matrix* b, matrix* out) const;
  void transMatProd(const matrix* b, matrix* out) const;

  /// Column outCol of out = X times column col of v.
  void matVecProd(const matrix* v, int col, matrix* out, int outCol) const;

  /// Scalar product of column col with column vCol of v, over the rows of X.
  double vecProd(int col, const matrix* v, int vCol) const;

  /// Adds the outer product of row i with itself, times the row's weight, to the pX x pX matrix out. A row
  /// outside changes nothing.
  void trans1vecProd(int i, matrix* out) const;

  /// Multiplies column j (VSProd) or row i (transVSProd) by s.
  void VSProd(int j, double s);
  void transVSProd(int i, double s);

  /// Sum of the squares of row i.
  double lineSqrSum(int i) const;

  /// Sum of squared differences: of column col from column otherCol of another table (VDiff), of all
  /// cells (MDiff).
  double VDiff(int col, const matrix* other, int otherCol) const;
  double MDiff(const matrix* other) const;

  /// Weighted mean of the present cells of a column in rows of a weight other than 0.0; the marker when
  /// there are none.
  double calcMu(int j) const;

  /// Replaces every unflagged cell x by 1 - x.
  void oneMinus();

  /// Subtracts the part that factor k explains: X(i, j) -= scores(i, k) loadings(j, k).
  void subtractResidual(const matrix* scores, const matrix* loadings, int k);

  /// out(i, j) = sum over k of scores(i, k) loadings(j, k), k = 0 .. factors-1, for every column j of X.
  void predictLine(int i, const matrix* scores, const matrix* loadings, int factors, matrix* out) const;

  // Transfer.

  /// Gives target the shape nX x pX and the value v in every cell.
  ///
  /// A container of that shape is refilled, flagged cells included; its flags and cached statistics remain
  /// unchanged. Any other pointer (null, or the fill pattern 0xCC.. of an uninitialized one, among them)
  /// receives a new container, which belongs to the caller; the container it pointed to is not released.
  /// Throws std::bad_alloc.
  static void matCheck(matrix*& target, int nX, int pX, double v);

  /// All cells in linear order, a flagged cell as the marker. In every form a null out is not written to.
  void copyMatTo(double* out) const;

  /// The values as stored, flagged cells included, and the sizes; a null rows or cols is not written to.
  void copyMatTo(double* out, int* rows, int* cols) const;

  /// The stored values truncated toward zero; -2147483648 for NaN and outside the range of an integer.
  void copyMatTo(int* out) const;

  /// The stored values as 16-bit booleans: 0 for exactly 0.0, -1 for any other value, NaN included.
  void copyMatTo(short* out) const;

  /// Gives dest this shape and writes the stored values by the element rule; flags are not copied. Does
  /// nothing when dest is null, as in vectorizeTo and transposeTo.
  void copyMatTo(matrix* dest) const;

  /// Copies column srcCol of src, all its rows, to column dstCol, by the element rule. Does nothing when a
  /// column is outside. In this and the next two members src must not be null.
  void copyCol(const matrix* src, int srcCol, int dstCol);

  /// Copies row srcRow of src, all its columns, to row dstRow, by the element rule. Does nothing when a
  /// row is outside.
  void copyLine(const matrix* src, int srcRow, int dstRow);

  /// Swaps row srcRow of src with row dstRow of this table. A flagged cell on either side keeps its value,
  /// which the other side still receives. Does nothing when a row is outside.
  void transferLineFrom(matrix* src, int srcRow, int dstRow);

  /// Stacks the columns in dest, which becomes nX*pX x 1, by the element rule.
  void vectorizeTo(matrix* dest) const;

  /// Writes the transpose to dest, which becomes pX x nX, by the element rule. dest may share this object's
  /// arrays; a copy is then needed (std::bad_alloc when memory is exhausted).
  void transposeTo(matrix* dest) const;

  /// Debug dump to standard output.
  void print() const;
};
