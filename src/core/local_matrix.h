// A matrix for the time of one call. Internal.
#pragma once

#include <cstddef>

#include "core/matrix.h"

/// Where the arrays of a small LocalMatrix lie. Not initialized: what is not used costs nothing.
class LocalRoom {
 protected:
  matrix::Room room() { return {memory_, sizeof memory_}; }

 private:
  // About a hundred rows of one column.
  alignas(16) std::byte memory_[2048];
};

/// A matrix, read only, that a call makes from a macro's array. Macros call with ten rows as often as with a
/// million. Of a small one the allocator would be most of the cost: its arrays lie inside the object. Of a
/// large one the copy and its fresh pages would be: the macro's memory serves as values where no cell is
/// missing or all are kept, and a vector then has no row weights (null), as many doubles again: workers take
/// the weights of a vector as an argument.
class LocalMatrix : private LocalRoom, public matrix {
 public:
  LocalMatrix(int rows, int columns, const double* a, bool keepAll)
      : matrix(room(), rows, columns, a, keepAll) {}
  LocalMatrix(int rows, int columns, const int* a) : matrix(room(), rows, columns, a) {}
  LocalMatrix(int rows, int columns, const short* a) : matrix(room(), rows, columns, a) {}
  LocalMatrix(const LocalMatrix&) = delete;
  LocalMatrix& operator=(const LocalMatrix&) = delete;
};
