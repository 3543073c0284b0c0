// Missing values, 16-bit booleans and what a read outside a container gives: each written down once.
#pragma once

#include <bit>
#include <cstdint>

/// The missing-value marker, -1.79769313486231E+308: what the spreadsheet side writes for an empty cell. It
/// is the double nearest to those fifteen digits, deliberately not the lowest double.
inline constexpr double kMissing = std::bit_cast<double>(std::uint64_t{0xFFEFFFFFFFFFFFE2});

/// A cell that arrives from a macro array at or below this value is flagged as missing.
inline constexpr double kMissingOnArrival = -1.7E+306;

/// What a read outside a container gives. Workers rely on it.
inline constexpr double kOutside = -1.0;

/// 16-bit booleans as macros know them.
inline constexpr short kTrue = -1;
inline constexpr short kFalse = 0;

inline constexpr short asFlag(bool b) { return b ? kTrue : kFalse; }

/// Whether a value inside a container is the marker: exact, unlike the test on arrival.
inline constexpr bool isMarker(double x) { return x == kMissing; }

/// Whether a value arriving from a macro array is missing: the marker's neighbourhood, -infinity and NaN.
inline constexpr bool arrivesMissing(double x) { return !(x > kMissingOnArrival); }
