#include "kavoratb1c/checks/structure.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "access/usable.h"
#include "numerics/scalar.h"

using namespace kav;

namespace {

/// A table with its flags.
class Table {
 public:
  Table(const matrix* m, int n, int p) : values_(m, n, p), flags_(m, n, p) {}

  usable::Present column(int j) const { return {values_.column(j), flags_.column(j)}; }
  bool isPresent(int i, int j) const { return column(j)(i); }
  double operator()(int i, int j) const { return values_.column(j)[i]; }

  bool isFilled(int i, int j) const { return isPresent(i, j) && (*this)(i, j) != 0.0; }

  bool areEqual(int i, int j, int k, int l) const {
    const bool present = isPresent(i, j);
    return present == isPresent(k, l) && (!present || (*this)(i, j) == (*this)(k, l));
  }

 private:
  block::Values values_;
  block::Flags flags_;
};

/// Cells of square tables that are looked at together with their mirrored ones: both stay in the cache.
constexpr int kTile = 32;

/// Whether holds(i, j) for all i > j.
template <class Holds>
bool everywhereBelow(int n, Holds holds) {
  for (int column = 0; column < n; column += kTile) {
    for (int row = column; row < n; row += kTile) {
      for (int j = column; j < std::min(n, column + kTile); ++j) {
        for (int i = std::max(row, j + 1); i < std::min(n, row + kTile); ++i) {
          if (!holds(i, j)) return false;
        }
      }
    }
  }
  return true;
}

/// Makes cell (i, j) what cell (k, l) is, flag and all.
void copyCell(matrix& m, int i, int j, int k, int l) {
  const std::int64_t to = addressing::linearIndex(i, j, m.nX), from = addressing::linearIndex(k, l, m.nX);
  if (!addressing::isInside(m, to) || !addressing::isInside(m, from)) return;
  m.missing[to] = m.missing[from];
  m.values[to] = m.values[from];
  m.descValid = 0;
}

template <class Holds>
short forEveryCell(const matrix* a, int n, int p, Holds holds) {
  const Table table(a, n, p);
  for (int j = 0; j < p && n > 0; ++j) {
    const usable::Present present = table.column(j);
    for (int i = 0; i < n; ++i) {
      if (!present(i) || !holds(present.x[i])) return kFalse;
    }
  }
  return kTrue;
}

/// The groups of a table of indicators; 0 when it is none.
int groupsOf(const matrix* a, int n, int p, const short* exclude) {
  if (!addressing::cellCount(n, p)) return 0;
  std::vector<int> rows;
  usable::forEach(n, usable::NotExcludedIfGiven(exclude), [&](int i) { rows.push_back(i); });
  if (rows.empty()) return 0;
  const Table table(a, n, p);
  std::vector<char> hasOne(static_cast<std::size_t>(n));
  std::size_t ones = 0;
  int groups = 0;
  for (int j = 0; j < p; ++j) {
    const usable::Present present = table.column(j);
    for (int i : rows) {
      const double cell = present.x[i];
      if (!present(i) || (cell != 0.0 && cell != 1.0)) return 0;
      if (cell == 0.0) continue;
      if (hasOne[static_cast<std::size_t>(i)]) return 0;
      hasOne[static_cast<std::size_t>(i)] = 1;
      ++ones;
    }
    if (ones < rows.size()) continue;
    ++groups;
    ones = 0;
    std::fill(hasOne.begin(), hasOne.end(), char{0});
  }
  return ones > 0 ? 0 : groups;
}

}  // namespace

short M_IsSymmetric(const matrix* t, int n) {
  const Table table(t, n, n);
  return asFlag(everywhereBelow(n, [&](int i, int j) { return table.areEqual(i, j, j, i); }));
}

short M_IsDiagConstant(const matrix* t, int n) {
  const Table table(t, n, n);
  for (int i = 1; i < n; ++i) {
    if (!table.areEqual(i, i, 0, 0)) return kFalse;
  }
  return kTrue;
}

int M_IsTriangular(matrix* t, int n, short update) {
  bool lower = true, upper = true;
  {
    const Table table(t, n, n);
    lower = everywhereBelow(n, [&](int i, int j) { return !table.isFilled(j, i); });
    upper = everywhereBelow(n, [&](int i, int j) { return !table.isFilled(i, j); });
  }
  if (update == kTrue && lower != upper && t != nullptr) {
    everywhereBelow(n, [&](int i, int j) {
      if (lower) {
        copyCell(*t, j, i, i, j);
      } else {
        copyCell(*t, i, j, j, i);
      }
      return true;
    });
  }
  return (lower ? 1 : 0) + (upper ? 2 : 0);
}

short M_IsDisjTable(const matrix* a, int n, int p, const short* exclude, int* variables) {
  const int groups = groupsOf(a, n, p, exclude);
  results::give(variables, groups);
  return asFlag(groups > 0);
}

short M_IsIn01(const matrix* a, int n, int p) {
  return forEveryCell(a, n, p, [](double x) { return x >= 0.0 && x <= 1.0; });
}

short M_IsLong(const matrix* a, int n, int p) { return forEveryCell(a, n, p, scalar::IsLong); }

short M_IsPositive(const matrix* a, int n, int p, const short* rowFlags, short strictly) {
  const usable::NotExcludedIfGiven used(rowFlags);
  const block::Values cells(a, n, p);
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < n; ++i) {
      const double x = cells.column(j)[i];
      if (used(i) && !(strictly == kTrue ? x > 0.0 : x >= 0.0)) return kFalse;
    }
  }
  return kTrue;
}

int M_IsColConstant(const matrix* a, int n, int p) {
  if (n < 1) return 0;
  const block::Values cells(a, n, p);
  for (int j = 0; j < p; ++j) {
    const double* column = cells.column(j);
    if (std::all_of(column + 1, column + n, [=](double x) { return x == *column; })) return j + 1;
  }
  return 0;
}
