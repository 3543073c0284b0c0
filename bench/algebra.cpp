// Products, statistics, covariances and inverses of tables.

#include "algebra/products.h"

#include <Eigen/Dense>
#include <cmath>
#include <memory>
#include <vector>

#include "algebra/covariance.h"
#include "algebra/elementwise.h"
#include "algebra/standardization.h"
#include "kernels/kernels.h"
#include "peers.h"
#include "platform/calling.h"
#include "ratios.h"
#include "support/random.h"

extern "C" {
int KAV_CALL VB_M_ProductAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);
int KAV_CALL VB_M_Transpose(double* iAMat, int n, int p, double* oTransMat);
}

namespace {

using Table = Eigen::Map<const Eigen::MatrixXd>;

struct Data {
  Data(int rows, int columns) : n(rows), p(columns), a(new matrix(n, p)), b(new matrix(n, p)), c(nullptr) {
    Random random(41);
    for (std::ptrdiff_t k = 0; k < std::ptrdiff_t{n} * p; ++k) {
      a->values[k] = random.uniform(-4.0, 4.0);
      b->values[k] = random.uniform(-4.0, 4.0);
    }
  }
  Data(const Data&) = delete;
  ~Data() {
    delete a;
    delete b;
    delete c;
  }

  Table mapA() const { return {a->values, n, p}; }
  Table mapB() const { return {b->values, n, p}; }

  int n, p;
  matrix *a, *b, *c;
  Eigen::MatrixXd result;
};

template <class F>
std::function<void()> keeping(std::shared_ptr<Data> data, F f) {
  return [data = std::move(data), f] { f(*data); };
}

/// The definition, cell by cell through the accessors.
void productByAccessors(const Data& d) {
  matrix c(d.n, d.p, 0.0);
  for (int i = 1; i <= d.n; ++i) {
    for (int j = 1; j <= d.p; ++j) {
      double sum = 0.0;
      for (int k = 1; k <= d.p; ++k) sum += d.a->vbget(i, k) * d.b->vbget(k, j);
      c.vbset(i, j, sum);
    }
  }
}

/// The library's kernel for one instruction set, without the worker around it.
void productByKernel(Data& d, const kernels::Table& kernel) {
  matrix::matCheck(d.c, d.n, d.p, 0.0);
  const kernels::Product product = {{d.a->values, 1, d.n},
                                    {d.b->values, 1, d.n},
                                    nullptr,
                                    0,
                                    d.n,
                                    d.p,
                                    d.p,
                                    d.c->values,
                                    d.n,
                                    false,
                                    false};
  std::vector<double> scratch(kernels::productScratch(product));
  kernel.product(product, scratch.data());
}

std::string sizes(int n, int p) { return std::to_string(n) + " x " + std::to_string(p); }

void enterProducts(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "M_ProductAB of " + sizes(n, n);
  contest(work, "library", keeping(data, [](Data& d) { M_ProductAB(d.a, d.n, d.n, d.b, d.n, d.c); }));
  int count;
  const kernels::Table* const* kernels = kernels::supported(&count);
  for (int k = 0; k < count; ++k) {
    contest(work, std::string("kernel ") + kernels[k]->name,
            keeping(data, [kernel = kernels[k]](Data& d) { productByKernel(d, *kernel); }));
  }
  contest(work, "Eigen, SSE2", keeping(data, [](Data& d) { d.result.noalias() = d.mapA() * d.mapB(); }));
  if (count > 1) {
    contest(work, "Eigen, AVX2 with fused multiply-add", keeping(data, [](Data& d) {
              d.result.resize(d.n, d.n);
              peers::productAvx2(d.a->values, d.b->values, d.n, d.n, d.n, d.result.data());
            }));
  }
  if (n <= 256) contest(work, "loop through the accessors", keeping(data, productByAccessors));
}

void enterTallProducts() {
  const auto data = std::make_shared<Data>(20000, 50);
  const std::string size = " of 20,000 x 50";
  contest("M_ProductTrAB" + size, "library",
          keeping(data, [](Data& d) { M_ProductTrAB(d.a, d.n, d.p, d.b, d.p, d.c); }));
  contest("M_ProductTrAB" + size, "Eigen, SSE2",
          keeping(data, [](Data& d) { d.result.noalias() = d.mapA().transpose() * d.mapB(); }));
  contest("M_ProductTrAA" + size, "library",
          keeping(data, [](Data& d) { M_ProductTrAA(d.a, d.n, d.p, d.c); }));
  contest("M_ProductTrAA" + size, "Eigen, SSE2, rankUpdate", keeping(data, [](Data& d) {
            d.result.setZero(d.p, d.p);
            d.result.selfadjointView<Eigen::Lower>().rankUpdate(d.mapA().transpose());
          }));
}

void enterStatistics() {
  const auto data = std::make_shared<Data>(1000000, 10);
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
  contest("M_SumByCols of 1,000,000 x 10", "library", keeping(data, [](Data& d) {
            matrix sums(d.p, 1);
            M_SumByCols(d.a, d.n, d.p, &sums);
          }));
  contest("M_SumByCols of 1,000,000 x 10", "a copy of the table",
          keeping(data, [](Data& d) { std::copy_n(d.a->values, std::ptrdiff_t{d.n} * d.p, d.b->values); }));
}

void enterCovariances() {
  const auto data = std::make_shared<Data>(100000, 20);
  const auto weights = std::make_shared<matrix>(data->n, 1, 1.0);
  const std::string work = "M_CovCorr of 100,000 x 20";
  contest(work, "library", keeping(data, [weights](Data& d) {
            M_CovCorr(d.a, d.n, d.p, d.c, 0, nullptr, weights.get(), kTrue, kTrue);
          }));
  contest(work, "Eigen, SSE2, centred product", keeping(data, [](Data& d) {
            const Eigen::MatrixXd centred = d.mapA().rowwise() - d.mapA().colwise().mean();
            d.result.noalias() = centred.transpose() * centred / (d.n - 1);
          }));
  peers::enterArmadilloCovariance(work, data->a->values, data->n, data->p);
}

void enterInverses(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "inverse1 of " + sizes(n, n);
  contest(work, "library", keeping(data, [](Data& d) {
            short singular = 0;
            matrix::matCheck(d.c, d.n, d.n, 0.0);
            d.a->inverse1(d.c, singular, -1.0);
          }));
  contest(work, "Eigen, SSE2", keeping(data, [](Data& d) { d.result = d.mapA().inverse(); }));
  peers::enterArmadilloInverse(work, data->a->values, n);
}

void enterMemoryBound() {
  const auto data = std::make_shared<Data>(1000, 1000);
  const auto copy =
      keeping(data, [](Data& d) { std::copy_n(d.a->values, std::ptrdiff_t{d.n} * d.p, d.b->values); });
  contest("M_Transpose of 1000 x 1000", "library",
          keeping(data, [](Data& d) { M_Transpose(d.a, d.n, d.p, d.c); }));
  contest("M_Transpose of 1000 x 1000", "a copy of the table", copy);
  contest("M_Transpose of 1000 x 1000", "Eigen",
          keeping(data, [](Data& d) { d.result = d.mapA().transpose(); }));
  contest("M_ScalarsA of 1000 x 1000", "library",
          keeping(data, [](Data& d) { M_ScalarsA(d.a, d.n, d.p, 2.385, d.b); }));
  contest("M_ScalarsA of 1000 x 1000", "a copy of the table", copy);
}

void enterEntries() {
  const auto data = std::make_shared<Data>(1000, 1000);
  contest("VB_M_ProductAB of 1000 x 1000", "library", keeping(data, [](Data& d) {
            d.result.resize(d.n, d.n);
            VB_M_ProductAB(d.a->values, d.n, d.n, d.b->values, d.n, d.result.data());
          }));
  contest("VB_M_ProductAB of 1000 x 1000", "the worker alone",
          keeping(data, [](Data& d) { M_ProductAB(d.a, d.n, d.n, d.b, d.n, d.c); }));
  contest("VB_M_Transpose of 1000 x 1000", "library", keeping(data, [](Data& d) {
            d.result.resize(d.n, d.n);
            VB_M_Transpose(d.a->values, d.n, d.n, d.result.data());
          }));
  contest("VB_M_Transpose of 1000 x 1000", "the worker alone",
          keeping(data, [](Data& d) { M_Transpose(d.a, d.n, d.n, d.c); }));
}

}  // namespace

void enterAlgebra() {
  for (int n : {2, 10, 16, 64, 256, 512, 1000}) enterProducts(n);
  enterTallProducts();
  enterStatistics();
  enterCovariances();
  for (int n : {10, 100, 500}) enterInverses(n);
  enterMemoryBound();
  enterEntries();
}
