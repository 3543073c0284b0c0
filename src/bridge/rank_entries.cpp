// Entries of quantiles, ranks and frequencies.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/stats/frequencies.h"
#include "kavoratb1c/stats/quantiles.h"
#include "kavoratb1c/stats/ranks.h"

using namespace kav;

using namespace bridge;

double entries::VB_V_Quantile(double* X, int n, double Prob) {
  const InVector x(X, n, Cells::KeepAll);
  return V_Quantile(x, n, Prob);
}

double entries::VB_V_QuantileW(double* X, int n, double* w, double Prob) {
  const InVector x(X, n, Cells::KeepAll);
  const InVector weights(w, n);
  return V_QuantileW(x, n, weights, Prob);
}

double entries::VB_V_QuantileM(double* X, int n, VARIANT_BOOL* missing, double Prob) {
  const InVector x(X, n);
  return V_QuantileM(x, n, missing, Prob);
}

double entries::VB_V_QuantileMW(double* X, int n, VARIANT_BOOL* missing, double* w, double Prob) {
  const InVector x(X, n);
  const InVector weights(w, n);
  return V_QuantileMW(x, n, missing, weights, Prob);
}

void entries::VB_V_GetRanksDbl(double* iVect, int n, double* oRanks) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable ranks(oRanks, n, 1);
  V_GetRanks(x, n, ranks);
  store(ranks);
}

void entries::VB_V_GetRanksLng(double* iVect, int n, int* oRanks) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutInts ranks(oRanks, n, 1);
  V_GetRanks(x, n, ranks);
  store(ranks);
}

void entries::VB_V_GetRanksTiesDbl(double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal,
                                   double* oNbTies) {
  const InVector x(iVect1, n, Cells::KeepAll);
  const InVector weights(w, n);
  OutTable ranks(oRanks, n, 1), sizes(oNbTies, 0, 1);
  OutInt ties(oNbTiedVal);
  V_GetRanksTies(x, n, weights, ranks, ties, sizes);
  store(ranks, sizes, ties);
}

void entries::VB_V_GetRanksTiesIntDbl(double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal,
                                      double* oNbTies) {
  const InVector x(iVect1, n, Cells::KeepAll);
  const InVector weights(w, n);
  OutTable ranks(oRanks, n, 1), sizes(oNbTies, 0, 1);
  OutInt ties(oNbTiedVal);
  V_GetRanksTiesInt(x, n, weights, ranks, ties, sizes);
  store(ranks, sizes, ties);
}

int entries::VB_V_NbDistinct(double* iVect, int n) {
  const InVector x(iVect, n, Cells::KeepAll);
  return V_NbDistinct(x, n);
}

void entries::VB_V_ExtractDistinct(double* iVect, int n, double* oVect, int* k) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable distinct(oVect);
  OutInt count(k);
  V_ExtractDistinct(x, n, distinct, count);
  store(distinct, count);
}

double entries::VB_V_Freq(double* iVector, int n, double* w, double iValue, double iEpsilon) {
  const InVector x(iVector, n, Cells::KeepAll);
  const InVector weights(w, n);
  return V_Freq(x, n, weights, iValue, iEpsilon);
}

int entries::VB_V_FreqLng(int* iVector, int n, double* w, int iValue) {
  const InInts x(iVector, n);
  const InVector weights(w, n);
  return V_FreqLng(x, n, weights, iValue);
}

double entries::VB_V_FreqStr(BSTR* iVector, int n, double* w, BSTR iValue) {
  const InText labels(iVector, n);
  const InVector weights(w, n);
  return V_FreqStr(labels, n, weights, textOf(iValue));
}

BSTR entries::VB_V_Mode(BSTR* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InText labels(iVector, n);
  const InVector weights(w, n);
  return newString(V_Mode(labels, n, iMissing, weights));
}

void entries::VB_V_ReplaceDoubles(BSTR* LabelX, int n) {
  InOutText labels(LabelX, n);
  V_ReplaceDoubles(labels, n);
  store(labels);
}
