// Tables and vectors put side by side or one under the other.
//
// Operands are leading blocks, read as in algebra/products.h; an extent below 1 has no cells. Results are
// prepared (a container of that shape is kept, any other pointer receives a new one): 0.0 where neither
// operand lies, a reused table of strings keeps what it holds there. Values are copied, never flags: the
// marker goes through as a value. A flagged cell of a result keeps what it holds; it is another container
// than the operands. Forms that end in 2 put the result in place of the first operand. Sizes that a container
// cannot have throw std::bad_alloc.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// a (n1 x p1), at its right b (n2 x p2): max(n1, n2) x (p1 + p2).
KAV_API void HMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c);
KAV_API void HMergeTables(const Smatrix* a, int n1, int p1, const Smatrix* b, int n2, int p2, Smatrix*& c);

/// a (n1 x p1), below it b (n2 x p2): (n1 + n2) x max(p1, p2).
KAV_API void VMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c);

/// Two vectors side by side; a table and a vector; a vector and a table; a vector and one column (1-based) of
/// a table.
KAV_API void HMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& c);
KAV_API void HMergeTableVect(const matrix* a, int n, int p, const matrix* x, int n1, matrix*& c);
KAV_API void HMergeTableVect2(matrix*& a, int n, int p, const matrix* x, int n1);
KAV_API void HMergeVectTable(const matrix* x, int n1, const matrix* a, int n, int p, matrix*& c);
KAV_API void HMergeVectCol(const matrix* x, int n1, const matrix* a, int n, int column, matrix*& c);

/// One vector after the other: n1 + n2 cells.
KAV_API void VMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& z);
KAV_API void VMergeVectors(const Smatrix* x, int n1, const Smatrix* y, int n2, Smatrix*& z);
KAV_API void VMergeVectors2(matrix*& x, int n1, const matrix* y, int n2);
