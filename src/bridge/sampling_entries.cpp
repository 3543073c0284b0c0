// Entries of the sampling family: samples of rows, indicators.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/sampling/indicators.h"
#include "kavoratb1c/sampling/samples.h"

using namespace kav;

using namespace bridge;

namespace {

/// Runs a scheme that draws at random.
template <class Scheme>
void draw(Scheme scheme, BSTR* iMat, int n, int p, int size, BSTR* oMat, double* idx, int* ioSeed,
          VARIANT_BOOL iSeedInit, int* oSeed) {
  const InText a(iMat, n, p);
  OutText rows(oMat);
  OutTable positions(idx, size, 1);
  InOutInt seed(ioSeed);
  OutInt next(oSeed);
  scheme(a, n, p, size, rows, positions, seed, iSeedInit, next);
  store(rows, positions, seed, next);
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
  InOutInt seed(ioSeed);
  OutInt next(oSeed);
  GenerateRandomIndicator(x, n, n1, seed, iSeedInit, next);
  store(x, seed, next);
}

void entries::VB_GenerateIndicator(double* iVector, int n, int iStart, int iEnd) {
  OutTable x(iVector, n, 1, InPlaceUnlessRead());
  GenerateIndicator(x, n, iStart, iEnd);
  store(x);
}
