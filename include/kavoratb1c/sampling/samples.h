// Samples of the rows of a table of labels.
//
// The table a is a leading block: the first n rows and p columns of a container of strings; a cell outside
// the container reads as the empty string. Every scheme returns the positions of the sampled rows (idx, size
// x 1, 1-based) and the rows themselves (out, size x p); a size below 1 draws nothing. Only sampling with
// replacement takes a row more than once. Where there are too few rows, which for that scheme means none, the
// last cells of idx hold the marker and the last rows of out empty strings.
//
// idx is refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller. out
// likewise, every string written; it must be another container than a.
//
// Systematic and stratified samples divide the table into `size` intervals of consecutive rows of nearly
// equal length: interval k (0-based) is rows floor(k n / size) .. floor((k + 1) n / size) - 1. In a table
// with fewer rows than the sample, n stands for size: one interval per row.
//
// Random schemes: with seedIsGiven -1 the draws start from *seed; otherwise, or when seed is null, a seed is
// taken from the system's entropy and written to *seed, so that the sample can be drawn again. *nextSeed
// receives a seed for further draws; null: not wanted. The same seed gives the same sample on every build.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Simple random sampling with replacement: rows are drawn independently, all with equal probability.
KAV_API void M_SamplingWithReplacement(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                       int* seed, short seedIsGiven, int* nextSeed);

/// The middle row of each interval; of an even number of rows the first of the two middle ones.
KAV_API void M_SamplingSystematicCentered(const Smatrix* a, int n, int p, int size, Smatrix*& out,
                                          matrix*& idx);

/// Systematic sampling with a random start: rows floor((k n + r) / size), 0-based, k = 0, 1 ... size - 1,
/// with one random r from 0 .. n-1. Every row is in the sample with probability size / n.
KAV_API void M_SamplingSystematicRdStart(const Smatrix* a, int n, int p, int size, Smatrix*& out,
                                         matrix*& idx, int* seed, short seedIsGiven, int* nextSeed);

/// One random row of each interval.
KAV_API void M_SamplingRandomStratified(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                        int* seed, short seedIsGiven, int* nextSeed);

/// The rows at given positions, in that order and with repetitions.
///
/// @param out  n x p
/// @param idx  in: n positions, 1-based, truncated toward zero; others than 1 .. n give empty strings
KAV_API void M_SampleUserDefined(const Smatrix* a, int n, int p, Smatrix*& out, const matrix* idx);
