// Entries of matrix products.

#include <algorithm>

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/algebra/elementwise.h"
#include "kavoratb1c/algebra/products.h"

using namespace kav;

using namespace bridge;

namespace {

/// Columns of a product of columns, no more than the macro has room for.
int columnsOf(int p1, int p2, int room) {
  return static_cast<int>(std::min<std::int64_t>(addressing::cellCount(p1, p2), room));
}

}  // namespace

int entries::VB_M_ProductAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, p, m, Cells::KeepAll);
  OutTable c(oCMat, n, m);
  const int status = M_ProductAB(a, n, p, b, m, c);
  store(c);
  return status;
}

int entries::VB_M_ProductABMissing(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) {
  const InTable a(iAMat, n, p);
  const InTable b(iBMat, p, m);
  OutTable c(oCMat, n, m);
  const int status = M_ProductABMissing(a, n, p, b, m, c);
  store(c);
  return status;
}

void entries::VB_M_ProductTrAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, n, m, Cells::KeepAll);
  OutTable c(oCMat, p, m);
  M_ProductTrAB(a, n, p, b, m, c);
  store(c);
}

void entries::VB_M_ProductATrB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, m, p, Cells::KeepAll);
  OutTable c(oCMat, n, m);
  M_ProductATrB(a, n, p, b, m, c);
  store(c);
}

void entries::VB_M_ProductTrAA(double* iAMat, int n, int p, double* oTrAAMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(oTrAAMat, p, p);
  M_ProductTrAA(a, n, p, c);
  store(c);
}

void entries::VB_M_ProductATrA(double* iAMat, int n, int p, double* oATrAMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable c(oATrAMat, n, n);
  M_ProductATrA(a, n, p, c);
  store(c);
}

void entries::VB_M_ProductADTrA(double* iAMat, int n, int p, double* iDiagMat, double* oADTrA) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable d(iDiagMat, p, p, Cells::KeepAll);
  OutTable c(oADTrA, n, n);
  M_ProductADTrA(a, n, p, d, c);
  store(c);
}

void entries::VB_M_ProductTrADA(double* iAMat, int n, int p, double* iDiagMat, double* oTrADA) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable d(iDiagMat, n, n, Cells::KeepAll);
  OutTable c(oTrADA, p, p);
  M_ProductTrADA(a, n, p, d, c);
  store(c);
}

void entries::VB_M_ProductADiag(double* iAMat, int n, int p, double* iDiagMat, double* oADiagMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable d(iDiagMat, p, p, Cells::KeepAll);
  OutTable c(oADiagMat, n, p, InPlaceUnlessRead(a, d));
  M_ProductADiag(a, n, p, d, c);
  store(c);
}

void entries::VB_M_ProductTrADiag(double* iAMat, int n, int p, double* iDiagMat, double* oTrADiagMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable d(iDiagMat, n, n, Cells::KeepAll);
  OutTable c(oTrADiagMat, p, n, InPlaceUnlessRead(a, d));
  M_ProductTrADiag(a, n, p, d, c);
  store(c);
}

void entries::VB_M_ProductABTrA(double* iAMat, int n, int p, double* iBMat, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, p, p, Cells::KeepAll);
  OutTable c(oCMat, n, n);
  M_ProductABTrA(a, n, p, b, c);
  store(c);
}

void entries::VB_M_ProductTrABA(double* iAMat, int n, int p, double* iBMat, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, n, n, Cells::KeepAll);
  OutTable c(oCMat, p, p);
  M_ProductTrABA(a, n, p, b, c);
  store(c);
}

void entries::VB_M_ProductAinvBTrA(double* iAMat, int n, int p, double* iBMat, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, p, p, Cells::KeepAll);
  OutTable c(oCMat, n, n);
  M_ProductAinvBTrA(a, n, p, b, c);
  store(c);
}

void entries::VB_M_ProductTrAinvBA(double* iAMat, int n, int p, double* iBMat, double* oCMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  const InTable b(iBMat, n, n, Cells::KeepAll);
  OutTable c(oCMat, p, p);
  M_ProductTrAinvBA(a, n, p, b, c);
  store(c);
}

int entries::VB_M_ProductBV(double* iBMat, int n, int p, double* iAVec, double* oCVec) {
  const InTable b(iBMat, n, p, Cells::KeepAll);
  const InVector v(iAVec, p, Cells::KeepAll);
  OutTable c(oCVec, n, 1);
  const int status = M_ProductBV(b, n, p, v, c);
  store(c);
  return status;
}

void entries::VB_M_ProductVB(double* iAVec, int n, double* iBMat, int p, double* oCVec) {
  const InVector v(iAVec, n, Cells::KeepAll);
  const InTable b(iBMat, n, p, Cells::KeepAll);
  OutTable c(oCVec, p, 1);
  M_ProductVB(v, n, b, p, c);
  store(c);
}

double entries::VB_M_ProductTrVBV(double* iVect, int n, double* iBMat) {
  const InVector v(iVect, n, Cells::KeepAll);
  const InTable b(iBMat, n, n, Cells::KeepAll);
  return M_ProductTrVBV(v, n, b);
}

double entries::VB_M_ProductTrVinvBV(double* iVect, int n, double* iBMat) {
  const InVector v(iVect, n, Cells::KeepAll);
  const InTable b(iBMat, n, n, Cells::KeepAll);
  return M_ProductTrVinvBV(v, n, b);
}

double entries::VB_M_ProductTrV1BV2(double* iVect1, int n, double* iBMat, double* iVect2) {
  const InVector x(iVect1, n, Cells::KeepAll);
  const InTable b(iBMat, n, n, Cells::KeepAll);
  const InVector y(iVect2, n, Cells::KeepAll);
  return M_ProductTrV1BV2(x, n, b, y);
}

void entries::VB_M_ProductADiagV(double* iMat, int n, int p, double* iDiagVect, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  const InVector v(iDiagVect, p, Cells::KeepAll);
  OutTable c(oMat, n, p, InPlaceUnlessRead(a, v));
  M_ProductADiagV(a, n, p, v, c);
  store(c);
}

void entries::VB_M_ProductDiagVA(double* iDiagVect, int n, double* iMat, int p, double* oMat) {
  const InVector v(iDiagVect, n, Cells::KeepAll);
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable c(oMat, n, p, InPlaceUnlessRead(v, a));
  M_ProductDiagVA(v, n, a, p, c);
  store(c);
}

void entries::VB_M_ProductDiagV1ADiagV2(double* iDiagVect1, int n, double* iMat, int p, double* iDiagVect2,
                                        double* oMat) {
  const InVector x(iDiagVect1, n, Cells::KeepAll);
  const InTable a(iMat, n, p, Cells::KeepAll);
  const InVector y(iDiagVect2, p, Cells::KeepAll);
  OutTable c(oMat, n, p);
  M_ProductDiagV1ADiagV2(x, n, a, p, y, c);
  store(c);
}

void entries::VB_M_ProductTrADiagVA(double* iMat, int n, int p, double* iDiagVect, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  const InVector v(iDiagVect, n, Cells::KeepAll);
  OutTable c(oMat, p, p);
  M_ProductTrADiagVA(a, n, p, v, c);
  store(c);
}

void entries::VB_M_ProductADiagVTrA(double* iMat, int n, int p, double* iDiagVect, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  const InVector v(iDiagVect, p, Cells::KeepAll);
  OutTable c(oMat, n, n);
  M_ProductADiagVTrA(a, n, p, v, c);
  store(c);
}

void entries::VB_M_ProductByElement(double* iMat1, int n, int p, double* iMat2, double* oMat) {
  const InTable a(iMat1, n, p, Cells::KeepAll);
  const InTable b(iMat2, n, p, Cells::KeepAll);
  OutTable c(oMat, n, p, InPlaceUnlessRead(a, b));
  M_ProductByElement(a, n, p, b, c);
  store(c);
}

double entries::VB_M_FrobeniusNorm(double* iMat1, int n, int p, double* iMat2) {
  const InTable a(iMat1, n, p, Cells::KeepAll);
  const InTable b(iMat2, n, p, Cells::KeepAll);
  return M_FrobeniusNorm(a, n, p, b);
}

void entries::VB_M_ProductHorizAB(double* iMat1, int n, int p1, double* iMat2, int p2, double* oMat, int p) {
  const InTable a(iMat1, n, p1, Cells::KeepAll);
  const InTable b(iMat2, n, p2, Cells::KeepAll);
  // No more columns than the macro says it has room for.
  OutTable c(oMat, n, columnsOf(p1, p2, p));
  M_ProductHorizAB(a, n, p1, b, p2, c);
  store(c);
}

void entries::VB_M_ProductHorizAB2(double* ioMat1, int n, int* iop1, double* iMat2, int p2) {
  InOutInt p1(iop1);
  InOutTable a(ioMat1, n, p1, Cells::KeepAll);
  const InTable b(iMat2, n, p2, Cells::KeepAll);
  M_ProductHorizAB2(a, n, p1, b, p2);
  store(a, p1);
}

void entries::VB_M_ProductDesignAB2(double* ioMat1, int n, int* iop1, double* iMat2, int p2,
                                    int iConstraintType, double* w, double* oInterFreqCat) {
  InOutInt p1(iop1);
  InOutTable a(ioMat1, n, p1, Cells::KeepAll);
  const InTable b(iMat2, n, p2, Cells::KeepAll);
  const OptionalVector weights(iConstraintType == 3 ? required(w, n, 1) : w, n);
  OutTable frequencies(oInterFreqCat);
  M_ProductDesignAB2(a, n, p1, b, p2, iConstraintType, weights, frequencies);
  store(a, frequencies, p1);
}
