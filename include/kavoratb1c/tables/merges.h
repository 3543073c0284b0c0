// Tables and vectors put side by side or one below the other.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0, or the empty string; an extent below 1 means no cells. A vector is the
// first n cells of a container in linear order. Values, the marker included, are copied, flags are not.
//
// Results, which must be other containers than the operands:
//   numbers    refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
//              writes to it are dropped), so that cells of neither operand are 0.0; any other pointer
//              receives a new container, which belongs to the caller
//   strings    kept: a container of just that shape keeps what it holds in cells of neither operand; any
//              other pointer receives a new container of empty strings
//   in place   (forms ending in 2) the result replaces the first operand: a container of just that shape is
//              kept, its flagged cells keep what they hold; any other pointer receives a new one
// Sizes that a container cannot have throw std::bad_alloc.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// a (n1 x p1) with b (n2 x p2) at its right: c is max(n1, n2) x (p1 + p2).
KAV_API void HMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c);
KAV_API void HMergeTables(const Smatrix* a, int n1, int p1, const Smatrix* b, int n2, int p2, Smatrix*& c);

/// a (n1 x p1) with b (n2 x p2) below it: c is (n1 + n2) x max(p1, p2).
KAV_API void VMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c);

/// Side by side: two vectors; a table and a vector, also in place; a vector and a table; a vector and one
/// column of a table (1-based; a position below 1 gives 0.0).
KAV_API void HMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& c);
KAV_API void HMergeTableVect(const matrix* a, int n, int p, const matrix* x, int n1, matrix*& c);
KAV_API void HMergeTableVect2(matrix*& a, int n, int p, const matrix* x, int n1);
KAV_API void HMergeVectTable(const matrix* x, int n1, const matrix* a, int n, int p, matrix*& c);
KAV_API void HMergeVectCol(const matrix* x, int n1, const matrix* a, int n, int column, matrix*& c);

/// One vector after the other: (n1 + n2) x 1.
KAV_API void VMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& z);
KAV_API void VMergeVectors(const Smatrix* x, int n1, const Smatrix* y, int n2, Smatrix*& z);
KAV_API void VMergeVectors2(matrix*& x, int n1, const matrix* y, int n2);
