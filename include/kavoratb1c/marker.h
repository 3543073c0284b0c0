// Missing values, 16-bit booleans, and what a read outside a container gives: each written down once.
#pragma once

namespace kav {

/// The missing-value marker: what the spreadsheet side writes for an empty cell. It is the double nearest to
/// these fifteen digits, with the bits FFEFFFFFFFFFFFE2, deliberately not the lowest double.
inline constexpr double kMissing = -1.79769313486231e+308;

/// A cell that arrives from a macro array at or below this value is flagged as missing.
inline constexpr double kMissingOnArrival = -1.7e+306;

/// What a read outside a container gives. Workers rely on it.
inline constexpr double kOutside = -1.0;

/// 16-bit booleans as macros know them.
inline constexpr short kTrue = -1;
inline constexpr short kFalse = 0;

constexpr short asFlag(bool b) { return b ? kTrue : kFalse; }

/// Whether a value inside a container is the marker: exact, unlike the test on arrival.
constexpr bool isMarker(double x) { return x == kMissing; }

/// Whether a cell of a container is missing: flagged, or holding the marker.
constexpr bool isMissing(double x, bool flagged) { return flagged || isMarker(x); }

/// Whether a value arriving from a macro array is missing: the marker's neighbourhood, -infinity and NaN.
constexpr bool arrivesMissing(double x) { return !(x > kMissingOnArrival); }

}  // namespace kav
