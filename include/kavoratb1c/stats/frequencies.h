// Weighted frequencies of values and labels.
//
// A vector is the first n cells of a container in linear order, empty when n is below 1. A cell outside the
// container reads -1.0, a label outside is the empty string, and a null container has no cells. An n beyond a
// container of numbers may throw std::bad_alloc.
//
// Labels are compared exactly, character code by character code; string order is the order of these codes.
// The empty label is a missing one. Weights (w) are n cells; a null w reads -1.0 everywhere.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Total weight of the cells with abs(x[i] - value) < epsilon, missing cells by their values.
KAV_API double V_Freq(const matrix* x, int n, const matrix* w, double value, double epsilon);

/// Total weight of the cells equal to value, missing ones by their values. The total is truncated toward
/// zero; -2147483648 for NaN and outside the range of an integer.
KAV_API int V_FreqLng(const matrix* x, int n, const matrix* w, int value);

/// Total weight of the labels equal to value.
KAV_API double V_FreqStr(const Smatrix* labels, int n, const matrix* w, const std::u16string& value);

/// The mode: the label with the largest total weight among those that are neither empty nor excluded; of
/// several such labels the first in string order. A total of NaN ranks lowest. Cost at most n log n.
///
/// @param exclude  n flags, any non-zero leaves the label out; null excludes nothing
/// @return the empty string when no label is used
KAV_API std::u16string V_Mode(const Smatrix* labels, int n, const short* exclude, const matrix* w);

/// Number of distinct labels, the empty one included.
KAV_API int V_NbDistinct(const Smatrix* labels, int n);

/// The distinct labels in string order, the empty one included. Cost n log n.
///
/// @param out    receives one cell per distinct label, in one column: a container of just that shape is
///               overwritten, any other pointer receives a new one, which belongs to the caller
/// @param count  out: their number; may be null
KAV_API void V_ExtractDistinct(const Smatrix* labels, int n, Smatrix*& out, int* count);

/// Makes labels unique in place: of equal labels the second, third ... has "-2", "-3" ... appended, or the
/// next number that yields a label not yet in use. Empty labels remain unchanged; cells outside the
/// container are ignored.
KAV_API void V_ReplaceDoubles(Smatrix* labels, int n);
