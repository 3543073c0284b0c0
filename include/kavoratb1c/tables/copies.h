// Vectors and tables copied and reversed.
//
// A vector is the first n cells of a container in linear order, a table its leading block of n rows and p
// columns; a cell outside the container reads -1.0, or the empty string; a null container has no cells.
// Values are copied, never flags.
//
// Results are refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller. Of
// strings every cell is written. A result must be another container than the operand.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// out = v, n x 1.
KAV_API void V_Duplicate(const matrix* v, int n, matrix*& out);
KAV_API void V_Duplicate(const Smatrix* v, int n, Smatrix*& out);

/// out = a, n x p.
KAV_API void M_Duplicate(const matrix* a, int n, int p, matrix*& out);
KAV_API void M_Duplicate(const Smatrix* a, int n, int p, Smatrix*& out);

/// out = v in reverse order, n x 1.
KAV_API void V_Reverse(const matrix* v, int n, matrix*& out);

/// out = v without the cell at a position (1-based), (n - 1) x 1. A position outside v removes the last cell.
KAV_API void V_RemoveVal(const matrix* v, int n, int position, matrix*& out);
