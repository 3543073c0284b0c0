#include "sort/ordering.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <map>
#include <numeric>
#include <vector>

#include "sort/radix.h"

namespace kav::ordering {

namespace {

/// Up to these sizes insertion costs less than anything that needs memory; from the second on three passes
/// over buckets cost less than comparing.
constexpr int kFewRows = 32;
constexpr int kManyRows = 400;
constexpr int kManyCells = 2000;

bool isNan(double x) { return std::isnan(x); }

/// NaN behind everything else.
bool precedes(double a, double b) { return a < b || (isNan(b) && !isNan(a)); }

bool inOrder(const double* keys, int count, bool descending) {
  int i = 1;
  if (descending) {
    while (i < count && keys[i - 1] >= keys[i]) ++i;
  } else {
    while (i < count && keys[i - 1] <= keys[i]) ++i;
  }
  return i >= count;
}

void orderByMultimap(const double* keys, int count, bool descending, int* rows) {
  std::multimap<double, int> entries;
  if (descending) {
    for (int i = count - 1; i >= 0; --i) entries.emplace(keys[i], i);
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) *rows++ = entry->second;
  } else {
    for (int i = 0; i < count; ++i) entries.emplace(keys[i], i);
    for (const auto& entry : entries) *rows++ = entry.second;
  }
}

/// The leading half of a key, and its row: half the memory that sorting whole keys moves.
struct Lead {
  std::uint32_t key;
  int row;
};

/// @param invert  all ones to sort the keys descending, else 0
template <class Less>
void orderByRadix(const double* keys, int count, std::uint32_t invert, Less less, int* rows) {
  const auto size = static_cast<std::size_t>(count);
  Scratch<Lead> first(size), second(size);
  for (int i = 0; i < count; ++i) first[i] = {radix::lead(keys[i] + 0.0) ^ invert, i};
  Lead* sorted = radix::sort(first.data(), second.data(), size, [](const Lead& lead) { return lead.key; });
  radix::sortRuns(
      sorted, size, [](const Lead& a, const Lead& b) { return a.key == b.key; },
      [less](const Lead& a, const Lead& b) { return less(a.row, b.row); });
  for (int k = 0; k < count; ++k) rows[k] = sorted[k].row;
}

template <class Less>
void orderBySorting(const double* keys, int count, std::uint32_t invert, Less less, int* rows) {
  if (count >= kManyRows) {
    orderByRadix(keys, count, invert, less, rows);
    return;
  }
  std::iota(rows, rows + count, 0);
  if (count <= kFewRows) {
    radix::insertionSort(rows, rows + count, less);
  } else {
    std::stable_sort(rows, rows + count, less);
  }
}

/// Signs of the zeros of a vector, which sorts by value or by bits lose.
class ZeroSigns {
 public:
  ZeroSigns(const double* x, int count) {
    const bool any = std::any_of(x, x + count, [](double cell) { return cell == 0.0 && std::signbit(cell); });
    if (any) std::copy_if(x, x + count, std::back_inserter(zeros_), [](double cell) { return cell == 0.0; });
  }

  void restore(double* begin, double* end) const {
    std::copy(zeros_.begin(), zeros_.end(), std::lower_bound(begin, end, 0.0));
  }

 private:
  std::vector<double> zeros_;
};

/// @param x  no NaN among them
void sortByRadix(double* x, int count) {
  const auto size = static_cast<std::size_t>(count);
  Scratch<double> scratch(size);
  double* sorted = radix::sort(x, scratch.data(), size, radix::lead);
  radix::sortRuns(
      sorted, size, [](double a, double b) { return radix::lead(a) == radix::lead(b); }, std::less<double>());
  if (sorted != x) std::copy_n(sorted, size, x);
}

/// Gives zeros among the neighbours the sign that the stable order has there.
Neighbours withSignsOfZeros(const double* x, int count, int k, Neighbours found) {
  if (found.at != 0.0 && found.next != 0.0) return found;
  int place = static_cast<int>(std::count_if(x, x + count, [](double cell) { return cell < 0.0; }));
  for (int i = 0; i < count; ++i) {
    if (x[i] != 0.0) continue;
    if (place == k) found.at = x[i];
    if (place == std::min(k + 1, count - 1)) found.next = x[i];
    ++place;
  }
  return found;
}

/// @param x  scratch, no NaN among them
Neighbours select(double* x, int count, int k) {
  std::nth_element(x, x + k, x + count);
  return {x[k], k + 1 < count ? *std::min_element(x + k + 1, x + count) : x[k]};
}

/// One bucket for each pattern of sign, exponent and leading four bits.
constexpr std::size_t kBuckets = 65536;

std::size_t bucketOf(double x) { return radix::lead(x + 0.0) >> 16; }

/// select by counting first how many cells fall into each bucket, so that only one bucket's cells are copied.
///
/// @param x  no NaN among them
Neighbours selectByBuckets(const double* x, int count, int k) {
  std::vector<int> sizes(kBuckets);
  for (int i = 0; i < count; ++i) ++sizes[bucketOf(x[i])];
  std::size_t bucket = 0;
  int below = 0;
  while (below + sizes[bucket] <= k) below += sizes[bucket++];
  std::size_t following = bucket + 1;
  while (following < kBuckets && sizes[following] == 0) ++following;

  Scratch<double> cells(static_cast<std::size_t>(sizes[bucket]));
  double* cell = cells.data();
  double next = HUGE_VAL;
  for (int i = 0; i < count; ++i) {
    const std::size_t mine = bucketOf(x[i]);
    if (mine == bucket) *cell++ = x[i];
    if (mine == following) next = std::min(next, x[i]);
  }
  const int inside = k - below;
  Neighbours found = select(cells.data(), sizes[bucket], inside);
  if (inside + 1 == sizes[bucket] && following < kBuckets) found.next = next;
  return found;
}

}  // namespace

RowOrder::RowOrder(const double* keys, int count, bool descending)
    : inPlace_(inOrder(keys, count, descending)), rows_(inPlace_ ? 0 : static_cast<std::size_t>(count)) {
  if (inPlace_) return;
  int* rows = rows_.data();
  if (std::any_of(keys, keys + count, isNan)) {
    orderByMultimap(keys, count, descending, rows);
  } else if (descending) {
    orderBySorting(
        keys, count, 0xFFFFFFFFu, [keys](int a, int b) { return keys[a] > keys[b]; }, rows);
  } else {
    orderBySorting(
        keys, count, 0, [keys](int a, int b) { return keys[a] < keys[b]; }, rows);
  }
}

void sortAscending(double* x, int count) {
  if (inOrder(x, count, false)) return;
  if (std::any_of(x, x + count, isNan)) {
    std::stable_sort(x, x + count, precedes);
    return;
  }
  const ZeroSigns signs(x, count);
  if (count >= kManyCells) {
    sortByRadix(x, count);
  } else {
    std::sort(x, x + count);
  }
  signs.restore(x, x + count);
}

void sortAscending(int* x, int count) {
  if (count < kManyCells) {
    std::sort(x, x + std::max(count, 0));
    return;
  }
  const auto size = static_cast<std::size_t>(count);
  Scratch<int> scratch(size);
  const int* sorted = radix::sort(x, scratch.data(), size,
                                  [](int cell) { return static_cast<std::uint32_t>(cell) ^ 0x80000000u; });
  if (sorted != x) std::copy_n(sorted, size, x);
}

Neighbours neighboursAt(const double* x, int count, int k) {
  constexpr int kMany = 8192;
  const bool anyNan = std::any_of(x, x + count, isNan);
  if (count >= kMany && !anyNan) return withSignsOfZeros(x, count, k, selectByBuckets(x, count, k));
  Scratch<double> cells(static_cast<std::size_t>(count));
  const double* end = std::remove_copy_if(x, x + count, cells.data(), isNan);
  const auto numbers = static_cast<int>(end - cells.data());
  if (k >= numbers) return {NAN, NAN};
  Neighbours found = select(cells.data(), numbers, k);
  if (k + 1 == numbers && numbers < count) found.next = NAN;
  return withSignsOfZeros(x, count, k, found);
}

}  // namespace kav::ordering
