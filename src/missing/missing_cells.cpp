#include "kavoratb1c/missing/missing_cells.h"

#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "access/usable.h"
#include "missing/cells_to_fill.h"

using namespace kav;

namespace {

/// How many cells of each row of a table are missing.
template <class Container>
std::vector<int> missingOfRows(const Container* a, int n, int p) {
  std::vector<int> counts(static_cast<std::size_t>(std::max(n, 0)));
  for (int j = 0; j < p; ++j) {
    missing::forEachInColumn(a, n, j, [&](int i, std::int64_t) { ++counts[static_cast<std::size_t>(i)]; });
  }
  return counts;
}

template <class Container>
void flagRows(const Container* a, int n, int p, short* missing, short* allMissing) {
  const std::vector<int> counts = missingOfRows(a, n, p);
  for (int i = 0; i < n; ++i) {
    const int count = counts[static_cast<std::size_t>(i)];
    if (missing != nullptr) missing[i] = asFlag(missing[i] != 0 || count > 0);
    if (allMissing != nullptr) allMissing[i] = asFlag(count > 0 && count == p);
  }
}

template <class Container, class Value>
void replaceMissing(Container* a, int n, int p, const Value& value) {
  for (int j = 0; j < p; ++j) {
    missing::forEachInColumn(a, n, j, [&](int, std::int64_t k) { missing::fill(*a, k, value); });
  }
}

template <class IsFlagged>
void summarize(int n, int* count, short* flagged, IsFlagged isFlagged) {
  int total = 0;
  for (int i = 0; i < n; ++i) {
    const bool is = isFlagged(i);
    total += is ? 1 : 0;
    if (flagged != nullptr) flagged[i] = asFlag(is);
  }
  results::give(count, total);
}

/// The rows that remain, and how many the result has.
struct Remaining {
  Remaining(int n, int p, int removed, const short* flags) {
    const std::int64_t left = std::int64_t{std::max(n, 0)} - removed;
    count = static_cast<int>(std::clamp<std::int64_t>(left, 0, std::max(n, 0)));
    if (p < 1) return;
    rows.reserve(static_cast<std::size_t>(count));
    usable::forEach(n, usable::NotExcludedIfGiven(flags), [&](int i) {
      if (rows.size() < static_cast<std::size_t>(count)) rows.push_back(i);
    });
  }

  bool has(int i) const { return i < static_cast<int>(rows.size()); }
  int operator[](int i) const { return rows[static_cast<std::size_t>(i)]; }

  int count;
  std::vector<int> rows;
};

template <class IsMissing>
void flagMissingOrExcluded(int n, const short* exclude, matrix*& out, IsMissing isMissing) {
  results::keep(out, n, 1);
  block::Target flags(out, n);
  const usable::NotExcludedIfGiven used(exclude);
  for (int i = 0; i < n; ++i) flags[i] = asFlag(!used(i) || isMissing(i));
  flags.store();
}

}  // namespace

void M_NbMissing(const matrix* a, int n, int p, int* counts) {
  if (counts == nullptr || p < 1) return;
  const block::Values values(a, n, p);
  const block::Flags flags(a, n, p);
  for (int j = 0; j < p; ++j) {
    counts[j] = n < 1 ? 0 : screening::countMissing(values.column(j), flags.column(j), n);
  }
}

void M_NbMissing(const Smatrix* a, int n, int p, int* counts) {
  for (int j = 0; j < p && counts != nullptr; ++j) {
    counts[j] = 0;
    // Unlike numbers, texts are missing outside the container too.
    for (int i = 0; i < n; ++i) counts[j] += texts::cell(a, i, j).empty() ? 1 : 0;
  }
}

void M_NbNonMissing(const matrix* a, int n, int p, int* counts) {
  M_NbMissing(a, n, p, counts);
  for (int j = 0; j < p && counts != nullptr; ++j) counts[j] = std::max(n, 0) - counts[j];
}

void M_AllMissingRows(const matrix* a, int n, int p, short* missing, short* allMissing) {
  flagRows(a, n, p, missing, allMissing);
}

void M_AllMissingRows(const Smatrix* a, int n, int p, short* missing, short* allMissing) {
  flagRows(a, n, p, missing, allMissing);
}

void SummarizeMissing(int n, int* count, short* flagged, const short* first, const short* second,
                      const short* third) {
  const auto isSet = [](const short* flags, int i) { return flags != nullptr && flags[i] != 0; };
  summarize(n, count, flagged, [&](int i) { return isSet(first, i) || isSet(second, i) || isSet(third, i); });
}

void SummarizeAllMissing(int n, const short* first, const short* second, int* count, short* flagged) {
  const auto saysSo = [](const short* flags, int i) { return flags == nullptr || flags[i] != 0; };
  const bool anyGiven = first != nullptr || second != nullptr;
  summarize(n, count, flagged, [&](int i) { return anyGiven && saysSo(first, i) && saysSo(second, i); });
}

void RemoveRowsWithMissing(const matrix* a, int n, int p, int removed, const short* flags, matrix*& out) {
  const Remaining rows(n, p, removed, flags);
  const block::Values cells(a, n, p);
  results::refilled(out, rows.count, p, 1, [&](block::Target& target) {
    results::fill(target, rows.count, p, [&](int j) {
      return [&rows, column = cells.column(j)](int i) { return rows.has(i) ? column[rows[i]] : kMissing; };
    });
  });
}

void RemoveRowsWithMissing(const Smatrix* a, int n, int p, int removed, const short* flags, Smatrix*& out) {
  const Remaining rows(n, p, removed, flags);
  Smatrix::matCheck(out, rows.count, p);
  texts::fill(*out,
              [&](int i, int j) { return rows.has(i) ? texts::cell(a, rows[i], j) : std::u16string_view(); });
}

void M_ReplaceMissingByVal(matrix* a, int n, int p, double value) { replaceMissing(a, n, p, value); }

void M_ReplaceMissingByStr(Smatrix* a, int n, int p, const std::u16string& value) {
  replaceMissing(a, n, p, value);
}

void M_SetWeightsToZeroForMissing(const matrix* a, int n, int p, matrix* w, int pW) {
  if (!results::haveCells(n, pW)) return;
  const std::vector<int> counts = missingOfRows(a, n, p);
  block::Target weights(w, n, pW);
  for (int j = 0; j < pW; ++j) {
    double* column = weights.column(j);
    for (int i = 0; i < n; ++i) {
      if (counts[static_cast<std::size_t>(i)] > 0) column[i] = 0.0;
    }
  }
  weights.store();
}

void ReplaceMissingObsLabels(Smatrix* labels, int n, const short* flags, const std::u16string& prefix) {
  if (labels == nullptr || flags == nullptr) return;
  const auto count = std::clamp<std::int64_t>(addressing::cellCount(*labels), 0, std::max(n, 0));
  for (std::int64_t i = 0; i < count; ++i) {
    if (flags[i] == 0) continue;
    const std::string number = std::to_string(i + 1);
    labels->cells[i] = prefix + std::u16string(number.begin(), number.end());
  }
}

void V_GetMissingDbl(const matrix* x, int n, const short* exclude, matrix*& out) {
  const usable::Cells cells(x, n);
  const usable::Present present(cells);
  flagMissingOrExcluded(n, exclude, out, [&](int i) { return !present(i); });
}

void V_GetMissingStr(const Smatrix* x, int n, const short* exclude, matrix*& out) {
  flagMissingOrExcluded(n, exclude, out, [&](int i) { return texts::labelAt(x, i).empty(); });
}
