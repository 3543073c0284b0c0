#include "kavoratb1c/stats/ranks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "access/results.h"
#include "access/usable.h"
#include "sort/ordering.h"

using namespace kav;

using results::give;

namespace {

using ordering::RowOrder;

/// Writes the ranks of n cells to ranks and returns the sizes of the groups of ties.
///
/// @param w        null makes every rank the marker
/// @param rounded  applied to the rank of a group
template <class Rounded>
std::vector<int> ranksWithTies(const double* x, int n, const double* w, double* ranks, Rounded rounded) {
  std::vector<int> sizes;
  if (w == nullptr) {
    std::fill_n(ranks, n, kMissing);
    return sizes;
  }
  const RowOrder order(x, n, false);
  const double firstWeight = n < 1 ? 0.0 : w[order[0]];
  for (int k = 0, end; k < n; k = end) {
    const double value = x[order[k]];
    double sum = (k + 1.0) * firstWeight;
    double total = firstWeight;
    for (end = k + 1; end < n && x[order[end]] == value; ++end) {
      sum += (end + 1.0) * w[order[end]];
      total += w[order[end]];
    }
    const bool tied = end - k > 1;
    const double rank = tied ? rounded(sum / total) : k + 1.0;
    for (int i = k; i < end; ++i) ranks[order[i]] = rank;
    if (tied) sizes.push_back(end - k);
  }
  return sizes;
}

template <class Rounded>
void ranksWithTies(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties, matrix*& tieSizes,
                   Rounded rounded) {
  const block::Values cells(x, n), weights(w, n);
  results::keep(ranks, n, 1);
  block::Target target(ranks, n);
  const std::vector<int> sizes =
      ranksWithTies(cells.data(), n, w == nullptr ? nullptr : weights.data(), target.data(), rounded);
  const auto count = static_cast<int>(sizes.size());
  results::keepWithRoom(tieSizes, count);
  block::Target groups(tieSizes, count);
  std::copy(sizes.begin(), sizes.end(), groups.data());
  target.store();
  groups.store();
  give(ties, count);
}

double asItIs(double rank) { return rank; }

double roundedDown(double rank) { return std::floor(rank); }

/// The cells in ascending order, each value once, as it comes first.
std::vector<double> distinctValues(const matrix* x, int n) {
  const block::Values cells(x, n);
  std::vector<double> values(cells.data(), cells.data() + std::max(n, 0));
  ordering::sortAscending(values.data(), static_cast<int>(values.size()));
  values.erase(std::unique(values.begin(), values.end()), values.end());
  return values;
}

}  // namespace

void V_GetRanks(const matrix* x, int n, matrix*& ranks) {
  const block::Values cells(x, n);
  const RowOrder order(cells.data(), n, false);
  results::keep(ranks, n, 1);
  block::Target target(ranks, n);
  double rank = 0.0;
  double before = 0.0;
  for (int k = 0; k < n; ++k) {
    const double value = cells[order[k]];
    if (k == 0 || value != before) rank += 1.0;
    before = value;
    target[order[k]] = rank;
  }
  target.store();
}

void V_GetRanksTies(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties, matrix*& tieSizes) {
  ranksWithTies(x, n, w, ranks, ties, tieSizes, asItIs);
}

void V_GetRanksTiesInt(const matrix* x, int n, const matrix* w, matrix*& ranks, int* ties,
                       matrix*& tieSizes) {
  ranksWithTies(x, n, w, ranks, ties, tieSizes, roundedDown);
}

void M_GetRanksTies(const matrix* a, int n, int p, const matrix* w, matrix*& ranks, int* ties) {
  const block::Values cells(a, n, p), weights(w, n);
  results::keep(ranks, n, p);
  block::Target target(ranks, n, p);
  for (int j = 0; j < p; ++j) {
    const auto sizes =
        ranksWithTies(cells.column(j), n, w == nullptr ? nullptr : weights.data(), target.column(j), asItIs);
    if (ties != nullptr) ties[j] = static_cast<int>(sizes.size());
  }
  target.store();
}

int V_NbDistinct(const matrix* x, int n) { return static_cast<int>(distinctValues(x, n).size()); }

void V_ExtractDistinct(const matrix* x, int n, matrix*& out, int* count) {
  const std::vector<double> values = distinctValues(x, n);
  const auto size = static_cast<int>(values.size());
  results::keep(out, size, 1);
  block::Target target(out, size);
  std::copy(values.begin(), values.end(), target.data());
  target.store();
  give(count, size);
}
