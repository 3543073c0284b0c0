// Indicator vectors: cells of 0.0 and 1.0.
//
// The result x is n x 1: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// 1.0 from position `from` to `to`, 1-based and inclusive, clipped to 1 .. n; 0.0 elsewhere.
KAV_API void GenerateIndicator(matrix*& x, int n, int from, int to);

/// 1.0 in `ones` of the n cells (clipped to 0 .. n), 0.0 in the others; every choice is equally likely. One
/// draw per cell, by selection sampling (Fan, Muller and Rezucha 1962).
///
/// @param seed         in when seedIsGiven is -1; otherwise out: a seed from the system's entropy, so that
///                     the draw can be repeated; null counts as not given
/// @param nextSeed     out: a seed for further draws; may be null
KAV_API void GenerateRandomIndicator(matrix*& x, int n, int ones, int* seed, short seedIsGiven,
                                     int* nextSeed);
