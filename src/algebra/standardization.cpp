#include "kavoratb1c/algebra/standardization.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "access/results.h"
#include "access/taking_part.h"
#include "algebra/shared_rows.h"
#include "kavoratb1c/stats/vector_transforms.h"
#include "numerics/moments.h"
#include "numerics/scalar.h"

using namespace kav;

using moments::Denominator;
using moments::Moments;

namespace {

double squareOf(double x) { return x * x; }

/// A number, where it can be computed. It may be any, the marker too.
struct Statistic {
  bool known = false;
  double value = kMissing;
};

/// Mean and variance of a column.
struct Statistics {
  Statistics() = default;
  Statistics(double columnMean, double squares, double divisor)
      : mean{true, columnMean}, variance(divisor <= 0.0 ? Statistic() : Statistic{true, squares / divisor}) {}
  Statistics(const Moments& m, const Denominator& denominator) {
    if (m.count() != 0.0) *this = {m.mean(), m.squares(), denominator.of(m.total(), m.count())};
  }

  Statistic deviation() const {
    return variance.known ? Statistic{true, scalar::sqr(variance.value)} : Statistic();
  }

  Statistic mean;
  Statistic variance;
};

/// A table with weights, as the columns' statistics are taken from it.
class Columns {
 public:
  Columns(const matrix* a, int n, int p, const short* rowFlags, const matrix* weights)
      : n_(n),
        cells_(a, n, p),
        flags_(a, n, p),
        rowFlags_(rowFlags),
        givenWeights_(weights),
        weights_(weights, n) {}

  const double* column(int j) const { return cells_.column(j); }

  /// @param missingMode  as for M_MeanStDev
  Moments momentsOf(int j, short missingMode) const {
    if (missingMode == kTrue) return accumulated<Moments>(j, present(j));
    return missingMode == kFalse ? accumulated<Moments>(j, notExcluded()) : Moments();
  }

  /// All columns over the rows without a flag.
  std::vector<Statistics> statisticsOfAll(int p, const Denominator& denominator) const {
    std::vector<Statistics> all(static_cast<std::size_t>(std::max(p, 0)));
    if (p < 1) return all;
    shared_rows::RowBlocks rows(n_, rowFlags_, givenWeights_);
    shared_rows::Columns columns(p);
    while (rows.next()) {
      columns.add(rows, [this](int j) { return column(j); }, {});
    }
    if (rows.used == 0) return all;
    for (int j = 0; j < p; ++j) {
      all[static_cast<std::size_t>(j)] =
          Statistics(columns.mean(j), columns.squares(j), denominator.of(rows.total(), rows.used));
    }
    return all;
  }

  /// The mean alone.
  double meanOf(int j) const { return accumulated<moments::Mean>(j, notExcluded()).value(); }

  /// Sum of the squares of the cells that are present, in rows that take part.
  double squaresOf(int j) const {
    const usable::Present isPresent = present(j);
    double sum = 0.0;
    usable::forEachTakingPart(n_, notExcluded(), weights_, [&](int i, double) {
      if (isPresent(i)) sum += column(j)[i] * column(j)[i];
    });
    return sum;
  }

 private:
  usable::Present present(int j) const { return {column(j), flags_.column(j)}; }
  usable::NotExcludedIfGiven notExcluded() const { return usable::NotExcludedIfGiven(rowFlags_); }

  template <class Accumulator, class Rule>
  Accumulator accumulated(int j, Rule rule) const {
    Accumulator m;
    usable::forEachTakingPart(n_, rule, weights_, [&](int i, double w) { m.add(column(j)[i], w); });
    return m;
  }

  int n_;
  block::Values cells_;
  block::Flags flags_;
  const short* rowFlags_;
  const matrix* givenWeights_;
  usable::RowWeights weights_;
};

/// Writes a statistic to cell j of a vector, or flags the cell where there is none.
void put(matrix* vector, int j, const Statistic& x) {
  if (vector == nullptr) return;
  if (x.known) {
    vector->setElement(j, x.value);
  } else {
    vector->setMissing(j, true);
  }
}

int statistics(const matrix* a, int n, int p, matrix* means, matrix* stdevs, matrix* variances,
               const short* rowFlags, const matrix* weights, const Denominator& denominator,
               short missingMode) {
  if (p < 1) return 0;
  const Columns columns(a, n, p, rowFlags, weights);
  const std::vector<Statistics> all =
      missingMode == kFalse ? columns.statisticsOfAll(p, denominator) : std::vector<Statistics>();
  for (int j = 0; j < p; ++j) {
    const Statistics s = missingMode == kFalse ? all[static_cast<std::size_t>(j)]
                                               : Statistics(columns.momentsOf(j, missingMode), denominator);
    put(means, j, s.mean);
    put(stdevs, j, s.deviation());
    put(variances, j, s.variance);
  }
  return 0;
}

/// Columns of a table transformed, of(x, mean, sd); sd is 0.0 where there is none.
template <class Of>
class TransformedColumns {
 public:
  TransformedColumns(const matrix* a, int n, int p, const matrix* means, const matrix* stdevs, Of of)
      : cells_(a, n, p), centres_(means, p), scales_(stdevs, p), of_(of) {}

  auto operator()(int j) const {
    return [of = of_, x = cells_.column(j), centre = centres_[j], scale = scales_[j]](int i) {
      return of(x[i], centre, scale);
    };
  }

 private:
  block::Values cells_, centres_, scales_;
  Of of_;
};

template <class Of>
void transform(const matrix* a, int n, int p, const matrix* means, const matrix* stdevs, matrix* target,
               Of of) {
  const TransformedColumns columns(a, n, p, means, stdevs, of);
  results::fillInto(target, n, p, [&](int j) { return columns(j); });
}

constexpr auto centred = [](double x, double mean, double) { return x - mean; };
constexpr auto reduced = [](double x, double, double sd) { return sd > 0.0 ? x / sd : 0.0; };
constexpr auto standardized = [](double x, double mean, double sd) {
  return sd > 0.0 ? (x - mean) / sd : 0.0;
};

/// The columns transformed by their own statistics.
template <class Of>
void transformByOwn(const matrix* a, int n, int p, const matrix* weights, matrix* target,
                    const Denominator& denominator, Of of) {
  if (!results::haveCells(n, p)) return;
  matrix means(p, 1, 0.0), stdevs(p, 1, 0.0);
  statistics(a, n, p, &means, &stdevs, nullptr, nullptr, weights, denominator, kFalse);
  // A column without a used row has no mean: centring leaves it as it is.
  transform(a, n, p, &means, &stdevs, target, of);
}

void threeByFirst(matrix* first, int n1, int p, matrix* second, int n2, matrix* third, int n3,
                  double factor) {
  if (!results::haveCells(n1, p)) return;
  matrix means(p, 1, 0.0), stdevs(p, 1, 0.0);
  statistics(first, n1, p, &means, &stdevs, nullptr, nullptr, nullptr, Denominator(kTrue, kTrue), kFalse);
  const auto scaled = [=](double x, double mean, double sd) {
    return sd > 0.0 ? standardized(x, mean, sd) * factor : 0.0;
  };
  transform(first, n1, p, &means, &stdevs, first, scaled);
  if (second != nullptr) transform(second, n2, p, &means, &stdevs, second, scaled);
  if (third != nullptr) transform(third, n3, p, &means, &stdevs, third, scaled);
}

/// Each column as a vector of its own, with its flags, through byVector(vector, exclude, result), into
/// target.
template <class ByVector>
void columnByColumn(const matrix* a, int n, int p, const short* flags, matrix* target, ByVector byVector) {
  if (!results::haveCells(n, p)) return;
  const block::Values cells(a, n, p);
  const block::Flags missing(a, n, p);
  const std::vector<short> none(flags == nullptr ? static_cast<std::size_t>(n) : 0);
  std::vector<double> whole(addressing::elementsInMemory<double>(n, p));
  matrix vector(n, 1), result(n, 1), *made = &result;
  for (int j = 0; j < p; ++j) {
    std::copy_n(cells.column(j), n, vector.values);
    std::copy_n(missing.column(j), n, vector.missing);
    byVector(&vector, flags == nullptr ? none.data() : flags + std::ptrdiff_t{n} * j, made);
    std::copy_n(result.values, n, whole.data() + std::ptrdiff_t{n} * j);
  }
  results::copyInto(target, n, p, whole.data());
}

}  // namespace

int M_MeanStDev(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, const short* rowFlags,
                const matrix* weights, short unbiased, short frequencyWeights, short missingMode) {
  results::refill(means, p, 1);
  if (stdevs != nullptr) results::refill(stdevs, p, 1);
  return statistics(a, n, p, means, stdevs, nullptr, rowFlags, weights,
                    Denominator(unbiased, frequencyWeights), missingMode);
}

int M_MeanStDevVar(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, matrix*& variances,
                   const short* rowFlags, const matrix* weights, short unbiased, short frequencyWeights) {
  for (matrix** vector : {&means, &stdevs, &variances}) results::refill(*vector, p, 1);
  return statistics(a, n, p, means, stdevs, variances, rowFlags, weights,
                    Denominator(unbiased, frequencyWeights), kFalse);
}

void M_MeanStDevVarOneInMat(const matrix* a, int n, int column, double* mean, double* stdev, double* variance,
                            const short* rowFlags, const matrix* weights, short unbiased,
                            short frequencyWeights) {
  const int j = std::max(column, 0);
  const Columns columns(a, n, j, rowFlags, weights);
  const Statistics s(j < 1 ? Moments() : columns.momentsOf(j - 1, kFalse),
                     Denominator(unbiased, frequencyWeights));
  results::give(mean, s.mean.value);
  results::give(stdev, s.deviation().value);
  results::give(variance, s.variance.value);
}

int M_Mean(const matrix* a, int n, int p, matrix*& means, const short* rowFlags, const matrix* weights) {
  results::refill(means, p, 1);
  if (p < 1) return 0;
  const Columns columns(a, n, p, rowFlags, weights);
  for (int j = 0; j < p; ++j) means->setElement(j, columns.meanOf(j));
  return 0;
}

void M_Center(const matrix* a, int n, int p, matrix*& out) { M_CenterW(a, n, p, nullptr, out); }

void M_CenterW(const matrix* a, int n, int p, const matrix* weights, matrix*& out) {
  results::keepAny(out, n, p);
  transformByOwn(a, n, p, weights, out, Denominator(kFalse, kFalse), centred);
}

void M_Center2(matrix*& a, int n, int p) { M_CenterW(a, n, p, nullptr, a); }

void M_CenterW2(matrix*& a, int n, int p, const matrix* weights) { M_CenterW(a, n, p, weights, a); }

void M_Reduce(const matrix* a, int n, int p, matrix*& out, short unbiased) {
  M_ReduceW(a, n, p, nullptr, out, unbiased);
}

void M_ReduceW(const matrix* a, int n, int p, const matrix* weights, matrix*& out, short unbiased) {
  results::keepAny(out, n, p);
  transformByOwn(a, n, p, weights, out, Denominator(unbiased, kFalse), reduced);
}

void M_Reduce2(matrix*& a, int n, int p, short unbiased) { M_ReduceW(a, n, p, nullptr, a, unbiased); }

void M_ReduceW2(matrix*& a, int n, int p, const matrix* weights, short unbiased) {
  M_ReduceW(a, n, p, weights, a, unbiased);
}

void M_Standardize2(matrix*& a, int n, int p, short unbiased) { M_StandardizeW2(a, n, p, nullptr, unbiased); }

void M_StandardizeW2(matrix*& a, int n, int p, const matrix* weights, short unbiased) {
  M_StandardizeW(a, n, p, weights, unbiased, kTrue, a);
}

void M_StandardizeW(const matrix* a, int n, int p, const matrix* weights, short unbiased,
                    short frequencyWeights, matrix*& out) {
  results::keepAny(out, n, p);
  transformByOwn(a, n, p, weights, out, Denominator(unbiased, frequencyWeights), standardized);
}

void M_Standardize3(matrix*& a, int n, int p, matrix*& means, matrix*& stdevs, short unbiased) {
  results::refill(means, p, 1);
  results::refill(stdevs, p, 1);
  statistics(a, n, p, means, stdevs, nullptr, nullptr, nullptr, Denominator(unbiased, kTrue), kFalse);
  transform(a, n, p, means, stdevs, a, standardized);
}

void M_Standardize(const matrix* a, int n, int p, matrix*& out, matrix*& means, matrix*& stdevs,
                   matrix*& variances, const short* rowFlags, const matrix* weights, short unbiased,
                   short frequencyWeights) {
  M_MeanStDevVar(a, n, p, means, stdevs, variances, rowFlags, weights, unbiased, frequencyWeights);
  results::refilled(out, n, p, 1, [&](block::Target& target) {
    const TransformedColumns columns(a, n, p, means, stdevs, standardized);
    results::fill(target, n, p, [&](int j) { return columns(j); });
  });
}

int M_StandardizeKnownMeansStDev(const matrix* a, int n, int p, const matrix* means, matrix*& out,
                                 const matrix* stdevs, matrix*& variances, const short* rowFlags) {
  const block::Values cells(a, n, p), centres(means, p), given(stdevs, p);
  const block::Flags missing(a, n, p);
  const usable::NotExcludedIfGiven used(rowFlags);
  // The variances may take the place of the standard deviations.
  const std::vector<double> scales(given.data(), given.data() + std::max(p, 0));
  results::refill(variances, p, 1);
  for (int j = 0; j < p; ++j) variances->setElement(j, squareOf(scales[static_cast<std::size_t>(j)]));
  results::keepAny(out, n, p);
  results::fillInto(out, n, p, [&](int j) {
    const usable::Present present(cells.column(j), missing.column(j));
    return [=, centre = centres[j], scale = scales[static_cast<std::size_t>(j)]](int i) {
      return used(i) && present(i) ? standardized(present.x[i], centre, scale) : present.x[i];
    };
  });
  for (int j = 0; j < p; ++j) {
    const usable::Present present(cells.column(j), missing.column(j));
    for (int i = 0; i < n; ++i) {
      if (!present(i)) out->setMissing(i, j, true);
    }
  }
  return 0;
}

void M_Normalize(matrix*& a, int n, int p, matrix*& norms, const short* rowFlags, const matrix* weights,
                 short, short) {
  results::refill(norms, p, 1);
  if (p < 1) return;
  const Columns columns(a, n, p, rowFlags, weights);
  matrix divisors(p, 1, 1.0);
  for (int j = 0; j < p; ++j) {
    const double norm = scalar::sqr(columns.squaresOf(j));
    norms->setElement(j, norm);
    if (norm != 0.0) divisors.values[j] = norm;
  }
  transform(a, n, p, &divisors, &divisors, a, [](double x, double, double norm) { return x / norm; });
}

void M_StandardizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third, int n3) {
  threeByFirst(first, n1, p, second, n2, third, n3, 1.0);
}

void M_NormalizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third, int n3) {
  threeByFirst(first, n1, p, second, n2, third, n3, scalar::sqr(n1 / (n1 - 1.0)));
}

void M_StandardizeByVect(const matrix* a, int n, int p, const short* flags, const matrix* weights,
                         short unbiased, matrix*& out) {
  results::keepAny(out, n, p);
  if (!results::haveCells(n, p)) return;
  const matrix ones(n, 1, 1.0);
  columnByColumn(a, n, p, flags, out, [&](const matrix* vector, const short* exclude, matrix*& result) {
    V_Standardize(vector, n, exclude, weights == nullptr ? &ones : weights, unbiased, result);
  });
}

void M_StandardizeByVect2(matrix*& a, int n, int p, const short* flags, const matrix* weights,
                          short unbiased) {
  M_StandardizeByVect(a, n, p, flags, weights, unbiased, a);
}

void M_RescaleByVect(const matrix* a, int n, int p, double lower, double upper, const short* flags,
                     matrix*& out) {
  results::keepAny(out, n, p);
  columnByColumn(a, n, p, flags, out, [&](const matrix* vector, const short* exclude, matrix*& result) {
    V_Rescale(vector, n, lower, upper, exclude, result);
  });
}

void M_RescaleByVect2(matrix*& a, int n, int p, double lower, double upper, const short* flags) {
  M_RescaleByVect(a, n, p, lower, upper, flags, a);
}
