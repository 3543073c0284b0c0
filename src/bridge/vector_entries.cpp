// Entries of vector statistics: sums, means, variances, shape, fit.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/stats/goodness_of_fit.h"
#include "kavoratb1c/stats/other_means.h"
#include "kavoratb1c/stats/quantiles.h"
#include "kavoratb1c/stats/vector_moments.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/scalar.h"

using namespace kav;

using namespace bridge;

double entries::VB_V_Sum(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n);
  const OptionalVector weights(w, n);
  return V_Sum(x, n, iMissing, weights);
}

double entries::VB_V_Sum2Dbl(double* iVector, int n) {
  const InVector x(iVector, n);
  return V_Sum2(x, n);
}

int entries::VB_V_Sum2Lng(int* iVector, int n) {
  const InInts x(iVector, n);
  return scalar::truncateToInt(V_Sum2(x, n));
}

double entries::VB_V_SumFromTo(double* iVect, int n, int iFrom, int iTo) {
  const InVector x(iVect, n);
  return V_SumFromTo(x, n, iFrom, iTo);
}

int entries::VB_V_SumFromToLng(int* iVect, int n, int iFrom, int iTo) {
  const InInts x(iVect, n);
  return scalar::truncateToInt(V_SumFromTo(x, n, iFrom, iTo));
}

double entries::VB_V_SumSq(double* iVect, int n) {
  const InVector x(iVect, n);
  return V_SumSq(x, n);
}

double entries::VB_V_SumSqW(double* iVect, int n, double* w) {
  const InVector x(iVect, n);
  const InVector weights(w, n);
  return V_SumSqW(x, n, weights);
}

double entries::VB_V_DiffSq(double* iVect1, int n, double* iVect2) {
  const InVector x(iVect1, n);
  const InVector y(iVect2, n);
  return V_DiffSq(x, n, y);
}

double entries::VB_V_ProductTrV1V2(double* iV1, int n, double* iV2) {
  const InVector x(iV1, n, Cells::KeepAll);
  const InVector y(iV2, n, Cells::KeepAll);
  return V_ProductTrV1V2(x, n, y);
}

double entries::VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_Mean(x, n, iMissing, weights);
}

double entries::VB_V_MeanAbs(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_MeanAbs(x, n, iMissing, weights);
}

double entries::VB_V_HarmonicMean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n, Cells::KeepAll);
  const InVector weights(w, n, Cells::KeepAll);
  return V_HarmonicMean(x, n, iMissing, weights);
}

void entries::VB_V_GMeanGSD(double* iVector, int n, VARIANT_BOOL* iMissing, double* w, double* oGMean,
                            double* oGSD) {
  const InVector x(iVector, n, Cells::KeepAll);
  const InVector weights(w, n, Cells::KeepAll);
  OutDouble mean(oGMean), deviation(oGSD);
  V_GMeanGSD(x, n, iMissing, weights, mean, deviation);
  store(mean, deviation);
}

double entries::VB_V_MeanAbsDev(double* iVector, int n, double iMean, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n, Cells::KeepAll);
  const InVector weights(w, n, Cells::KeepAll);
  return V_MeanAbsDev(x, n, iMean, iMissing, weights);
}

double entries::VB_V_MedianAbsDev(double* iVector, int n, double iMedian, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_MedianAbsDev(x, n, iMedian, iMissing, weights);
}

double entries::VB_V_NbIf(double* iVect, int n, double ival) {
  const InVector x(iVect, n);
  return V_NbIf(x, n, ival);
}

double entries::VB_V_SumIf(double* iVect, int n, double* iVect2, double ival) {
  const InVector x(iVect, n);
  const InVector criterion(iVect2, n);
  return V_SumIf(x, n, criterion, ival);
}

double entries::VB_V_MeanIf(double* iVect, int n, double* iVect2, double ival) {
  const InVector x(iVect, n);
  const InVector criterion(iVect2, n);
  return V_MeanIf(x, n, criterion, ival);
}

double entries::VB_V_VarIf(double* iVect, int n, double* iVect2, double ival, VARIANT_BOOL iBiased) {
  const InVector x(iVect, n);
  const InVector criterion(iVect2, n);
  return V_VarIf(x, n, criterion, ival, iBiased);
}

double entries::VB_V_Var(double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                         VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_Var(x, n, iMissing, weights, Unbiased, BiasIsOne);
}

double entries::VB_V_Stdev(double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                           VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_Stdev(x, n, iMissing, weights, Unbiased, BiasIsOne);
}

void entries::VB_V_MeanVar(double* iVector, int n, double* Mean, double* Var, VARIANT_BOOL* iMissing,
                           double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  OutDouble mean(Mean), variance(Var);
  V_MeanVar(x, n, mean, variance, iMissing, weights, Unbiased, BiasIsOne);
  store(mean, variance);
}

void entries::VB_V_MeanStdev(double* iVector, int n, double* Mean, double* StDev, VARIANT_BOOL* iMissing,
                             double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  OutDouble mean(Mean), deviation(StDev);
  V_MeanStdev(x, n, mean, deviation, iMissing, weights, Unbiased, BiasIsOne);
  store(mean, deviation);
}

void entries::VB_V_MeanVarSkewPKurtP(double* iVector, int n, double* Mean, double* Var, double* SkewP,
                                     double* KurtP, double* SkewF, double* KurtF, VARIANT_BOOL* iMissing,
                                     double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  OutDouble mean(Mean), variance(Var), skewP(SkewP), kurtP(KurtP), skew(SkewF), kurt(KurtF);
  V_MeanVarSkewPKurtP(x, n, mean, variance, skewP, kurtP, skew, kurt, iMissing, weights, Unbiased, BiasIsOne);
  store(mean, variance, skewP, kurtP, skew, kurt);
}

double entries::VB_CorrelPearson(double* iVector1, double* iVector2, int n, VARIANT_BOOL* iMissing, double* w,
                                 VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InVector x(iVector1, n);
  const InVector y(iVector2, n);
  const InVector weights(w, n);
  return CorrelPearson(x, y, n, iMissing, weights, Unbiased, BiasIsOne);
}

double entries::VB_MAPE(double* Y, double* YPred, int n, double* w, int binf) {
  const InVector obs(Y, n);
  const InVector pred(YPred, n);
  const OptionalVector weights(w, n);
  return MAPE(obs, pred, n, weights, binf);
}

double entries::VB_MPE(double* Y, double* YPred, int n, double* w, int binf) {
  const InVector obs(Y, n, Cells::KeepAll);
  const InVector pred(YPred, n, Cells::KeepAll);
  const InVector weights(w, n);
  return MPE(obs, pred, n, weights, binf);
}

double entries::VB_MAE(double* Y, double* YPred, int n, double* w, int binf) {
  const InVector obs(Y, n, Cells::KeepAll);
  const InVector pred(YPred, n, Cells::KeepAll);
  const InVector weights(w, n);
  return MAE(obs, pred, n, weights, binf);
}

double entries::VB_RMSE(double* Y, int nY, int p, double* PredY, int DF) {
  const InTable obs(Y, nY, p, Cells::KeepAll);
  const InTable pred(PredY, nY, p, Cells::KeepAll);
  return RMSE(obs, nY, p, pred, DF);
}
