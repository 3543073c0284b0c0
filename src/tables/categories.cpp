#include "tables/categories.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "algebra/result_blocks.h"
#include "core/block.h"
#include "stats/usable.h"
#include "tables/texts.h"

namespace {

constexpr int kUnknown = -1;

/// The categories of one column.
class Categories {
 public:
  /// @param begin  of the column's, in the list of all
  Categories(const Smatrix* all, std::int64_t begin, int count) {
    for (int k = 0; k < count; ++k)
      positions_.emplace(usable::labelAt(all, static_cast<std::ptrdiff_t>(begin + k)), k);
  }

  /// 0-based; of equal categories the first.
  int positionOf(std::u16string_view label) const {
    const auto found = label.empty() ? positions_.end() : positions_.find(label);
    return found == positions_.end() ? kUnknown : found->second;
  }

 private:
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

}  // namespace

void M_ReplaceCatByCodes(const Smatrix* labels, int n, int p, const int* counts, const Smatrix* categories,
                         matrix*& codes) {
  M_ReplaceStrByCodes(labels, n, p, counts, categories, nullptr, 1, codes);
}

void M_ReplaceStrByCodes(const Smatrix* labels, int n, int p, const int* counts, const Smatrix* categories,
                         const short* rowFlags, int first, matrix*& codes) {
  const usable::NotExcludedIfGiven used(rowFlags);
  result::prepared(codes, n, p, 1, [&](block::Target& target) {
    forEachColumn(p, counts, categories, [&](int j, int, const Categories& known) {
      for (int i = 0; i < n; ++i) {
        const int position = used(i) ? known.positionOf(texts::cell(labels, i, j)) : kUnknown;
        target.column(j)[i] = position == kUnknown ? kMissing : static_cast<double>(first) + position;
      }
    });
  });
}

void BuildDisjunctiveTable(const Smatrix* labels, int n, int p, const int* counts, const Smatrix* categories,
                           int columns, matrix*& table, int constraint, int leaveFirst) {
  const bool dropsFirst = constraint == 1 && leaveFirst == 0;
  const bool dropsLast = constraint == 2 || constraint == 3;
  result::prepared(table, n, columns, 1, [&](block::Target& target) {
    for (int j = 0; j < columns; ++j) std::fill_n(target.column(j), n, 0.0);
    std::int64_t begin = 0;
    forEachColumn(p, counts, categories, [&](int j, int count, const Categories& known) {
      // The only category is the first as well as the last.
      const bool keepsAll = leaveFirst != 0 && count == 1;
      const int kept = std::max(count - ((dropsFirst || dropsLast) && !keepsAll ? 1 : 0), 0);
      const auto put = [&](int i, std::int64_t column, double x) {
        if (column < columns) target.column(static_cast<std::ptrdiff_t>(column))[i] = x;
      };
      for (int i = 0; i < n; ++i) {
        const int position = known.positionOf(texts::cell(labels, i, j));
        if (position == kUnknown) continue;
        const int column = position - (dropsFirst ? 1 : 0);
        if (column >= 0 && column < kept) {
          put(i, begin + column, 1.0);
        } else if (constraint == 3) {
          for (int k = 0; k < kept; ++k) put(i, begin + k, -1.0);
        }
      }
      begin += kept;
    });
  });
}
