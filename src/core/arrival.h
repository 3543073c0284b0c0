// How the cells of an array arrive in a container: missing doubles are flagged. Internal.
#pragma once

#include <cstdint>

#include "kavoratb1c/matrix.h"

namespace kav::arrival {

/// The first count cells of a new container from a, the others 0.0. A null a has no cells.
///
/// @param keepAll  true stores every value as it is and flags nothing
void store(matrix& m, const double* a, std::int64_t count, bool keepAll);

/// All cells of a new container from integers; 0.0 where a is null.
void store(matrix& m, const int* a);
void store(matrix& m, const short* a);

/// The array itself when its cells can serve as values unchanged, and that costs less than a copy; else null.
double* usableInPlace(const double* a, std::int64_t count, bool keepAll);

}  // namespace kav::arrival
