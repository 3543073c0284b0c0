#include "kavoratb1c/tables/categories.h"

#include <algorithm>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "access/usable.h"
#include "tables/category_lists.h"

using namespace kav;

using categories::Categories;
using categories::forEachColumn;
using categories::kUnknown;

void M_ReplaceCatByCodes(const Smatrix* labels, int n, int p, const int* counts, const Smatrix* categories,
                         matrix*& codes) {
  M_ReplaceStrByCodes(labels, n, p, counts, categories, nullptr, 1, codes);
}

void M_ReplaceStrByCodes(const Smatrix* labels, int n, int p, const int* counts, const Smatrix* categories,
                         const short* rowFlags, int first, matrix*& codes) {
  const usable::NotExcludedIfGiven used(rowFlags);
  results::refilled(codes, n, p, 1, [&](block::Target& target) {
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
  results::refilled(table, n, columns, 1, [&](block::Target& target) {
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
