// Sums and means: the workers, and the entries that macros call.

#include "kavoratb1c/stats/vector_sums.h"

#include <Eigen/Core>

#include "column.h"
#include "platform/calling.h"
#include "ratios.h"

using namespace kav;

extern "C" {
double KAV_CALL VB_V_Mean(double* iVector, int n, short* iMissing, double* w);
double KAV_CALL VB_V_Sum2Dbl(double* iVector, int n);
}

namespace {

double plainSum(const Column& data) {
  double sum = 0.0;
  for (int i = 0; i < data.n; ++i) sum += data.cells->values[i];
  return sum;
}

/// The rule of the mean, cell by cell on the fields.
double plainMean(const Column& data) {
  const matrix& x = *data.cells;
  const matrix& w = *data.weights;
  double sum = 0.0, total = 0.0;
  for (int i = 0; i < data.n; ++i) {
    if (data.exclude[static_cast<std::size_t>(i)] == 0 && !x.missing[i] && x.values[i] != kMissing &&
        w.values[i] != 0.0) {
      total += w.values[i];
      sum += x.values[i] * w.values[i];
    }
  }
  return sum / total;
}

/// The same through the accessors, as a caller would write it first.
double meanByAccessors(const Column& data) {
  double sum = 0.0, total = 0.0;
  for (int i = 0; i < data.n; ++i) {
    const double weight = data.weights->getElement(i);
    if (data.exclude[static_cast<std::size_t>(i)] == 0 && !data.cells->getMissing(i) && weight != 0.0) {
      total += weight;
      sum += data.cells->getElement(i) * weight;
    }
  }
  return sum / total;
}

void enterRows(const std::string& rows, int n) {
  const auto data = std::make_shared<Column>(n);
  const std::string sum = "V_Sum2 of " + rows;
  contest(sum, "library", keeping(data, [](const Column& d) { return V_Sum2(d.cells.get(), d.n); }));
  contest(sum, "plain loop", keeping(data, plainSum));
  contest(sum, "Eigen, order of its own", keeping(data, [](const Column& d) {
            return Eigen::Map<const Eigen::VectorXd>(d.cells->values, d.n).sum();
          }));

  const std::string mean = "V_Mean of " + rows;
  contest(mean, "library", keeping(data, [](const Column& d) {
            return V_Mean(d.cells.get(), d.n, d.exclude.data(), d.weights.get());
          }));
  contest(mean, "plain loop on the fields", keeping(data, plainMean));
  contest(mean, "loop through the accessors", keeping(data, meanByAccessors));
  contest(mean, "Eigen, no missing cells, order of its own", keeping(data, [](const Column& d) {
            const Eigen::Map<const Eigen::VectorXd> x(d.cells->values, d.n), w(d.weights->values, d.n);
            return x.dot(w) / w.sum();
          }));

  const std::string entry = "VB_V_Mean of " + rows;
  contest(entry, "library",
          keeping(data, [](Column& d) { return VB_V_Mean(d.x.data(), d.n, d.exclude.data(), d.w.data()); }));
  contest(entry, "the worker alone", keeping(data, [](const Column& d) {
            return V_Mean(d.cells.get(), d.n, d.exclude.data(), d.weights.get());
          }));
  const std::string sumEntry = "VB_V_Sum2Dbl of " + rows;
  contest(sumEntry, "library", keeping(data, [](Column& d) { return VB_V_Sum2Dbl(d.x.data(), d.n); }));
  contest(sumEntry, "the worker alone",
          keeping(data, [](const Column& d) { return V_Sum2(d.cells.get(), d.n); }));
}

}  // namespace

void enterVectorSums() {
  openTable("Sums, means, variances, extremes");
  enterRows("10 rows", 10);
  enterRows("1,000,000 rows", 1000000);
}
