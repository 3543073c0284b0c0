// Entries of vectors filled, copied, scaled and multiplied.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/stats/vector_transforms.h"
#include "kavoratb1c/tables/copies.h"
#include "kavoratb1c/tables/fills.h"

using namespace kav;

using namespace bridge;

int entries::VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n) {
  OutFlags result(oVector, n, 1);
  const int status = InitVectorToFalse(result, n);
  store(result);
  return status;
}

int entries::VB_V_SetToValue(double* oVector, int n, double iValue) {
  OutTable result(oVector, n, 1);
  const int status = V_SetToValue(result, n, iValue);
  store(result);
  return status;
}

int entries::VB_V_SetToValueLng(int* oVector, int n, int iValue) {
  OutInts result(oVector, n, 1);
  const int status = V_SetToValue(result, n, iValue);
  store(result);
  return status;
}

void entries::VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival) {
  OutText result(oVect);
  V_SetToValueStr(result, n, textOf(ival));
  store(result);
}

void entries::VB_V_Set1toNDbl(double* oVect, int n) {
  OutTable result(oVect, n, 1);
  V_Set1toN(result, n);
  store(result);
}

void entries::VB_V_Set1toNLng(int* oVect, int n) {
  OutInts result(oVect, n, 1);
  V_Set1toN(result, n);
  store(result);
}

void entries::VB_V_DuplicateDbl(double* iVect, int n, double* oVect) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable copy(oVect, n, 1);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_DuplicateLng(int* iVect, int n, int* oVect) {
  const InInts x(iVect, n);
  OutInts copy(oVect, n, 1);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_DuplicateStr(BSTR* iVect, int n, BSTR* oVect) {
  const InText x(iVect, n);
  OutText copy(oVect);
  V_Duplicate(x, n, copy);
  store(copy);
}

void entries::VB_V_ReverseDbl(double* iVect, int n, double* oVect) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable reversed(oVect, n, 1);
  V_Reverse(x, n, reversed);
  store(reversed);
}

void entries::VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect) {
  const InFlags x(iVect, n);
  OutFlags reversed(oVect, n, 1);
  V_Reverse(x, n, reversed);
  store(reversed);
}

void entries::VB_V_RemoveVal(double* iVect, int n, int ID, double* oVect) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable rest(oVect);
  V_RemoveVal(x, n, ID, rest);
  store(rest);
}

void entries::VB_V_PlusVal(double* iVector, int n, double ival, VARIANT_BOOL* iMissing) {
  InOutTable x(iVector, n, 1);
  V_PlusVal(x, n, ival, iMissing);
  store(x);
}

void entries::VB_V_Norm(double* iVect, int n) {
  InOutTable x(iVect, n, 1);
  V_Norm(x, n);
  store(x);
}

void entries::VB_V_NormToVal(double* iVect, int n, double ival) {
  InOutTable x(iVect, n, 1);
  V_NormToVal(x, n, ival);
  store(x);
}

void entries::VB_V_NormW(double* iVect, int n, double* w) {
  InOutTable x(iVect, n, 1);
  const InVector weights(w, n);
  V_NormW(x, n, weights);
  store(x);
}

void entries::VB_V_NormToValW(double* iVect, int n, double ival, double* w) {
  InOutTable x(iVect, n, 1);
  const InVector weights(w, n);
  V_NormToValW(x, n, ival, weights);
  store(x);
}

void entries::VB_V_Standardize(double* iVector, int n, VARIANT_BOOL* iMissing, double* w,
                               VARIANT_BOOL Unbiased, double* oVector) {
  const InVector x(iVector, n);
  const InVector weights(w, n);
  OutTable result(oVector, n, 1);
  V_Standardize(x, n, iMissing, weights, Unbiased, result);
  store(result);
}

void entries::VB_V_Standardize2(double* iVector, int n, VARIANT_BOOL* iMissing, double* w,
                                VARIANT_BOOL Unbiased) {
  InOutTable x(iVector, n, 1);
  const InVector weights(w, n);
  V_Standardize2(x, n, iMissing, weights, Unbiased);
  store(x);
}

void entries::VB_V_Rescale(double* iVector, int n, double iLowerBound, double iUpperBound,
                           VARIANT_BOOL* iMissing, double* oVector) {
  const InVector x(iVector, n);
  OutTable result(oVector, n, 1);
  V_Rescale(x, n, iLowerBound, iUpperBound, iMissing, result);
  store(result);
}

void entries::VB_V_Rescale2(double* iVector, int n, double iLowerBound, double iUpperBound,
                            VARIANT_BOOL* iMissing) {
  InOutTable x(iVector, n, 1);
  V_Rescale2(x, n, iLowerBound, iUpperBound, iMissing);
  store(x);
}

void entries::VB_V_ReplaceVal(double* iVect, int n, double iVal1, double iVal2, double* oVect) {
  const InVector x(iVect, n, Cells::KeepAll);
  OutTable result(oVect, n, 1);
  V_ReplaceVal(x, n, iVal1, iVal2, result);
  store(result);
}

void entries::VB_V_ReplaceVal2(double* iVect, int n, double iVal1, double iVal2) {
  InOutTable x(iVect, n, 1, Cells::KeepAll);
  V_ReplaceVal2(x, n, iVal1, iVal2);
  store(x);
}

void entries::VB_V_ProductV1V2(double* iVect1, int n, double* iVect2, double* oVect) {
  const InVector x(iVect1, n, Cells::KeepAll);
  const InVector y(iVect2, n, Cells::KeepAll);
  OutTable product(oVect, n, 1);
  V_ProductV1V2(x, n, y, product);
  store(product);
}

void entries::VB_V_ProductV1V22(double* ioVect1, int n, double* iVect2) {
  InOutTable x(ioVect1, n, 1, Cells::KeepAll);
  const InVector y(iVect2, n, Cells::KeepAll);
  V_ProductV1V22(x, n, y);
  store(x);
}

void entries::VB_V_ProductV1TrV2(double* iVect1, int n, double* iVect2, double* oMat) {
  const InVector x(iVect1, n, Cells::KeepAll);
  const InVector y(iVect2, n, Cells::KeepAll);
  OutTable product(oMat, n, n);
  V_ProductV1TrV2(x, n, y, product);
  store(product);
}

void entries::VB_V_ProductHorizV1V2(double* iVect1, int p1, double* iVect2, int p2, double* oVect, int p) {
  const InVector x(iVect1, p1, Cells::KeepAll);
  const InVector y(iVect2, p2, Cells::KeepAll);
  OutTable product(oVect);
  V_ProductHorizV1V2(x, p1, y, p2, product, p);
  store(product);
}

void entries::VB_V_ProductHorizV1V22(double* ioVect1, int* iop1, double* iVect2, int p2) {
  InOutInt p1(iop1);
  InOutTable x(ioVect1, p1, 1, Cells::KeepAll);
  const InVector y(iVect2, p2, Cells::KeepAll);
  V_ProductHorizV1V22(x, p1, y, p2);
  store(x, p1);
}
