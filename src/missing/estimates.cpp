#include "kavoratb1c/missing/estimates.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "access/taking_part.h"
#include "access/texts.h"
#include "access/usable.h"
#include "missing/cells_to_fill.h"
#include "stats/label_totals.h"
#include "stats/weighted_mean.h"

using namespace kav;

namespace {

/// Fills the missing cells of each column with valueOf(column), where that is one. All values are found
/// before a cell is filled: columns of an extent beyond the container overlap.
template <class Container, class ValueOf, class IsOne>
void fillColumns(Container* a, int n, int p, ValueOf valueOf, IsOne isOne) {
  if (n < 1) return;
  std::vector<decltype(valueOf(0))> values;
  values.reserve(static_cast<std::size_t>(std::max(p, 0)));
  for (int j = 0; j < p; ++j) values.push_back(valueOf(j));
  for (int j = 0; j < p; ++j) {
    const auto& value = values[static_cast<std::size_t>(j)];
    if (!isOne(value)) continue;
    missing::forEachInColumn(a, n, j, [&](int, std::int64_t k) { missing::fill(*a, k, value); });
  }
}

}  // namespace

void EstimateRowsWithMissingMean(matrix* a, int n, int p, const short* flags, const matrix* w) {
  EstimateRowsWithMissingMeanPred(a, n, a, n, p, flags, w);
}

void EstimateRowsWithMissingMeanPred(const matrix* learned, int m, matrix* a, int n, int p,
                                     const short* flags, const matrix* w) {
  const block::Values values(learned, m, p);
  const block::Flags flagged(learned, m, p);
  const usable::RowWeights weights(w, m);
  const usable::TakesPart takesPart(usable::NotExcludedIfGiven(flags), weights);
  fillColumns(
      a, n, p,
      [&](int j) {
        const usable::Present present(values.column(j), flagged.column(j));
        return weightedMean(
            m, [=](int i) { return takesPart(i) && present(i); }, [=](int i) { return present.x[i]; },
            weights.of());
      },
      [](double mean) { return std::isfinite(mean); });
}

void EstimateRowsWithMissingMode(Smatrix* a, int n, int p, const short* flags, const matrix* w) {
  EstimateRowsWithMissingModePred(a, n, a, n, p, flags, w);
}

void EstimateRowsWithMissingModePred(const Smatrix* learned, int m, Smatrix* a, int n, int p,
                                     const short* flags, const matrix* w) {
  const usable::RowWeights weights(w, m);
  const usable::TakesPart takesPart(usable::NotExcludedIfGiven(flags), weights);
  fillColumns(
      a, n, p,
      [&](int j) {
        LabelTotals totals;
        usable::forEach(m, takesPart, [&](int i) { totals.add(texts::cell(learned, i, j), weights[i]); });
        return std::u16string(totals.mode().text);
      },
      [](const std::u16string& mode) { return !mode.empty(); });
}
