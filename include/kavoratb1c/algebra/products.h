// Products of matrices and vectors.
//
// Operands are leading blocks: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. A vector is the first n cells of a container in linear order. Missing
// flags and markers of operands are ignored, except by M_ProductABMissing. Every sum starts from 0.0 and adds
// its terms in ascending order of the summed index; a term of three factors is (a * d) * b.
//
// Results, which must be other containers than the operands unless computed in place:
//   refilled   a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later writes to
//              it are dropped); any other pointer receives a new container, which belongs to the caller
//   caller's   a container with at least the result's cells; cells outside it are dropped, flagged ones keep
//              what they hold
//   in place   the first operand; flagged cells keep what they hold
// With any extent below 1 a refilled result holds 0.0 only, and the other kinds are left unchanged.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// C = A.B: A n x p, B p x q, C n x q (refilled).
/// @return 0, also from the other functions of this header that return an int
KAV_API int M_ProductAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// M_ProductAB with missing cells: a cell of C with a missing term (either factor flagged, or exactly the
/// marker) is flagged and keeps 0.0. Flags that C already has stay set.
KAV_API int M_ProductABMissing(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// C = A.B': A n x p, B m x p, C n x m (refilled).
KAV_API void M_ProductATrB(const matrix* a, int n, int p, const matrix* b, int m, matrix*& c);

/// C = A'.B: A n x p, B n x q, C p x q (refilled).
KAV_API void M_ProductTrAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// C = A.A', n x n, and C = A'.A, p x p (refilled). The upper triangle is computed and mirrored.
KAV_API void M_ProductATrA(const matrix* a, int n, int p, matrix*& c);
KAV_API void M_ProductTrAA(const matrix* a, int n, int p, matrix*& c);

/// C = A.D.A', n x n with D p x p, and C = A'.D.A, p x p with D n x n (refilled). Of D only the diagonal is
/// used. The upper triangle is computed and mirrored.
KAV_API void M_ProductADTrA(const matrix* a, int n, int p, const matrix* d, matrix*& c);
KAV_API void M_ProductTrADA(const matrix* a, int n, int p, const matrix* d, matrix*& c);

/// The same products with the diagonal as a vector v, of p and of n cells (caller's).
KAV_API void M_ProductADiagVTrA(const matrix* a, int n, int p, const matrix* v, matrix* c);
KAV_API void M_ProductTrADiagVA(const matrix* a, int n, int p, const matrix* v, matrix* c);

/// C(i,j) = A(i,j) D(j,j), n x p, and C(i,j) = A(j,i) D(j,j), p x n (refilled).
KAV_API void M_ProductADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c);
KAV_API void M_ProductTrADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c);

/// C(i,j) = A(i,j) v(j), C(i,j) = v(i) A(i,j), and C(i,j) = (x(i) A(i,j)) y(j), n x p (caller's).
KAV_API void M_ProductADiagV(const matrix* a, int n, int p, const matrix* v, matrix* c);
KAV_API void M_ProductDiagVA(const matrix* v, int n, const matrix* a, int p, matrix* c);
KAV_API void M_ProductDiagV1ADiagV2(const matrix* x, int n, const matrix* a, int p, const matrix* y,
                                    matrix* c);

/// C = (A.B).A', n x n with B p x p, and C = (A'.B).A, p x p with B n x n (refilled).
KAV_API void M_ProductABTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c);
KAV_API void M_ProductTrABA(const matrix* a, int n, int p, const matrix* b, matrix*& c);

/// The same products with the inverse of B in place of B. The inverse is that of matrix::inverse1, which
/// takes pivots up to 1e-8 in absolute value as zero; a singular B gives an inverse of zeros.
KAV_API void M_ProductAinvBTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c);
KAV_API void M_ProductTrAinvBA(const matrix* a, int n, int p, const matrix* b, matrix*& c);

/// w = B.v: B n x p, v p cells, w n cells (caller's).
KAV_API int M_ProductBV(const matrix* b, int n, int p, const matrix* v, matrix* w);

/// w = B'.v: v n cells, B n x q, w q x 1 (refilled).
KAV_API void M_ProductVB(const matrix* v, int n, const matrix* b, int q, matrix*& w);

/// v'.(B.v), x'.(B.y), and v'.(inv(B).v) with the inverse of M_ProductAinvBTrA; B n x n, vectors of n cells.
///
/// @return 0.0 when n is below 1
KAV_API double M_ProductTrVBV(const matrix* v, int n, const matrix* b);
KAV_API double M_ProductTrV1BV2(const matrix* x, int n, const matrix* b, const matrix* y);
KAV_API double M_ProductTrVinvBV(const matrix* v, int n, const matrix* b);

/// Frobenius inner product of two n x p matrices: the sum of A(i,j) B(i,j), which is the trace of A'.B. In
/// spite of the name no root is taken: with B = A it is the square of the norm. This is deliberate.
///
/// @return the sums of the columns, each over i ascending, added over j ascending
KAV_API double M_FrobeniusNorm(const matrix* a, int n, int p, const matrix* b);

/// Row-wise Kronecker product of A (n x p) and B (n x q): C(i, (k-1) q + l) = A(i,k) B(i,l), 1-based, n x pq
/// cells (caller's).
KAV_API void M_ProductHorizAB(const matrix* a, int n, int p, const matrix* b, int q, matrix* c);

/// M_ProductHorizAB in place of A: a container of just n x pq is kept, any other pointer receives a new one.
/// Throws std::bad_alloc when pq exceeds the columns that a container can have.
///
/// @param p  in: columns of A; out: pq, unchanged when an extent is below 1
KAV_API void M_ProductHorizAB2(matrix*& a, int n, int* p, const matrix* b, int q);

/// Interaction of two coded blocks of columns, in place of A as M_ProductHorizAB2. A product with a factor of
/// exactly 0.0 is 0.0 whatever the other factor is.
///
/// In mode 3 each column is then weighted: its entries above 2.220446049250313e-16 are divided by the sum of
/// the weights of their rows, those below -2.220446049250313e-16 by the sum of the weights of theirs. A sum
/// of 0.0 leaves its entries unchanged.
///
/// @param mode         3, or any other value: products only
/// @param weights      n cells, needed in mode 3 only: without them the products stay undivided
/// @param frequencies  pq x 1, refilled in mode 3: for each column the sum of the weights of the rows with
///                     positive entries; left unchanged in other modes
KAV_API void M_ProductDesignAB2(matrix*& a, int n, int* p, const matrix* b, int q, int mode,
                                const matrix* weights, matrix*& frequencies);
