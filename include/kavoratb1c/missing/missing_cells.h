// Missing cells of tables: counted, flagged, replaced, their rows removed.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0, or the empty string. A number is missing when its flag is set or it holds
// exactly the marker, a label when it is empty. Cells outside the container are not missing, unless said
// otherwise. Row flags are arrays of n: any non-zero is set; results are written as -1 and 0.
#pragma once

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Missing cells, or non-missing ones, of each column; 0 when n is below 1. Here a number is missing when its
/// flag is set or it is at or below the marker, so that -infinity is missing; labels outside the container
/// are missing. V_NbMissing counts alike.
///
/// @param counts  out, p integers; null: not wanted
KAV_API void M_NbMissing(const matrix* a, int n, int p, int* counts);
KAV_API void M_NbMissing(const Smatrix* a, int n, int p, int* counts);
KAV_API void M_NbNonMissing(const matrix* a, int n, int p, int* counts);

/// Flags the rows with a missing cell, and those in which every cell is missing (none when p is below 1).
///
/// @param missing     in and out: a flag that is set stays set; null: not wanted
/// @param allMissing  out; null: not wanted
KAV_API void M_AllMissingRows(const matrix* a, int n, int p, short* missing, short* allMissing);
KAV_API void M_AllMissingRows(const Smatrix* a, int n, int p, short* missing, short* allMissing);

/// Flags the rows that are flagged in any of three arrays, or in both of two arrays. Null arrays are ignored;
/// when all are null no row is flagged.
///
/// @param count    out: number of flagged rows; null: not wanted
/// @param flagged  out, may be one of the arrays; null: not wanted
KAV_API void SummarizeMissing(int n, int* count, short* flagged, const short* first, const short* second,
                              const short* third);
KAV_API void SummarizeAllMissing(int n, const short* first, const short* second, int* count, short* flagged);

/// Copies the rows without a flag, in their order. Values are copied, never the cells' flags.
///
/// @param removed  number of flags set. If more are set, the last rows of the result hold the marker, or
///                 empty strings; if fewer are set, the last unflagged rows are not copied.
/// @param flags    n, or null: none is set
/// @param out      n - removed rows (clipped to 0 .. n), p columns; another container than a. A container of
///                 just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later writes to it are
///                 dropped); any other pointer receives a new container, which belongs to the caller. Of
///                 strings every cell is written.
KAV_API void RemoveRowsWithMissing(const matrix* a, int n, int p, int removed, const short* flags,
                                   matrix*& out);
KAV_API void RemoveRowsWithMissing(const Smatrix* a, int n, int p, int removed, const short* flags,
                                   Smatrix*& out);

/// In place: gives every missing cell the value and clears its flag.
KAV_API void M_ReplaceMissingByVal(matrix* a, int n, int p, double value);
KAV_API void M_ReplaceMissingByStr(Smatrix* a, int n, int p, const std::u16string& value);

/// Sets all weights of the rows of a with a missing cell to 0.0.
///
/// @param w  n x pW, in and out: one column per set of weights; flagged cells keep what they hold
KAV_API void M_SetWeightsToZeroForMissing(const matrix* a, int n, int p, matrix* w, int pW);

/// Replaces the label of each flagged row by the prefix followed by the row's number, from 1.
///
/// @param labels  n strings, in and out
/// @param flags   n, or null: none is set
KAV_API void ReplaceMissingObsLabels(Smatrix* labels, int n, const short* flags,
                                     const std::u16string& prefix);

/// out[i] = -1.0 where the cell is missing or excluded, else 0.0.
///
/// @param x        n cells of a container in linear order
/// @param exclude  n flags; null excludes none
/// @param out      n x 1, another container than x. A container of just that shape is kept, its flagged cells
///                 keep what they hold; any other pointer receives a new one, which belongs to the caller.
KAV_API void V_GetMissingDbl(const matrix* x, int n, const short* exclude, matrix*& out);
KAV_API void V_GetMissingStr(const Smatrix* x, int n, const short* exclude, matrix*& out);
