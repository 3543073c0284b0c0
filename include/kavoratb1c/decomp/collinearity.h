// Which variables a least-squares fit may use beside each other.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Tells variables that are constant, or nearly linear combinations of others, from those a fit can use.
///
/// First, a variable whose r(i,i) is below 1e-12 in absolute value gets code 50000; for any other, each later
/// one with |r(i,j)| >= 0.999999999999 gets 60000. Then, group by group from the last to the first, each
/// variable of a group is tested: r is swept on the others, last to first, and what is left of the tested
/// one's own cell is its tolerance.
///
/// @param r           p x p correlations or cross products; the lower triangle counts, in the first step and
///                    for the tested variable the upper one
/// @param groups      number of groups
/// @param selection   one cell for each group: 1.0 tests its variables
/// @param notUsed     not looked at
/// @param groupOf     p cells: the group, 1-based, of each variable; those of a group stand side by side
/// @param tolerance   what is left must reach it
/// @param markOthers  what happens to a variable to sweep on that fails OLSCheckIfIn. -1: when its own cell
/// is
///                    below the tolerance too it gets code 60000, otherwise it is swept on; any other value
///                    passes it over
/// @param sweepAll    -1: variables with code 60000 are swept on as well. Another meaning hangs on 0 exactly:
///                    only then a tested variable below the tolerance gets code 60000.
/// @param backwards   -1: variables of a group are tested last to first
/// @param status      p cells out: 0 usable, 50000 or 60000
/// @param tolerances  p cells out: 0.0 where the first step gave a code; untouched where nothing was computed
/// @param inflations  p cells out: 1 by the tolerance, the marker for 0.0
KAV_API void CheckTolerance(const matrix* r, int p, int groups, const matrix* selection,
                            const matrix* notUsed, matrix*& groupOf, double tolerance, short markOthers,
                            short sweepAll, short backwards, matrix* status, matrix* tolerances,
                            matrix* inflations);

/// The smallest tolerance that variable k and those already swept would have with k among them: of d(k,k),
/// and for each swept j (d(j,j) < 0) of 1 / (|d(j,j)| + d(j,k)^2 / d(k,k)).
///
/// @param swept      lower triangle row after row of at least p variables, swept by M_Sweep
/// @param k          1-based
/// @param tolerance  where d(k,k) is not above 0, or below it, d(k,k) is the answer
KAV_API double OLSCheckIfIn(const matrix* swept, int p, int k, double tolerance);
