// Entries of the vector family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "platform/scalar.h"
#include "stats/vector_sums.h"
#include "stats/vector_tests.h"
#include "tables/copies.h"

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
  return truncateToInt(V_Sum2(x, n));
}

double entries::VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  return V_Mean(x, n, iMissing, weights);
}

VARIANT_BOOL entries::VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n) {
  const InFlags x(iVect, n);
  return V_IsConstant(x, n);
}

int entries::VB_V_SetToValue(double* oVector, int n, double iValue) {
  OutTable result(oVector);
  const int status = V_SetToValue(result, n, iValue);
  store(result);
  return status;
}

int entries::VB_V_SetToValueLng(int* oVector, int n, int iValue) {
  OutInts result(oVector);
  const int status = V_SetToValue(result, n, iValue);
  store(result);
  return status;
}

void entries::VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival) {
  OutText result(oVect);
  V_SetToValueStr(result, n, textOf(ival));
  store(result);
}

void entries::VB_V_DuplicateDbl(double* iVect, int n, double* oVect) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable copy(oVect);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_DuplicateLng(int* iVect, int n, int* oVect) {
  const InInts x(iVect, n);
  OutInts copy(oVect);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_DuplicateStr(BSTR* iVect, int n, BSTR* oVect) {
  const InText x(iVect, n);
  OutText copy(oVect);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect) {
  const InFlags x(iVect, n);
  OutFlags reversed(oVect);
  V_Reverse(x, n, reversed);
  store(reversed);
}
