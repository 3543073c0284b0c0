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

/// A matrix whose arrays lie inside the object when they are small: a macro calls with ten rows as often as
/// with a million, and the allocator is most of the cost of such a call. For automatic variables; neither
/// assigned nor handed on.
class LocalMatrix : private LocalRoom, public matrix {
 public:
  LocalMatrix(int rows, int columns, const double* a, bool keepAll)
      : matrix(room(), rows, columns, a, keepAll, 0, 0) {}
  LocalMatrix(int rows, int columns, const int* a) : matrix(room(), rows, columns, a) {}
  LocalMatrix(int rows, int columns, const short* a) : matrix(room(), rows, columns, a) {}
  LocalMatrix(const LocalMatrix&) = delete;
  LocalMatrix& operator=(const LocalMatrix&) = delete;
};
