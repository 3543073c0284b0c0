// Which variables a least-squares fit may use together.
//
// Operands are leading blocks of a container; a cell outside it reads -1.0.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Separates variables that are constant, or nearly linear combinations of others, from those a fit can use.
///
/// First, every variable is screened: one whose r(i,i) is below 1e-12 in absolute value gets code 50000; for
/// any other, each later variable j with |r(i,j)| >= 0.999999999999 gets code 60000. Then, group by group
/// from the last to the first, each variable of a group that has no code is tested: r is swept on the other
/// variables, last to first, and what remains of the tested variable's own cell is its tolerance. Its test
/// ends as soon as that is below `tolerance`.
///
/// status, tolerances and inflations may be null; their flagged cells keep what they hold.
///
/// @param r           p x p, correlations or cross products, both triangles: the screening reads the upper
///                    one, the sweeps read the lower one and the column of the tested variable
/// @param groups      number of groups
/// @param selection   one cell per group: 1.0 tests its variables
/// @param notUsed     ignored
/// @param groupOf     p cells, read only: the group, 1-based, of each variable; those of a group are adjacent
/// @param tolerance   what remains must reach it
/// @param markOthers  what happens to a variable to be swept on whose OLSCheckIfIn is below `tolerance`: -1
///                    gives it code 60000 if its own cell is below that in absolute value too, and otherwise
///                    sweeps on it all the same; any other value skips it
/// @param sweepAll    -1: variables with code 60000 are swept on as well. Exactly 0 has a second meaning:
///                    only then a tested variable below the tolerance gets code 60000.
/// @param backwards   -1: variables of a group are tested last to first
/// @param status      out, p cells: 0 usable, 50000 or 60000
/// @param tolerances  out, p cells: 0.0 where the screening gave a code; unchanged where none was computed
/// @param inflations  out, p cells: 1 / tolerance, the marker for 0.0; unchanged where none was computed
KAV_API void CheckTolerance(const matrix* r, int p, int groups, const matrix* selection,
                            const matrix* notUsed, matrix*& groupOf, double tolerance, short markOthers,
                            short sweepAll, short backwards, matrix* status, matrix* tolerances,
                            matrix* inflations);

/// Smallest tolerance among variable k and the variables already swept, if k were swept too: the smallest of
/// d(k,k) and, for each swept j (d(j,j) < 0), 1 / (|d(j,j)| + d(j,k)^2 / d(k,k)).
///
/// @param swept      d: packed, p (p + 1) / 2 cells, the lower triangle row by row, swept by M_Sweep
/// @param k          1-based
/// @param tolerance  where d(k,k) is not above 0, or below this, the result is d(k,k)
/// @return the tolerance; -1.0 for k outside 1 .. p
KAV_API double OLSCheckIfIn(const matrix* swept, int p, int k, double tolerance);
