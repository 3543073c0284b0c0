// Missing cells of tables: counted, flagged, replaced, their rows removed.
//
// Tables are leading n x p blocks of a container. A number is missing when its flag is set or it holds
// exactly the marker, a text when it is empty; cells outside the container are not missing, but
// M_NbMissing counts texts there, as V_NbMissing does. Flags are arrays of n, any value but 0 counts; results
// are written as -1 and 0. Resulting tables are other containers than operands.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// The missing cells of each column, and those that are not; 0 without rows. As for V_NbMissing a number is
/// missing when its flag is set or it is not above the marker, so that -infinity counts.
///
/// @param counts  p, out; null takes nothing
KAV_API void M_NbMissing(const matrix* a, int n, int p, int* counts);
KAV_API void M_NbMissing(const Smatrix* a, int n, int p, int* counts);
KAV_API void M_NbNonMissing(const matrix* a, int n, int p, int* counts);

/// Flags the rows with a missing cell, and those in which every cell is missing (p at least 1).
///
/// @param missing     in and out: a flag that is set stays set; null takes nothing
/// @param allMissing  out; null takes nothing
KAV_API void M_AllMissingRows(const matrix* a, int n, int p, short* missing, short* allMissing);
KAV_API void M_AllMissingRows(const Smatrix* a, int n, int p, short* missing, short* allMissing);

/// Flags the rows with a flag in any of three arrays, or in both of two. Null arrays are ignored; two null
/// ones flag no row.
///
/// @param count    out: rows flagged; null takes nothing
/// @param flagged  out, may be one of the arrays; null takes nothing
KAV_API void SummarizeMissing(int n, int* count, short* flagged, const short* first, const short* second,
                              const short* third);
KAV_API void SummarizeAllMissing(int n, const short* first, const short* second, int* count, short* flagged);

/// The rows without a flag, in their order, as a table of n - removed rows (prepared; cut to 0 .. n). With
/// more flags than `removed` says the last rows of the result hold the marker, or empty texts; with fewer of
/// them the last rows that remain are not given. Values are copied, never flags of cells.
///
/// @param flags  null: none is set
KAV_API void RemoveRowsWithMissing(const matrix* a, int n, int p, int removed, const short* flags,
                                   matrix*& out);
KAV_API void RemoveRowsWithMissing(const Smatrix* a, int n, int p, int removed, const short* flags,
                                   Smatrix*& out);

/// Gives every missing cell the value, and clears its flag.
KAV_API void M_ReplaceMissingByVal(matrix* a, int n, int p, double value);
KAV_API void M_ReplaceMissingByStr(Smatrix* a, int n, int p, const std::u16string& value);

/// All pW weights of the rows of a with a missing cell become 0.0 (w n x pW, by the element rule).
KAV_API void M_SetWeightsToZeroForMissing(const matrix* a, int n, int p, matrix* w, int pW);

/// The label of each flagged row becomes the prefix and the number of the row, from 1.
///
/// @param flags  null: none is set
KAV_API void ReplaceMissingObsLabels(Smatrix* labels, int n, const short* flags,
                                     const std::u16string& prefix);

/// out[i] = -1.0 where the cell is missing (flagged, the marker, or an empty string) or excluded, else 0.0.
///
/// @param x        a vector: the first n cells of a container in linear order; those outside read -1.0, or
///                 the empty string
/// @param exclude  n flags; null excludes nothing
/// @param out      n x 1, kept: a flagged cell keeps what it holds; a container of another shape is replaced
///                 by a new one
KAV_API void V_GetMissingDbl(const matrix* x, int n, const short* exclude, matrix*& out);
KAV_API void V_GetMissingStr(const Smatrix* x, int n, const short* exclude, matrix*& out);
