// Entries of the sampling family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "core/results.h"
#include "sampling/samples.h"

using namespace bridge;

namespace {

/// The seeds of a call, kept from the macro until its results are there.
class Seeds {
 public:
  Seeds(int* seed, int* next) : toSeed_(required(seed, 1, 1)), toNext_(next), seed_(*seed) {}

  int* seed() { return &seed_; }
  int* next() { return &next_; }

  void prepare() const {}
  void write() const noexcept {
    *toSeed_ = seed_;
    results::give(toNext_, next_);
  }

 private:
  int *toSeed_, *toNext_;
  int seed_, next_ = 0;
};

/// Runs a scheme that draws at random.
template <class Scheme>
void draw(Scheme scheme, BSTR* iMat, int n, int p, int size, BSTR* oMat, double* idx, int* ioSeed,
          VARIANT_BOOL iSeedInit, int* oSeed) {
  const InText a(iMat, n, p);
  OutText rows(oMat);
  OutTable positions(idx, size, 1);
  Seeds seeds(ioSeed, oSeed);
  scheme(a, n, p, size, rows, positions, seeds.seed(), iSeedInit, seeds.next());
  store(rows, positions, seeds);
}

}  // namespace

void entries::VB_M_SamplingWithReplacement(BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx,
                                           int* ioSeed, VARIANT_BOOL iSeedInit, int* oSeed) {
  draw(M_SamplingWithReplacement, iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed);
}

void entries::VB_M_SamplingSystematicRdStart(BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat,
                                             double* idx, int* ioSeed, VARIANT_BOOL iSeedInit, int* oSeed) {
  draw(M_SamplingSystematicRdStart, iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed);
}

void entries::VB_M_SamplingRandomStratified(BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx,
                                            int* ioSeed, VARIANT_BOOL iSeedInit, int* oSeed) {
  draw(M_SamplingRandomStratified, iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed);
}

void entries::VB_M_SamplingSystematicCentered(BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat,
                                              double* idx) {
  const InText a(iMat, n, p);
  OutText rows(oMat);
  OutTable positions(idx, SampleSize, 1);
  M_SamplingSystematicCentered(a, n, p, SampleSize, rows, positions);
  store(rows, positions);
}

void entries::VB_M_SampleUserDefined(BSTR* iMat, int n, int p, BSTR* oMat, double* idx) {
  const InText a(iMat, n, p);
  const InVector positions(idx, n, Cells::KeepAll);
  OutText rows(oMat);
  M_SampleUserDefined(a, n, p, rows, positions);
  store(rows);
}

void entries::VB_GenerateRandomIndicator(double* iVector, int n, int n1, int* ioSeed, VARIANT_BOOL iSeedInit,
                                         int* oSeed) {
  OutTable x(iVector, n, 1);
  Seeds seeds(ioSeed, oSeed);
  GenerateRandomIndicator(x, n, n1, seeds.seed(), iSeedInit, seeds.next());
  store(x, seeds);
}
