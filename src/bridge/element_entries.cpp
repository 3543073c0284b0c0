// Entries of matrices cell by cell: scaled, summed, transposed, inverted, logarithms.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/algebra/elementwise.h"
#include "kavoratb1c/algebra/logarithms.h"

using namespace kav;

using namespace bridge;

void entries::VB_M_ScalarsA(double* iAMat, int n, int p, double s, double* osAMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(osAMat, n, p, InPlaceUnlessRead(a));
  M_ScalarsA(a, n, p, s, c);
  store(c);
}

void entries::VB_M_ScalarsA2(double* iAMat, int n, int p, double s) {
  InOutTable c(iAMat, n, p, Cells::KeepAll);
  M_ScalarsA2(c, n, p, s);
  store(c);
}

void entries::VB_M_ScalarsTrA(double* iAMat, int n, int p, double s, double* osTrAMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(osTrAMat, p, n, InPlaceUnlessRead(a));
  M_ScalarsTrA(a, n, p, s, c);
  store(c);
}

void entries::VB_M_APlusVal(double* iAMat, int n, int p, double ival, double* oAPlusVal) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(oAPlusVal, n, p, InPlaceUnlessRead(a));
  M_APlusVal(a, n, p, ival, c);
  store(c);
}

void entries::VB_M_Sums1As2B(double* iAMat, int n, int p, double* iBMat, double s1, double S2,
                             double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, n, p, Cells::KeepAll);
  OutTable c(oCMat, n, p, InPlaceUnlessRead(a, b));
  M_Sums1As2B(a, n, p, b, s1, S2, c);
  store(c);
}

void entries::VB_M_Square(double* ioMat, int n, int p) {
  InOutTable c(ioMat, n, p, Cells::KeepAll);
  M_Square(c, n, p);
  store(c);
}

int entries::VB_M_Transpose(double* iAMat, int n, int p, double* oTransMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(oTransMat, p, n, InPlaceUnlessRead(a));
  const int status = M_Transpose(a, n, p, c);
  store(c);
  return status;
}

int entries::VB_M_Transpose2(double* iAMat, int n, int p) {
  InOutTable c(iAMat, n, p, Cells::KeepAll);
  const int status = M_Transpose2(c, n, p);
  store(c);
  return status;
}

double entries::VB_M_Trace(double* iAMat, int n) {
  const InTable a(iAMat, n, n, Cells::KeepAll);
  return M_Trace(a, n);
}

void entries::VB_M_SumByCols(double* iMat, int n, int p, double* oSums) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oSums, p, 1);
  M_SumByCols(a, n, p, c);
  store(c);
}

void entries::VB_M_SumByRows(double* iMat, int n, int p, double* oSums) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oSums, n, 1);
  M_SumByRows(a, n, p, c);
  store(c);
}

void entries::VB_M_SquaredRows(double* iMat, int n, int p, double* oVect) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oVect, n, 1);
  M_SquaredRows(a, n, p, c);
  store(c);
}

void entries::VB_M_SquaredColumns(double* iMat, int n, int p, double* oVect) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oVect, p, 1);
  M_SquaredColumns(a, n, p, c);
  store(c);
}

void entries::VB_M_Min(double* iMat, int n, int p, double* oMinVect) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oMinVect, p, 1);
  M_Min(a, n, p, c);
  store(c);
}

void entries::VB_M_Max(double* iMat, int n, int p, double* oMaxVect) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oMaxVect, p, 1);
  M_Max(a, n, p, c);
  store(c);
}

void entries::VB_M_MinMax(double* iMat, int n, int p, double* VMin, double* VMax, VARIANT_BOOL* iMissing,
                          VARIANT_BOOL MissingPerCol) {
  const InTable a(iMat, n, p);
  OutTable min(VMin, p, 1), max(VMax, p, 1);
  M_MinMax(a, n, p, min, max, MissingPerCol == kFalse ? required(iMissing, n, 1) : iMissing, MissingPerCol);
  store(min, max);
}

int entries::VB_M_Inverse1(double* iAMat, int n, double* oInvMat, double Eps) {
  const InTable a(iAMat, n, n);
  OutTable c(oInvMat, n, n);
  short singular = kFalse;
  const matrix* table = a;
  const int status = table->inverse1(c, singular, Eps);
  if (status == 0) store(c);
  return status;
}

void entries::VB_M_LogMatrix(double* iAMat, int n, int p, VARIANT_BOOL* iMissing) {
  InOutTable a(iAMat, n, p);
  M_LogMatrix(a, n, p, iMissing);
  store(a);
}

void entries::VB_M_Log10Matrix(double* ioMat, int n, int p) {
  InOutTable a(ioMat, n, p);
  M_Log10Matrix(a, n, p);
  store(a);
}
