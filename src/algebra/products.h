// Products of tables and vectors.
//
// Operands are blocks: the leading cells of a container, as many as the extents behind it say. Extents are
// not compared with the container's own sizes; a cell outside reads -1.0. Missing flags and markers of
// operands are not looked at, but by M_ProductABMissing. Every sum starts from 0.0 and adds its terms in
// ascending order of the summed index; a term of three factors is (a * d) * b.
//
// Results come in three kinds:
//   prepared   a reference to a pointer: a container of exactly the result's shape is refilled with 0.0,
//              otherwise the pointer receives a new one, which belongs to the caller
//   caller's   a container with at least the result's cells; those outside are dropped
//   in place   the first operand
// A flagged result cell keeps what it holds (0.0 where it was prepared). Extents below 1 leave a caller's or
// in-place result as it was. Operands and result are different containers, unless it is computed in place.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// C = A.B, n x p by p x q (prepared, n x q).
/// @return 0, here and below
KAV_API int M_ProductAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// The same; a cell of C with a missing term (either factor flagged, or exactly the marker) is flagged and
/// keeps 0.0. Flags that C has already stay set.
KAV_API int M_ProductABMissing(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// C = A.B', n x p by m x p (prepared, n x m).
KAV_API void M_ProductATrB(const matrix* a, int n, int p, const matrix* b, int m, matrix*& c);

/// C = A'.B, n x p and n x q (prepared, p x q).
KAV_API void M_ProductTrAB(const matrix* a, int n, int p, const matrix* b, int q, matrix*& c);

/// C = A.A' (prepared, n x n) and A'.A (prepared, p x p): the upper triangle summed and mirrored.
KAV_API void M_ProductATrA(const matrix* a, int n, int p, matrix*& c);
KAV_API void M_ProductTrAA(const matrix* a, int n, int p, matrix*& c);

/// C = A.D.A' (prepared, n x n; D p x p) and A'.D.A (prepared, p x p; D n x n), of D the diagonal only: the
/// upper triangle summed and mirrored.
KAV_API void M_ProductADTrA(const matrix* a, int n, int p, const matrix* d, matrix*& c);
KAV_API void M_ProductTrADA(const matrix* a, int n, int p, const matrix* d, matrix*& c);

/// The same with the diagonal as a vector v (caller's result; v of p and of n cells).
KAV_API void M_ProductADiagVTrA(const matrix* a, int n, int p, const matrix* v, matrix* c);
KAV_API void M_ProductTrADiagVA(const matrix* a, int n, int p, const matrix* v, matrix* c);

/// C(i,j) = A(i,j) D(j,j) (prepared, n x p) and A(j,i) D(j,j) (prepared, p x n).
KAV_API void M_ProductADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c);
KAV_API void M_ProductTrADiag(const matrix* a, int n, int p, const matrix* d, matrix*& c);

/// C(i,j) = A(i,j) v(j), v(i) A(i,j), and x(i) A(i,j) y(j) as (x A) y (caller's, n x p).
KAV_API void M_ProductADiagV(const matrix* a, int n, int p, const matrix* v, matrix* c);
KAV_API void M_ProductDiagVA(const matrix* v, int n, const matrix* a, int p, matrix* c);
KAV_API void M_ProductDiagV1ADiagV2(const matrix* x, int n, const matrix* a, int p, const matrix* y,
                                    matrix* c);

/// C = (A.B).A', B p x p (prepared, n x n) and (A'.B).A, B n x n (prepared, p x p).
KAV_API void M_ProductABTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c);
KAV_API void M_ProductTrABA(const matrix* a, int n, int p, const matrix* b, matrix*& c);

/// The same with the inverse of B (matrix::inverse1, which takes pivots up to 1e-8 for zero); that of a
/// singular B counts as zeros.
KAV_API void M_ProductAinvBTrA(const matrix* a, int n, int p, const matrix* b, matrix*& c);
KAV_API void M_ProductTrAinvBA(const matrix* a, int n, int p, const matrix* b, matrix*& c);

/// w = B.v, B n x p (caller's, n cells).
KAV_API int M_ProductBV(const matrix* b, int n, int p, const matrix* v, matrix* w);

/// w = B'.v, v of n cells, B n x q (prepared, q x 1).
KAV_API void M_ProductVB(const matrix* v, int n, const matrix* b, int q, matrix*& w);

/// v'.(B.v), x'.(B.y), v'.(inverse of B . v), B n x n; 0.0 when n is below 1.
KAV_API double M_ProductTrVBV(const matrix* v, int n, const matrix* b);
KAV_API double M_ProductTrV1BV2(const matrix* x, int n, const matrix* b, const matrix* y);
KAV_API double M_ProductTrVinvBV(const matrix* v, int n, const matrix* b);

/// Sum of A(i,j) B(i,j) over the n x p block, as the trace of A'.B. In spite of its name no root is taken: it
/// is the square of the norm when B is A.
KAV_API double M_FrobeniusNorm(const matrix* a, int n, int p, const matrix* b);

/// Row-wise Kronecker product: C(i, (k-1) q + l) = A(i,k) B(i,l), 1-based, A n x p, B n x q (caller's, n x
/// pq).
KAV_API void M_ProductHorizAB(const matrix* a, int n, int p, const matrix* b, int q, matrix* c);

/// The same in place of A: its container is kept when its shape is n x pq, otherwise the pointer receives a
/// new one; *p becomes pq. Extents below 1 change nothing. Throws std::bad_alloc beyond the columns that a
/// table can have.
KAV_API void M_ProductHorizAB2(matrix*& a, int n, int* p, const matrix* b, int q);

/// Interaction of two coded blocks, in place of A as M_ProductHorizAB2: a product with a factor of exactly
/// 0.0 is 0.0 whatever the other factor is. In mode 3 each column's entries above 2.220446049250313e-16
/// divide by the sum of the weights of their rows, those below -2.220446049250313e-16 by the sum of theirs; a
/// sum of 0.0 leaves them.
///
/// @param mode         other values than 3 leave the products
/// @param weights      n, required in mode 3
/// @param frequencies  in mode 3 the positive weight sum of each column (prepared, pq x 1); else not looked
/// at
KAV_API void M_ProductDesignAB2(matrix*& a, int n, int* p, const matrix* b, int q, int mode,
                                const matrix* weights, matrix*& frequencies);
