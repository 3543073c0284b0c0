// Variances, extremes and missing tests of a vector.

#include <emmintrin.h>
#include <Eigen/Core>
#include <memory>
#include <vector>

#include "column.h"
#include "kavoratb1c/stats/vector_extremes.h"
#include "kavoratb1c/stats/vector_moments.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "platform/calling.h"
#include "ratios.h"

using namespace kav;

extern "C" {
void KAV_CALL VB_V_MeanVar(double* iVector, int n, double* Mean, double* Var, short* iMissing, double* w,
                           short Unbiased, short BiasIsOne);
double KAV_CALL VB_V_Quantile(double* X, int n, double Prob);
void KAV_CALL VB_V_PlusVal(double* iVector, int n, double ival, short* iMissing);
void KAV_CALL VB_V_GetRanksTiesDbl(double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal,
                                   double* oNbTies);
int KAV_CALL VB_SortQDbl(double* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound,
                         double* ioMaster, double* ioSlave2, int pSlave2, short iSortdown,
                         short updateMaster);
}

namespace {

/// The update of the variance as it is written down, for rows that all take part.
double plainVariance(const Column& data) {
  double total = 0.0, count = 0.0, mean = 0.0, squares = 0.0;
  for (int i = 0; i < data.n; ++i) {
    const double w = data.weights->values[i];
    total += w;
    count += 1.0;
    const double d = data.cells->values[i] - mean;
    squares += (w - w * w / total) * (d * d);
    mean += w / total * d;
  }
  return squares / (total - total / count);
}

/// Nothing but one packed division for each row.
double divisionsOnly(const Column& data) {
  __m128d sum = _mm_setzero_pd();
  for (int i = 0; i < data.n; ++i) {
    const __m128d w = _mm_set1_pd(data.weights->values[i]);
    sum = _mm_add_pd(sum, _mm_div_pd(w, _mm_set1_pd(data.cells->values[i])));
  }
  return _mm_cvtsd_f64(sum);
}

/// Nothing but the chain that each row's mean is of the one before.
double meanChainOnly(const Column& data) {
  double mean = 0.0;
  for (int i = 0; i < data.n; ++i) mean += 0.385 * (data.cells->values[i] - mean);
  return mean;
}

/// Reads doubles, flags and exclusions once, in any order.
double readOnce(const Column& data) {
  __m128d sums[4] = {};
  __m128i bytes = _mm_setzero_si128();
  int i = 0;
  for (; i + 16 <= data.n; i += 16) {
    for (int k = 0; k < 8; ++k) {
      sums[k % 4] = _mm_add_pd(sums[k % 4], _mm_loadu_pd(data.cells->values + i + 2 * k));
    }
    bytes = _mm_or_si128(bytes, _mm_loadu_si128(reinterpret_cast<const __m128i*>(data.cells->missing + i)));
    const short* exclude = data.exclude.data() + i;
    bytes = _mm_or_si128(bytes, _mm_loadu_si128(reinterpret_cast<const __m128i*>(exclude)));
    bytes = _mm_or_si128(bytes, _mm_loadu_si128(reinterpret_cast<const __m128i*>(exclude + 8)));
  }
  const __m128d sum = _mm_add_pd(_mm_add_pd(sums[0], sums[1]), _mm_add_pd(sums[2], sums[3]));
  double rest = 0.0;
  for (; i < data.n; ++i) rest += data.cells->values[i];
  return _mm_cvtsd_f64(sum) + rest + _mm_cvtsi128_si32(bytes);
}

/// The rule of the extremes, cell by cell on the fields.
double plainRange(const Column& data) {
  double min = data.cells->values[0], max = min;
  for (int i = 1; i < data.n; ++i) {
    const double cell = data.cells->values[i];
    if (data.exclude[static_cast<std::size_t>(i)] != 0 || data.cells->missing[i] || cell == kMissing)
      continue;
    if (cell < min) min = cell;
    if (cell > max) max = cell;
  }
  return max - min;
}

void enterRows(const std::string& rows, int n) {
  const auto data = std::make_shared<Column>(n);
  const std::string variance = "V_MeanVar of " + rows;
  contest(variance, "library", keeping(data, [](const Column& d) {
            double mean, var;
            V_MeanVar(d.cells.get(), d.n, &mean, &var, d.exclude.data(), d.weights.get(), -1, 0);
            return var;
          }));
  contest(variance, "one packed division for each row, nothing else", keeping(data, divisionsOnly));
  contest(variance, "the chain of means, nothing else", keeping(data, meanChainOnly));
  contest(variance, "plain loop without any test", keeping(data, plainVariance));
  contest(variance, "Eigen, two passes, no missing cells", keeping(data, [](const Column& d) {
            const Eigen::Map<const Eigen::ArrayXd> x(d.cells->values, d.n), w(d.weights->values, d.n);
            const double total = w.sum();
            const double mean = (w * x).sum() / total;
            return (w * (x - mean).square()).sum() / (total - total / d.n);
          }));

  const std::string extremes = "V_MinMax of " + rows;
  contest(extremes, "library", keeping(data, [](const Column& d) {
            double min, max;
            V_MinMax(d.cells.get(), d.n, &min, &max, d.exclude.data());
            return max - min;
          }));
  contest(extremes, "the memory read once", keeping(data, readOnce));
  contest(extremes, "plain loop on the fields", keeping(data, plainRange));
  const std::string missing = "V_NbMissing of " + rows;
  contest(missing, "library", keeping(data, [](const Column& d) { return V_NbMissing(d.cells.get(), d.n); }));
  contest(missing, "the memory read once", keeping(data, readOnce));
}

void enterEntriesOfFewRows() {
  const auto data = std::make_shared<Column>(10);
  contest("VB_V_MeanVar of 10 rows", "library", keeping(data, [](Column& d) {
            double mean, var;
            VB_V_MeanVar(d.x.data(), d.n, &mean, &var, d.exclude.data(), d.w.data(), -1, 0);
            return var;
          }));
  contest("VB_V_MeanVar of 10 rows", "plain loop without any test", keeping(data, plainVariance));
  contest("VB_V_Quantile of 10 rows", "library",
          keeping(data, [](Column& d) { return VB_V_Quantile(d.x.data(), d.n, 0.3); }));
  contest("VB_V_PlusVal of 10 rows", "library", keeping(data, [](Column& d) {
            VB_V_PlusVal(d.x.data(), d.n, 0.0, d.exclude.data());
            return d.x[0];
          }));
  contest("VB_V_PlusVal of 10 rows", "plain loop", keeping(data, [](Column& d) {
            for (std::size_t i = 0; i < d.x.size(); ++i) d.x[i] += d.exclude[i] == 0 ? 0.0 : 1.0;
            return d.x[0];
          }));
  const auto extra = std::make_shared<Column>(10);
  contest("VB_V_GetRanksTiesDbl of 10 rows", "library", keeping(data, [extra](Column& d) {
            int ties;
            VB_V_GetRanksTiesDbl(d.x.data(), d.n, d.w.data(), extra->x.data(), &ties, extra->w.data());
            return ties;
          }));
  contest("VB_SortQDbl of 10 rows", "library", keeping(data, [extra](Column& d) {
            return VB_SortQDbl(extra->x.data(), d.n, 1, 1, d.n, d.x.data(), extra->w.data(), 1, 0, 0);
          }));
  contest("VB_V_Quantile of 10 rows", "a copy sorted by std::sort", keeping(data, [](Column& d) {
            std::vector<double> copy(d.x);
            std::sort(copy.begin(), copy.end());
            return copy[2];
          }));
}

}  // namespace

void enterVectorStatistics() {
  openTable("Sums, means, variances, extremes");
  enterRows("10 rows", 10);
  enterRows("1,000,000 rows", 1000000);
  enterEntriesOfFewRows();
}
