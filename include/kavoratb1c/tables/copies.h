// Vectors and tables filled, copied and reversed. Vectors as in stats/vector_sums.h.
//
// A result is prepared by matCheck: a container of the right shape is reused, its flagged cells keeping what
// they hold after the refill with 0.0; otherwise the result is re-pointed to a new container that belongs to
// the caller. Values are copied, never flags. A result is another container than the one it is made from.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// out = the first n cells of v (n x 1).
KAV_API void V_Duplicate(const matrix* v, int n, matrix*& out);
KAV_API void V_Duplicate(const Smatrix* v, int n, Smatrix*& out);

/// out = the leading n x p block of a.
KAV_API void M_Duplicate(const matrix* a, int n, int p, matrix*& out);
KAV_API void M_Duplicate(const Smatrix* a, int n, int p, Smatrix*& out);

/// out = the first n cells of v (n x 1), last first.
KAV_API void V_Reverse(const matrix* v, int n, matrix*& out);

/// out = the first n cells of v without the one at position (1-based): n - 1 cells, the first ones when there
/// is no such position.
KAV_API void V_RemoveVal(const matrix* v, int n, int position, matrix*& out);
