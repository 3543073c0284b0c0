// Entries that put tables and vectors together.

#include <algorithm>

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/tables/merges.h"

using namespace kav;

using namespace bridge;

namespace {

using addressing::together;

/// a, at its right b, straight to the macro's array where it shares none with them.
void sideBySide(double* first, int n1, int p1, double* second, int n2, int p2, double* merged) {
  const InTable a(first, n1, p1, Cells::KeepAll), b(second, n2, p2, Cells::KeepAll);
  OutTable c(merged, std::max(n1, n2), together(p1, p2), InPlaceUnlessRead(a, b));
  HMergeTables(a, n1, p1, b, n2, p2, c);
  store(c);
}

void below(double* first, int n1, int p1, double* second, int n2, int p2, double* merged) {
  const InTable a(first, n1, p1, Cells::KeepAll), b(second, n2, p2, Cells::KeepAll);
  OutTable c(merged, together(n1, n2), std::max(p1, p2), InPlaceUnlessRead(a, b));
  VMergeTables(a, n1, p1, b, n2, p2, c);
  store(c);
}

void flagsSideBySide(VARIANT_BOOL* first, int n1, int p1, VARIANT_BOOL* second, int n2, int p2,
                     VARIANT_BOOL* merged) {
  const InFlags a(first, n1, p1), b(second, n2, p2);
  OutFlags c(merged);
  HMergeTables(a, n1, p1, b, n2, p2, c);
  store(c);
}

void textSideBySide(BSTR* first, int n1, int p1, BSTR* second, int n2, int p2, BSTR* merged) {
  const InText a(first, n1, p1), b(second, n2, p2);
  OutText c(merged);
  HMergeTables(a, n1, p1, b, n2, p2, c);
  store(c);
}

void textBelow(BSTR* first, int n1, BSTR* second, int n2, BSTR* merged) {
  const InText a(first, n1), b(second, n2);
  OutText c(merged);
  VMergeVectors(a, n1, b, n2, c);
  store(c);
}

}  // namespace

void entries::VB_HMergeTablesDbl(double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2,
                                 int NbColMat2, double* oMat) {
  sideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat);
}

void entries::VB_HMergeTablesDbl2(double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2,
                                  int NbColMat2) {
  sideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, iMat1);
}

void entries::VB_HMergeTablesBool(VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2,
                                  int NbRowMat2, int NbColMat2, VARIANT_BOOL* oMat) {
  flagsSideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat);
}

void entries::VB_HMergeTablesBool2(VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2,
                                   int NbRowMat2, int NbColMat2) {
  flagsSideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, iMat1);
}

void entries::VB_HMergeTablesStr(BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2,
                                 int NbColMat2, BSTR* oMat) {
  textSideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat);
}

void entries::VB_HMergeTablesStr2(BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2,
                                  int NbColMat2) {
  textSideBySide(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, iMat1);
}

void entries::VB_VMergeTablesDbl(double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2,
                                 int NbColMat2, double* oMat) {
  below(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat);
}

void entries::VB_HMergeVectors(double* iVect1, int NbRowVect1, double* iVect2, int NbRowVect2, double* oMat) {
  sideBySide(iVect1, NbRowVect1, 1, iVect2, NbRowVect2, 1, oMat);
}

void entries::VB_HMergeTableVect(double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect,
                                 double* oMat) {
  sideBySide(iMat2, NbRowMat2, NbColMat2, iVect, NbRowVect, 1, oMat);
}

void entries::VB_HMergeTableVect2(double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect) {
  sideBySide(iMat2, NbRowMat2, NbColMat2, iVect, NbRowVect, 1, iMat2);
}

void entries::VB_HMergeVectTable(double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int NbColMat2,
                                 double* oMat) {
  sideBySide(iVect, NbRowVect, 1, iMat2, NbRowMat2, NbColMat2, oMat);
}

void entries::VB_HMergeVectColDbl(double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int iCol,
                                  double* oMat) {
  if (iCol < 1) return;
  sideBySide(iVect, NbRowVect, 1, columnOf(iMat2, NbRowMat2, iCol), NbRowMat2, 1, oMat);
}

void entries::VB_VMergeVectorsDbl(double* iVector1, int p1, double* iVector2, int p2, double* oVector) {
  below(iVector1, p1, 1, iVector2, p2, 1, oVector);
}

void entries::VB_VMergeVectorsDbl2(double* iVector1, int p1, double* iVector2, int p2) {
  below(iVector1, p1, 1, iVector2, p2, 1, iVector1);
}

void entries::VB_VMergeVectorsStr(BSTR* iVector1, int p1, BSTR* iVector2, int p2, BSTR* oVector) {
  textBelow(iVector1, p1, iVector2, p2, oVector);
}

void entries::VB_VMergeVectorsStr2(BSTR* iVector1, int p1, BSTR* iVector2, int p2) {
  textBelow(iVector1, p1, iVector2, p2, iVector1);
}

void entries::VB_VMergeVectorsBool2(VARIANT_BOOL* ioVect1, int n1, VARIANT_BOOL* iVect2, int n2) {
  const InFlags a(ioVect1, n1), b(iVect2, n2);
  OutFlags c(ioVect1);
  VMergeVectors(a, n1, b, n2, c);
  store(c);
}
