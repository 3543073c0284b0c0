// Weighted frequencies of values and labels. Vectors as in vector_sums.h.
//
// Labels are compared exactly, character code by character code. An empty label is a missing one.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Total weight of the cells with abs(x[i] - value) < epsilon. Missing cells count by their values.
///
/// @param w  n weights; a null container reads -1.0
KAV_API double V_Freq(const matrix* x, int n, const matrix* w, double value, double epsilon);

/// Total weight of the cells equal to value, truncated toward zero to an integer.
KAV_API int V_FreqLng(const matrix* x, int n, const matrix* w, int value);

/// Total weight of the labels equal to value.
KAV_API double V_FreqStr(const Smatrix* labels, int n, const matrix* w, const std::u16string& value);

/// The label with the largest total weight, of those that are neither empty nor excluded; of several the
/// first in string order. A total that is not a number is the least. Cost n log n at most.
///
/// @param exclude  n flags; null excludes nothing
/// @return the empty string when there is none
KAV_API std::u16string V_Mode(const Smatrix* labels, int n, const short* exclude, const matrix* w);

/// Number of distinct labels, the empty one among them.
KAV_API int V_NbDistinct(const Smatrix* labels, int n);

/// The distinct labels in string order.
///
/// @param out    prepared by matCheck, one cell for each
/// @param count  their number; null takes nothing
KAV_API void V_ExtractDistinct(const Smatrix* labels, int n, Smatrix*& out, int* count);

/// Makes labels unique in place: the second, third ... of equal ones gets "-2", "-3" ... appended, or the
/// next number that makes a label of its own. Empty labels stay.
KAV_API void V_ReplaceDoubles(Smatrix* labels, int n);
