// Vectors and flags filled.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Makes v a vector of n cells x, by matCheck: a container of that shape is refilled (flags unchanged), any
/// other pointer receives a new one, which belongs to the caller.
/// @return 0
KAV_API int SetVectorToValue(matrix*& v, int n, double x);
KAV_API int V_SetToValue(matrix*& v, int n, double x);

/// The same with 0.0.
KAV_API int InitVectorToFalse(matrix*& v, int n);

/// Writes 0 into n flags; does nothing when n is below 1 or a is null.
/// @return 0
KAV_API int InitVARIANTBOOLToFalse(short* a, int n);

/// Makes v the vector 1, 2 ... n, by matCheck; a flagged cell holds 0.0.
/// @return 0
KAV_API int V_Set1toN(matrix*& v, int n);

/// Makes v a vector of n strings s, by matCheck.
KAV_API void V_SetToValueStr(Smatrix*& v, int n, const std::u16string& s);
