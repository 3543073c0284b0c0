// Tables of positive numbers and their logarithms.
//
// Tables are leading n x p blocks. Row flags are n, any non-zero leaves a row out; null leaves out none.
#pragma once

#include "core/matrix.h"
#include "platform/export.h"

/// @param strictly  -1: every cell must be above 0; any other value: at least 0. NaN is neither.
/// @return -1 when every cell of the rows without a flag is, or there is none; else 0
KAV_API short M_IsPositive(const matrix* a, int n, int p, const short* rowFlags, short strictly);

/// Replaces cells that are not missing by their natural logarithm: minus infinity for 0.0, NaN below.
KAV_API void M_LogMatrix(matrix*& a, int n, int p, const short* rowFlags);

/// The same to base 10, in every row.
KAV_API void M_Log10Matrix(matrix* a, int n, int p);
