// Memory for the time of one computation. Internal.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>

namespace kav {

/// count elements, not initialized. A few lie inside the object: of small computations, the most frequent
/// ones, the allocator would be most of the cost. Throws std::bad_alloc.
template <class T>
class Scratch {
  static_assert(std::is_trivially_default_constructible_v<T> && std::is_trivially_destructible_v<T>);

 public:
  explicit Scratch(std::size_t count) : size_(count), cells_(inside_) {
    if (count <= kInside) return;
    outside_ = std::make_unique_for_overwrite<T[]>(count);
    cells_ = outside_.get();
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  std::size_t size() const { return size_; }
  T* data() { return cells_; }
  const T* data() const { return cells_; }
  T& operator[](std::ptrdiff_t k) { return cells_[k]; }
  const T& operator[](std::ptrdiff_t k) const { return cells_[k]; }

 private:
  static constexpr std::size_t kInside = 512 / sizeof(T);

  std::size_t size_;
  T* cells_;
  std::unique_ptr<T[]> outside_;
  T inside_[kInside];
};

}  // namespace kav
