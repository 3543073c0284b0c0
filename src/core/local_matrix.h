// Matrices for the time of one call. Internal.
#pragma once

#include <cstddef>

#include "core/storage.h"
#include "kavoratb1c/matrix.h"

namespace kav {

/// Where the arrays of a small matrix lie. Not initialized: what is not used costs nothing. Macros call with
/// ten rows as often as with a million, and of a small matrix the allocator would be most of the cost.
class LocalRoom {
 protected:
  storage::Room room() { return {memory_, sizeof memory_}; }

 private:
  // About a hundred rows of one column.
  alignas(16) std::byte memory_[2048];
};

/// A matrix, read only, that a call makes from a macro's array. Of a large one the copy and its fresh pages
/// would be most of the cost: the macro's memory serves as values where no cell is missing or all are kept,
/// and a vector then has no row weights (null), as many doubles again: workers take the weights of a vector
/// as an argument.
class LocalMatrix : private LocalRoom, public matrix {
 public:
  LocalMatrix(int rows, int columns, const double* a, bool keepAll);
  LocalMatrix(int rows, int columns, const int* a);
  LocalMatrix(int rows, int columns, const short* a);
  LocalMatrix(const LocalMatrix&) = delete;
  LocalMatrix& operator=(const LocalMatrix&) = delete;
};

/// For a matrix whose worker may write to a macro's array itself.
struct InPlace {};

/// A matrix that a call lets a worker write to: a macro's array copied, or cells of 0.0, or, where it is
/// large and aligned, and no cell of it has to be flagged, the array itself.
class LocalTarget : private LocalRoom, public matrix {
 public:
  LocalTarget(int rows, int columns);
  LocalTarget(int rows, int columns, const double* a, bool keepAll);
  LocalTarget(int rows, int columns, const int* a, bool keepAll);
  LocalTarget(int rows, int columns, const short* a, bool keepAll);
  LocalTarget(int rows, int columns, double* a, InPlace, bool keepAll = true);
  LocalTarget(const LocalTarget&) = delete;
  LocalTarget& operator=(const LocalTarget&) = delete;
};

}  // namespace kav
