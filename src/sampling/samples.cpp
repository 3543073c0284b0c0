#include "kavoratb1c/sampling/samples.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "numerics/scalar.h"
#include "sampling/draws.h"

using namespace kav;

namespace {

constexpr int kNoRow = -1;

void takeRows(const Smatrix* a, int n, int p, const std::vector<int>& rows, Smatrix*& out) {
  Smatrix::matCheck(out, static_cast<int>(rows.size()), p);
  texts::fill(*out, [&](int i, int j) {
    const int row = rows[static_cast<std::size_t>(i)];
    return row >= 0 && row < n ? texts::cell(a, row, j) : std::u16string_view();
  });
}

/// @param rowOf  gives row k (0-based) of a sample of `count`, the rows that the scheme takes of the table
template <class RowOf>
void sample(const Smatrix* a, int n, int p, int size, int count, Smatrix*& out, matrix*& idx, RowOf rowOf) {
  std::vector<int> rows(static_cast<std::size_t>(std::max(size, 0)), kNoRow);
  for (int k = 0; k < count; ++k) rows[static_cast<std::size_t>(k)] = rowOf(k);
  takeRows(a, n, p, rows, out);
  results::refilled(idx, size, 1, 1, [&](block::Target& target) {
    std::transform(rows.begin(), rows.end(), target.data(),
                   [](int row) { return row == kNoRow ? kMissing : row + 1.0; });
  });
}

/// Where an interval begins, 0-based.
int beginOf(int interval, int n, int count) { return static_cast<int>(std::int64_t{interval} * n / count); }

}  // namespace

void M_SamplingWithReplacement(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                               int* seed, short seedIsGiven, int* nextSeed) {
  RandomNumbers random = started(seed, seedIsGiven);
  sample(a, n, p, size, n < 1 ? 0 : size, out, idx, [&](int) { return random.below(n); });
  random.GetSeedUpdate(nextSeed);
}

void M_SamplingSystematicCentered(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx) {
  const int count = withoutReplacement(n, size);
  sample(a, n, p, size, count, out, idx, [&](int k) {
    const int begin = beginOf(k, n, count), last = beginOf(k + 1, n, count) - 1;
    return begin + (last - begin) / 2;
  });
}

void M_SamplingSystematicRdStart(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                 int* seed, short seedIsGiven, int* nextSeed) {
  RandomNumbers random = started(seed, seedIsGiven);
  const int count = withoutReplacement(n, size);
  const int start = count < 1 ? 0 : random.below(n);
  sample(a, n, p, size, count, out, idx,
         [&](int k) { return static_cast<int>((std::int64_t{k} * n + start) / count); });
  random.GetSeedUpdate(nextSeed);
}

void M_SamplingRandomStratified(const Smatrix* a, int n, int p, int size, Smatrix*& out, matrix*& idx,
                                int* seed, short seedIsGiven, int* nextSeed) {
  RandomNumbers random = started(seed, seedIsGiven);
  const int count = withoutReplacement(n, size);
  sample(a, n, p, size, count, out, idx, [&](int k) {
    const int begin = beginOf(k, n, count);
    return begin + random.below(beginOf(k + 1, n, count) - begin);
  });
  random.GetSeedUpdate(nextSeed);
}

void M_SampleUserDefined(const Smatrix* a, int n, int p, Smatrix*& out, const matrix* idx) {
  const block::Values positions(idx, n);
  std::vector<int> rows(static_cast<std::size_t>(std::max(n, 0)), kNoRow);
  for (int i = 0; i < n; ++i) {
    const int position = scalar::truncateToInt(positions[i]);
    if (position >= 1) rows[static_cast<std::size_t>(i)] = position - 1;
  }
  takeRows(a, n, p, rows, out);
}
