// Missing values and flags as macros see them.
#pragma once

#include <string>

#include "core/matrix.h"
#include "platform/export.h"

/// Whether a number from a macro is the marker: -1 when it is at or below the marker (-infinity too), else 0.
/// NaN gives 0. Not the test on arrival, which flags more.
KAV_API short IsMissingValueDbl(double v);

/// Whether a text is missing: -1 when it is empty, else 0.
KAV_API short IsMissingValueStr(const std::u16string& s);

/// Makes v a vector of n cells x, as matCheck does: refilled where the shape fits, otherwise a new container
/// that belongs to the caller.
/// @return 0
KAV_API int SetVectorToValue(matrix*& v, int n, double x);

/// SetVectorToValue with 0.0.
KAV_API int InitVectorToFalse(matrix*& v, int n);

/// Writes 0 into n flags; nothing when n is below 1 or a is null.
/// @return 0
KAV_API int InitVARIANTBOOLToFalse(short* a, int n);
