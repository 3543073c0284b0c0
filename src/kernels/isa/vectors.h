// Vectors of the instruction set that a source is compiled for, with KAV_ISA its namespace and
// KAV_VECTOR_BYTES the size of its vectors. Included by the sources beside it alone. Everything has internal
// linkage: code for one instruction set must not serve another.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kav::kernels::KAV_ISA {

namespace {

using Index = std::ptrdiff_t;

constexpr Index kLanes = KAV_VECTOR_BYTES / static_cast<Index>(sizeof(double));

typedef double Vector __attribute__((vector_size(KAV_VECTOR_BYTES), aligned(8), may_alias));
typedef long long Bits __attribute__((vector_size(KAV_VECTOR_BYTES), aligned(8), may_alias));

[[maybe_unused]] inline Vector load(const double* from) { return *reinterpret_cast<const Vector*>(from); }

[[maybe_unused]] inline void store(double* to, Vector x) { *reinterpret_cast<Vector*>(to) = x; }

[[maybe_unused]] inline Vector spread(double x) {
  Vector all;
  for (Index lane = 0; lane < kLanes; ++lane) all[lane] = x;
  return all;
}

/// Where lanes are exchanged vectors of more than four doubles do not pay: the moves double with the width.
constexpr Index kNarrowLanes = kLanes < 4 ? kLanes : 4;

typedef double Narrow __attribute__((vector_size(kNarrowLanes * sizeof(double)), aligned(8), may_alias));

[[maybe_unused]] inline Narrow loadNarrow(const double* from) {
  return *reinterpret_cast<const Narrow*>(from);
}

[[maybe_unused]] inline void storeNarrow(double* to, Narrow x) { *reinterpret_cast<Narrow*>(to) = x; }

/// Lane i of column j becomes lane j of row i.
[[maybe_unused]] inline void transposeLanes(const Narrow* columns, Narrow* rows) {
#if KAV_VECTOR_BYTES == 16
  rows[0] = __builtin_shufflevector(columns[0], columns[1], 0, 2);
  rows[1] = __builtin_shufflevector(columns[0], columns[1], 1, 3);
#else
  const Narrow even01 = __builtin_shufflevector(columns[0], columns[1], 0, 4, 2, 6);
  const Narrow odd01 = __builtin_shufflevector(columns[0], columns[1], 1, 5, 3, 7);
  const Narrow even23 = __builtin_shufflevector(columns[2], columns[3], 0, 4, 2, 6);
  const Narrow odd23 = __builtin_shufflevector(columns[2], columns[3], 1, 5, 3, 7);
  rows[0] = __builtin_shufflevector(even01, even23, 0, 1, 4, 5);
  rows[1] = __builtin_shufflevector(odd01, odd23, 0, 1, 4, 5);
  rows[2] = __builtin_shufflevector(even01, even23, 2, 3, 6, 7);
  rows[3] = __builtin_shufflevector(odd01, odd23, 2, 3, 6, 7);
#endif
}

}  // namespace

}  // namespace kav::kernels::KAV_ISA
