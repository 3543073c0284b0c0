// Vectors and flags filled.
//
// A container of just n x 1 cells is set to the value in every cell, flagged ones included, and keeps its
// flags; any other pointer receives a new container, which belongs to the caller.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// v = n cells of value x. Both functions do the same.
/// @return 0
KAV_API int SetVectorToValue(matrix*& v, int n, double x);
KAV_API int V_SetToValue(matrix*& v, int n, double x);

/// v = n cells of 0.0.
/// @return 0
KAV_API int InitVectorToFalse(matrix*& v, int n);

/// Writes 0 into n flags; changes nothing when n is below 1 or a is null.
/// @return 0
KAV_API int InitVARIANTBOOLToFalse(short* a, int n);

/// v = 1, 2 ... n (refilled with 0.0 first: a flagged cell holds 0.0).
/// @return 0
KAV_API int V_Set1toN(matrix*& v, int n);

/// v = n strings s.
KAV_API void V_SetToValueStr(Smatrix*& v, int n, const std::u16string& s);
