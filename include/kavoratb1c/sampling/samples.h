// Samples of the rows of a table of labels, and random indicators.
//
// Every scheme hands back the positions of its rows (idx, `size` x 1, 1-based) and the rows themselves (out,
// `size` x p), both prepared: a container of that shape is refilled, any other pointer receives a new one. A
// size below 1 draws nothing. Results are other containers than the table. Where a scheme has no row to give
// - it takes every row once at most, and the table has fewer - idx holds the marker and the row is empty.
//
// Systematic and stratified samples cut the table into `size` intervals of consecutive rows, as equal as they
// can be: interval k (0-based) is rows floor(k n / size) .. floor((k + 1) n / size) - 1. A table with fewer
// rows than the sample has one interval for each.
//
// Seeds, in what draws at random: seedIsGiven -1 starts from *seed; otherwise a seed is taken from the
// system's entropy and written to *seed, so that the sample can be drawn again. *nextSeed receives a seed
// that goes on with fresh draws. The same seed gives the same sample on every build. Null seeds are not given
// and not written.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Draws rows independently, each as likely as the others; a row may be drawn several times.
KAV_API void M_SamplingWithReplacement(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                       int* seed, short seedIsGiven, int* nextSeed);

/// The middle row of each interval, of an even number the first of the two.
KAV_API void M_SamplingSystematicCentered(const Smatrix* a, int n, int p, int size, Smatrix*& out,
                                          matrix*& idx);

/// Rows floor((k n + r) / size), 0-based, for k = 0, 1 ... with one random r from 0 .. n-1: even steps from a
/// random start. Every row is in the sample with the same probability, size / n.
KAV_API void M_SamplingSystematicRdStart(const Smatrix* a, int n, int p, int size, Smatrix*& out,
                                         matrix*& idx, int* seed, short seedIsGiven, int* nextSeed);

/// One random row of each interval.
KAV_API void M_SamplingRandomStratified(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                        int* seed, short seedIsGiven, int* nextSeed);

/// The rows whose positions stand in idx (n cells, truncated toward zero), in that order and as often as they
/// stand there (out: n x p). A position outside 1 .. n gives an empty row.
KAV_API void M_SampleUserDefined(const Smatrix* a, int n, int p, Smatrix*& out, const matrix* idx);
