// Products of tables and vectors, inverses.

#include "kavoratb1c/algebra/products.h"

#include <Eigen/Dense>
#include <memory>
#include <vector>

#include "data.h"
#include "definitions/lu.h"
#include "kernels/kernels.h"
#include "peers.h"
#include "ratios.h"

using namespace kav;

namespace {

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

void productByLibrary(Data& d) { M_ProductAB(d.a, d.n, d.n, d.b, d.n, d.c); }

void enterSquareProducts(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "M_ProductAB of " + sizes(n, n);
  contest(work, "library", keeping(data, productByLibrary));
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
  // No machine has room for so large a diagonal table. Beyond its cells it reads -1.0, at the same cost.
  const auto diagonal = std::make_shared<matrix>(data->n, 1, 2.385);
  contest("M_ProductTrADA" + size, "library",
          keeping(data, [diagonal](Data& d) { M_ProductTrADA(d.a, d.n, d.p, diagonal.get(), d.c); }));
  contest("M_ProductTrADA" + size, "Eigen, SSE2", keeping(data, [diagonal](Data& d) {
            const Eigen::Map<const Eigen::VectorXd> scales(diagonal->values, d.n);
            d.result.noalias() = d.mapA().transpose() * (scales.asDiagonal() * d.mapA());
          }));
}

void enterWideProducts() {
  const auto data = std::make_shared<Data>(50, 20000);
  const std::string work = "M_ProductATrA of 50 x 20,000";
  contest(work, "library", keeping(data, [](Data& d) { M_ProductATrA(d.a, d.n, d.p, d.c); }));
  contest(work, "Eigen, SSE2, rankUpdate", keeping(data, [](Data& d) {
            d.result.setZero(d.n, d.n);
            d.result.selfadjointView<Eigen::Lower>().rankUpdate(d.mapA());
          }));
}

void enterVectorProducts() {
  const auto data = std::make_shared<Data>(1000, 1000);
  const auto vector = std::make_shared<matrix>(data->n, 1, 2.385);
  const auto mapped = [vector] { return Eigen::Map<const Eigen::VectorXd>(vector->values, vector->nX); };
  contest("M_ProductBV of 1000 x 1000", "library", keeping(data, [vector](Data& d) {
            matrix::matCheck(d.c, d.n, 1, 0.0);
            M_ProductBV(d.a, d.n, d.p, vector.get(), d.c);
          }));
  contest("M_ProductBV of 1000 x 1000", "Eigen, SSE2",
          keeping(data, [mapped](Data& d) { d.result.noalias() = d.mapA() * mapped(); }));
  contest("M_ProductVB of 1000 x 1000", "library",
          keeping(data, [vector](Data& d) { M_ProductVB(vector.get(), d.n, d.a, d.p, d.c); }));
  contest("M_ProductVB of 1000 x 1000", "Eigen, SSE2",
          keeping(data, [mapped](Data& d) { d.result.noalias() = d.mapA().transpose() * mapped(); }));
}

void enterInverses(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "inverse1 of " + sizes(n, n);
  contest(work, "library", keeping(data, [](Data& d) {
            short singular = 0;
            matrix::matCheck(d.c, d.n, d.n, 0.0);
            d.a->inverse1(d.c, singular, -1.0);
          }));
  contest(work, "plain loops", keeping(data, [](Data& d) {
            d.result.resize(d.n, d.n);
            definitions::invert(definitions::Cells{d.copyInB()->values, d.n}, d.n,
                                definitions::Cells{d.result.data(), d.n}, 0.0);
          }));
  contest(work, "Eigen, SSE2", keeping(data, [](Data& d) { d.result = d.mapA().inverse(); }));
  peers::enterArmadilloInverse(work, data->a->values, n);
}

/// Time by n^3, so that a size at which a cache ends, or rows fall on each other, stands out.
void enterGrowth() {
  for (int n : {10, 20, 50, 100, 200, 500, 1000, 2000}) {
    contest("M_ProductAB by n^3 of " + withThousands(n) + " rows", "library",
            keeping(std::make_shared<Data>(n, n), productByLibrary), 1.0 * n * n * n);
  }
}

}  // namespace

void enterProducts() {
  openTable("Products and inverses of tables");
  for (int n : {2, 10, 16, 64, 256, 512, 1000}) enterSquareProducts(n);
  enterTallProducts();
  enterWideProducts();
  enterVectorProducts();
  for (int n : {10, 100, 500}) enterInverses(n);
  openTable("Growth of products");
  enterGrowth();
}
