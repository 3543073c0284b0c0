// The numerical thresholds of the library, each by name. Internal.
#pragma once

namespace kav {

/// What counts as zero.
inline constexpr double kZero = 1e-12;

/// The machine epsilon, 2^-52.
inline constexpr double kEpsilon = 2.220446049250313e-16;
static_assert(kEpsilon == 0x1p-52);

}  // namespace kav
