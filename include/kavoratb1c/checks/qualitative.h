// Summaries of qualitative variables.
//
// Categories of all columns stand in one list, column after column, counts[j] of column j, as in
// tables/categories.h. An empty label is missing and counts nowhere.
//
// @param flags  n flags, rows left out; null leaves out none
// @param w      n weights; null weights rows 1.0
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// The labels that occur in each column (n x p), and how often. A label of rows with weight 0.0 alone occurs,
/// 0.0 times. Results are prepared.
///
/// @param modes            p x 1: the most frequent label, of several the first in string order; empty
///                         without labels
/// @param modeFrequencies  p x 1: its weight, 0.0 without labels
/// @param total            the length of both lists; null takes nothing
/// @param counts           p x 1: the number of different labels
/// @param categories       total x 1: the labels of column 1, those of column 2 and so on; those of a column
///                         in string order when sorted is -1, else in the order of their first rows
/// @param frequencies      total x 1: the weight of each
KAV_API void M_InfoQuali(const Smatrix* labels, int n, int p, Smatrix*& modes, matrix*& modeFrequencies,
                         int* total, matrix*& counts, Smatrix*& categories, matrix*& frequencies,
                         const short* flags, const matrix* w, short sorted);

/// How often given categories occur in a table (n x p).
///
/// @param columns      that have categories; those of the table beyond have none
/// @param counts       one for each of those columns
/// @param categories   `total` strings
/// @param frequencies  prepared, total x 1: the weight of each, of equal ones in a column all with the first
/// @param problem      -1 when a row that is not left out has a label that is not among its column's
///                     categories, else 0; null takes nothing
KAV_API void M_InfoQualiValid(const Smatrix* labels, int n, int p, int columns, int total, const int* counts,
                              const Smatrix* categories, matrix*& frequencies, short* problem,
                              const short* flags, const matrix* w);
