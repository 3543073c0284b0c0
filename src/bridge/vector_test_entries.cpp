// Entries of vector extremes, counts and predicates.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/stats/vector_extremes.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "kavoratb1c/stats/vector_tests.h"

using namespace kav;

using namespace bridge;

double entries::VB_V_Min(double* iVector, int n, VARIANT_BOOL* iMissing) {
  const InVector x(iVector, n, Cells::KeepAll);
  return V_Min(x, n, iMissing);
}

double entries::VB_V_Max(double* iVector, int n, VARIANT_BOOL* iMissing) {
  const InVector x(iVector, n, Cells::KeepAll);
  return V_Max(x, n, iMissing);
}

void entries::VB_V_MinMax(double* iVector, int n, double* VMin, double* VMax, VARIANT_BOOL* iMissing) {
  const InVector x(iVector, n, Cells::KeepAll);
  OutDouble min(VMin), max(VMax);
  V_MinMax(x, n, min, max, iMissing);
  store(min, max);
}

int entries::VB_V_MaxInt(int* iVector, int n, VARIANT_BOOL* iMissing) {
  const InInts x(iVector, n);
  return V_MaxInt(x, n, iMissing);
}

double entries::VB_V_MaxAndMaxPos(double* iVect, int n, int* oMaxPos) {
  const InVector x(iVect, n);
  OutInt position(oMaxPos);
  const double extreme = V_MaxAndMaxPos(x, n, position);
  store(position);
  return extreme;
}

double entries::VB_V_MinAndMinPos(double* iVect, int n, int* oMinPos) {
  const InVector x(iVect, n);
  OutInt position(oMinPos);
  const double extreme = V_MinAndMinPos(x, n, position);
  store(position);
  return extreme;
}

double entries::VB_V_TimeIntervalSize(double* iVect, int n, VARIANT_BOOL iDoSort) {
  const InVector x(iVect, n);
  return V_TimeIntervalSize(x, n, iDoSort);
}

int entries::VB_V_NbMissing(double* iVector, int n) {
  const InVector x(iVector, n);
  return V_NbMissing(x, n);
}

int entries::VB_V_NbMissingStr(BSTR* iVector, int n) {
  const InText labels(iVector, n);
  return V_NbMissing(labels, n);
}

int entries::VB_V_NbNonMissing(double* iVector, int n) {
  const InVector x(iVector, n);
  return V_NbNonMissing(x, n);
}

int entries::VB_V_NbTrue(VARIANT_BOOL* iVect, int n) {
  const InFlags x(iVect, n);
  return V_NbTrue(x, n);
}

int entries::VB_V_NbTrueFromTo(VARIANT_BOOL* iVect, int n, int nStart, int nEnd) {
  const InFlags x(iVect, n);
  return V_NbTrueFromTo(x, n, nStart, nEnd);
}

VARIANT_BOOL entries::VB_V_IsConstant(double* iVect, int n) {
  const InVector x(iVect, n, Cells::KeepAll);
  return V_IsConstant(x, n);
}

VARIANT_BOOL entries::VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n) {
  const InFlags x(iVect, n);
  return V_IsConstant(x, n);
}

VARIANT_BOOL entries::VB_V_IsPositive(double* iV, int n, VARIANT_BOOL iStrictly) {
  const InVector x(iV, n);
  return V_IsPositive(x, n, iStrictly);
}

VARIANT_BOOL entries::VB_V_IsWeights(double* iW, int nW) {
  const InVector x(iW, nW, Cells::KeepAll);
  return V_IsWeights(x, nW);
}

VARIANT_BOOL entries::VB_V_IsCWeights(double* iW, int nW) {
  const InVector x(iW, nW, Cells::KeepAll);
  return V_IsCWeights(x, nW);
}

VARIANT_BOOL entries::VB_V_IsIndicator(double* iV, int nV) {
  const InVector x(iV, nV, Cells::KeepAll);
  return V_IsIndicator(x, nV);
}

VARIANT_BOOL entries::VB_V_Is01(double* iV, int nV) {
  const InVector x(iV, nV, Cells::KeepAll);
  return V_Is01(x, nV);
}

VARIANT_BOOL entries::VB_V_IsSorted(double* iVect, int n, VARIANT_BOOL iStrictly) {
  const InVector x(iVect, n);
  return V_IsSorted(x, n, iStrictly);
}

VARIANT_BOOL entries::VB_V_IsInInterval(double* iVect, int n, double iLower, double iUpper,
                                        VARIANT_BOOL iStrictly, VARIANT_BOOL iIgnoreMissing) {
  const InVector x(iVect, n);
  return V_IsInInterval(x, n, iLower, iUpper, iStrictly, iIgnoreMissing);
}

VARIANT_BOOL entries::VB_V_V1inferiorV2(double* iVect1, int n, double* iVect2) {
  const InVector x(iVect1, n);
  const InVector y(iVect2, n);
  return V_V1inferiorV2(x, n, y);
}

VARIANT_BOOL entries::VB_V_V1GreaterThanMatCols(double* w, int n, double* Y, int p) {
  const InVector bounds(w, n);
  const InTable y(Y, n, p);
  return V_V1GreaterThanMatCols(bounds, n, y, p);
}
