// The numerical thresholds of the library, each by name. Internal.
#pragma once

/// What counts as zero.
inline constexpr double kZero = 1e-12;
