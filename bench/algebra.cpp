// Statistics, sums, extremes, transposes and sums of tables; what the entries add to the workers.

#include <Eigen/Core>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "data.h"
#include "kavoratb1c/algebra/covariance.h"
#include "kavoratb1c/algebra/elementwise.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/algebra/standardization.h"
#include "peers.h"
#include "plain_forms.h"
#include "platform/calling.h"
#include "ratios.h"

using namespace kav;

extern "C" {
int KAV_CALL VB_M_ProductAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);
int KAV_CALL VB_M_Transpose(double* iAMat, int n, int p, double* oTransMat);
void KAV_CALL VB_M_ScalarsA(double* iAMat, int n, int p, double s, double* osAMat);
void KAV_CALL VB_M_Sums1As2B(double* iAMat, int n, int p, double* iBMat, double s1, double S2, double* oCMat);
void KAV_CALL VB_M_Standardize2(double* ioMat, int n, int p, short Unbiased);
int KAV_CALL VB_M_CovCorr(double* iMat, int n, int p, double* CovCorr, short Correlations, short* iMissing,
                          double* w, short Unbiased, short BiasIsOne);
}

namespace {

void copyTable(Data& d) { d.copyInB(); }

/// A work that reads the table once, beside a copy of it.
template <class Once>
void enterBesideCopy(const std::string& work, const std::shared_ptr<Data>& data, Once once) {
  contest(work, "library", keeping(data, once));
  contest(work, "a copy of the table", keeping(data, copyTable));
}

void enterColumnStatistics(const std::shared_ptr<Data>& data) {
  const auto weights = std::make_shared<matrix>(data->n, 1, 1.0);
  const std::string work = "M_MeanStDev of 1,000,000 x 10";
  contest(work, "library", keeping(data, [weights](Data& d) {
            matrix *means = nullptr, *stdevs = new matrix(d.p, 1);
            M_MeanStDev(d.a, d.n, d.p, means, stdevs, nullptr, weights.get(), kTrue, kTrue, kFalse);
            delete means;
            delete stdevs;
          }));
  contest(work, "Eigen, SSE2, two passes", keeping(data, [](Data& d) {
            const Eigen::RowVectorXd means = d.mapA().colwise().mean();
            d.result = ((d.mapA().rowwise() - means).array().square().colwise().sum() / (d.n - 1)).sqrt();
          }));
  peers::enterArmadilloStatistics(work, data->a->values, data->n, data->p);
  // What is standardized can be standardized again at the same cost.
  const std::string standardization = "M_Standardize2 of 1,000,000 x 10";
  contest(standardization, "library", keeping(data, [](Data& d) { M_Standardize2(d.b, d.n, d.p, kTrue); }));
  contest(standardization, "Eigen, SSE2, three passes", keeping(data, [](Data& d) {
            Eigen::Map<Eigen::MatrixXd> table(d.b->values, d.n, d.p);
            const Eigen::RowVectorXd means = table.colwise().mean();
            table.rowwise() -= means;
            const Eigen::RowVectorXd deviations = (table.array().square().colwise().sum() / (d.n - 1)).sqrt();
            table.array().rowwise() /= deviations.array();
          }));
  peers::enterArmadilloStandardization(standardization, data->b->values, data->n, data->p);
}

void enterColumnSums(const std::shared_ptr<Data>& data) {
  const std::string size = " of 1,000,000 x 10";
  enterBesideCopy("M_SumByCols" + size, data, [](Data& d) {
    matrix sums(d.p, 1);
    M_SumByCols(d.a, d.n, d.p, &sums);
  });
  const auto sums = std::make_shared<matrix>(data->n, 1);
  enterBesideCopy("M_SumByRows" + size, data, [sums](Data& d) { M_SumByRows(d.a, d.n, d.p, sums.get()); });
  enterBesideCopy("M_Min" + size, data, [](Data& d) {
    matrix least(d.p, 1);
    M_Min(d.a, d.n, d.p, &least);
  });
  enterBesideCopy("M_Max" + size, data, [](Data& d) {
    matrix most(d.p, 1);
    M_Max(d.a, d.n, d.p, &most);
  });
  const auto none = std::make_shared<std::vector<short>>(static_cast<std::size_t>(data->n));
  enterBesideCopy("M_MinMax" + size, data, [none](Data& d) {
    matrix least(d.p, 1), most(d.p, 1);
    M_MinMax(d.a, d.n, d.p, &least, &most, none->data(), kFalse);
  });
}

void covarianceByLibrary(Data& d, const matrix* weights) {
  M_CovCorr(d.a, d.n, d.p, d.c, 0, nullptr, weights, kTrue, kTrue);
}

void covarianceByPlainLoops(Data& d, const matrix* weights) {
  d.result.resize(d.p, d.p);
  plain::covariances(d.a->values, d.a->missing, weights->values, d.n, d.p, d.result.data());
}

void enterCovariances() {
  const auto data = std::make_shared<Data>(100000, 20);
  const auto weights = std::make_shared<matrix>(data->n, 1, 1.0);
  const auto byLibrary = [weights](Data& d) { covarianceByLibrary(d, weights.get()); };
  const auto byPlainLoops = [weights](Data& d) { covarianceByPlainLoops(d, weights.get()); };
  const std::string work = "M_CovCorr of 100,000 x 20";
  contest(work, "library", keeping(data, byLibrary));
  contest(work, "plain loops over pairs", keeping(data, byPlainLoops));
  contest(work, "Eigen, SSE2, centred product", keeping(data, [](Data& d) {
            const Eigen::MatrixXd centred = d.mapA().rowwise() - d.mapA().colwise().mean();
            d.result.noalias() = centred.transpose() * centred / (d.n - 1);
          }));
  peers::enterArmadilloCovariance(work, data->a->values, data->n, data->p);

  const auto withGaps = std::make_shared<Data>(data->n, data->p);
  Random random(20);
  for (std::ptrdiff_t k = 0; k < withGaps->cells(); ++k) withGaps->a->missing[k] = random.below(20) == 0;
  contest(work + ", 5 % missing", "library", keeping(withGaps, byLibrary));
  contest(work + ", 5 % missing", "plain loops over pairs", keeping(withGaps, byPlainLoops));
}

void enterElements(const std::shared_ptr<Data>& data) {
  const std::string size = " of 1000 x 1000";
  enterBesideCopy("M_Transpose" + size, data, [](Data& d) { M_Transpose(d.a, d.n, d.p, d.c); });
  contest("M_Transpose" + size, "Eigen", keeping(data, [](Data& d) { d.result = d.mapA().transpose(); }));
  enterBesideCopy("M_ScalarsA" + size, data, [](Data& d) { M_ScalarsA(d.a, d.n, d.p, 2.385, d.b); });
  enterBesideCopy("M_ScalarsTrA" + size, data, [](Data& d) { M_ScalarsTrA(d.a, d.n, d.p, 2.385, d.c); });
  enterBesideCopy("M_APlusVal" + size, data, [](Data& d) { M_APlusVal(d.a, d.n, d.p, 2.385, d.c); });
  enterBesideCopy("M_Sums1As2B" + size, data,
                  [](Data& d) { M_Sums1As2B(d.a, d.n, d.p, d.b, 2.385, -0.5, d.c); });
}

/// An entry beside the worker that it calls.
template <class Entry, class Worker>
void enterEntry(const std::string& work, const std::shared_ptr<Data>& data, Entry entry, Worker worker) {
  contest(work + " of 1000 x 1000", "library", keeping(data, [entry](Data& d) {
            d.result.resize(d.n, d.n);
            entry(d);
          }));
  contest(work + " of 1000 x 1000", "the worker alone", keeping(data, worker));
}

void enterEntries(const std::shared_ptr<Data>& data) {
  enterEntry(
      "VB_M_ProductAB", data,
      [](Data& d) { VB_M_ProductAB(d.a->values, d.n, d.n, d.b->values, d.n, d.result.data()); },
      [](Data& d) { M_ProductAB(d.a, d.n, d.n, d.b, d.n, d.c); });
  enterEntry(
      "VB_M_Transpose", data, [](Data& d) { VB_M_Transpose(d.a->values, d.n, d.n, d.result.data()); },
      [](Data& d) { M_Transpose(d.a, d.n, d.n, d.c); });
  enterEntry(
      "VB_M_ScalarsA", data, [](Data& d) { VB_M_ScalarsA(d.a->values, d.n, d.n, 2.385, d.result.data()); },
      [](Data& d) { M_ScalarsA(d.a, d.n, d.n, 2.385, d.b); });
  enterEntry(
      "VB_M_Sums1As2B", data,
      [](Data& d) { VB_M_Sums1As2B(d.a->values, d.n, d.n, d.b->values, 2.385, -0.5, d.result.data()); },
      [](Data& d) { M_Sums1As2B(d.a, d.n, d.n, d.b, 2.385, -0.5, d.c); });
  enterEntry(
      "VB_M_Standardize2", data, [](Data& d) { VB_M_Standardize2(d.b->values, d.n, d.n, kTrue); },
      [](Data& d) { M_Standardize2(d.b, d.n, d.n, kTrue); });
  // Flags and weights are optional.
  enterEntry(
      "VB_M_CovCorr", data,
      [](Data& d) {
        VB_M_CovCorr(d.a->values, d.n, d.n, d.result.data(), kFalse, nullptr, nullptr, kTrue, kTrue);
      },
      [](Data& d) { covarianceByLibrary(d, nullptr); });
}

}  // namespace

void enterAlgebra() {
  openTable("Statistics and transposes of tables");
  const auto tall = std::make_shared<Data>(1000000, 10);
  enterColumnStatistics(tall);
  enterColumnSums(tall);
  enterCovariances();
  const auto square = std::make_shared<Data>(1000, 1000);
  enterElements(square);
  enterEntries(square);
}
