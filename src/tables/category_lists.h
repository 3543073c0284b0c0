// The categories of columns of labels, all in one list: see categories.h. Internal.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "access/texts.h"
#include "core/addressing.h"
#include "kavoratb1c/Smatrix.h"

namespace kav::categories {

inline constexpr int kUnknown = -1;

/// The categories of one column.
class Categories {
 public:
  /// @param begin  of the column's, in the list of all
  Categories(const Smatrix* all, std::int64_t begin, int count) : begin_(begin) {
    for (int k = 0; k < count; ++k)
      positions_.emplace(texts::labelAt(all, static_cast<std::ptrdiff_t>(begin + k)), k);
  }

  /// 0-based; of equal categories the first.
  int positionOf(std::u16string_view label) const {
    const auto found = label.empty() ? positions_.end() : positions_.find(label);
    return found == positions_.end() ? kUnknown : found->second;
  }

  /// Where the column's begin, 0-based.
  std::int64_t begin() const { return begin_; }

 private:
  std::int64_t begin_;
  std::unordered_map<std::u16string_view, int> positions_;
};

/// visit(j, count, categories) for each column.
template <class Visit>
void forEachColumn(int p, const int* counts, const Smatrix* all, Visit visit) {
  std::int64_t begin = 0;
  for (int j = 0; j < p; ++j) {
    const int count = counts == nullptr ? 0 : std::max(counts[j], 0);
    // No more than there are: a count may be anything.
    const std::int64_t left =
        all == nullptr ? 0 : addressing::cellCount(*all) - std::min(begin, addressing::cellCount(*all));
    visit(j, count, Categories(all, begin, static_cast<int>(std::min<std::int64_t>(count, left))));
    begin += count;
  }
}

}  // namespace kav::categories
