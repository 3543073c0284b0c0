// Entries of the sorting family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/sort/sorts.h"

using namespace kav;

using namespace bridge;

namespace {

/// A macro that passes no columns means the one column that its array is.
int atLeastOne(int columns) { return columns == 0 ? 1 : columns; }

/// Keys go back only when the macro wants them sorted: it may pass one array as keys and as data.
template <class Data, class Keys, class Companion>
void storeSorted(Data& data, Keys& keys, Companion& companion, VARIANT_BOOL updateMaster) {
  if (updateMaster == kTrue) {
    store(data, keys, companion);
  } else {
    store(data, companion);
  }
}

}  // namespace

int entries::VB_SortQVectorLng(int* ioVector, int n, int iLowerBound, int iUpperBound,
                               VARIANT_BOOL iSortdown) {
  return SortQVector(required(ioVector, n, 1), n, iLowerBound, iUpperBound, iSortdown);
}

int entries::VB_SortQVectorDbl(double* ioVector, int n, int iLowerBound, int iUpperBound,
                               VARIANT_BOOL iSortdown) {
  InOutTable x(ioVector, n, 1, Cells::KeepAll);
  const int status = SortQVector(x, n, iLowerBound, iUpperBound, iSortdown);
  store(x);
  return status;
}

int entries::VB_SortQVectorStr(BSTR* ioVector, int n, int iLowerBound, int iUpperBound,
                               VARIANT_BOOL iSortdown) {
  InOutText x(ioVector, n);
  const int status = SortQVector(x, n, iLowerBound, iUpperBound, iSortdown);
  store(x);
  return status;
}

int entries::VB_SortQMatrixCol(double* ioMatrix, int n, int p, int iCol, int iLowerBound, int iUpperBound,
                               VARIANT_BOOL iSortdown) {
  InOutTable table(ioMatrix, n, p, Cells::KeepAll);
  const int status = SortQMatrixCol(table, n, p, iCol, iLowerBound, iUpperBound, iSortdown);
  store(table);
  return status;
}

void entries::VB_SortMatrixSeqQDbl(double* iMat, int n, int p) {
  InOutTable table(iMat, n, p, Cells::KeepAll);
  SortMatrixSeqQ(table, n, p);
  store(table);
}

void entries::VB_SortMatrixSeqQLng(int* iMat, int n, int p) {
  InOutInts table(iMat, n, p);
  SortMatrixSeqQ(table, n, p);
  store(table);
}

int entries::VB_SortQDbl(double* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound,
                         double* ioMaster, double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown,
                         VARIANT_BOOL updateMaster) {
  const int p1 = atLeastOne(pSlave);
  const int p2 = atLeastOne(pSlave2);
  InOutTable data(ioSlave, n, p1, Cells::KeepAll);
  InOutTable keys(ioMaster, n, 1, Cells::KeepAll);
  InOutTable companion(ioSlave2, n, p2, Cells::KeepAll);
  const int status =
      SortQ(data, n, p1, iLowerBound, iUpperBound, keys, companion, p2, iSortdown, updateMaster);
  storeSorted(data, keys, companion, updateMaster);
  return status;
}

int entries::VB_SortQLng(int* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, int* ioMaster,
                         int* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) {
  const int p1 = atLeastOne(pSlave);
  const int p2 = atLeastOne(pSlave2);
  InOutInts data(ioSlave, n, p1);
  InOutInts keys(ioMaster, n, 1);
  InOutInts companion(ioSlave2, n, p2);
  const int status =
      SortQ(data, n, p1, iLowerBound, iUpperBound, keys, companion, p2, iSortdown, updateMaster);
  storeSorted(data, keys, companion, updateMaster);
  return status;
}

int entries::VB_SortQStr(BSTR* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster,
                         double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) {
  const int p1 = atLeastOne(pSlave);
  const int p2 = atLeastOne(pSlave2);
  InOutText data(ioSlave, n, p1);
  InOutTable keys(ioMaster, n, 1, Cells::KeepAll);
  InOutTable companion(ioSlave2, n, p2, Cells::KeepAll);
  const int status =
      SortQ(data, n, p1, iLowerBound, iUpperBound, keys, companion, p2, iSortdown, updateMaster);
  storeSorted(data, keys, companion, updateMaster);
  return status;
}

int entries::VB_SortQBool(VARIANT_BOOL* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound,
                          double* ioMaster, double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown,
                          VARIANT_BOOL updateMaster) {
  const int p1 = atLeastOne(pSlave);
  const int p2 = atLeastOne(pSlave2);
  InOutFlags data(ioSlave, n, p1);
  InOutTable keys(ioMaster, n, 1, Cells::KeepAll);
  InOutTable companion(ioSlave2, n, p2, Cells::KeepAll);
  const int status =
      SortQ(data, n, p1, iLowerBound, iUpperBound, keys, companion, p2, iSortdown, updateMaster);
  storeSorted(data, keys, companion, updateMaster);
  return status;
}

int entries::VB_SortDataBy01(double* iSlave, int n, int p, double* iMaster, int nOut,
                             VARIANT_BOOL KeepInitialOrder) {
  InOutTable data(iSlave, n, p, Cells::KeepAll);
  InOutTable key(iMaster, n, 1, Cells::KeepAll);
  const int status = SortDataBy01(data, n, p, key, nOut, KeepInitialOrder);
  store(data, key);
  return status;
}

int entries::VB_SortDataBy01Str(BSTR* iSlave, int n, int p, double* iMaster, int nOut,
                                VARIANT_BOOL KeepInitialOrder) {
  InOutText data(iSlave, n, p);
  InOutTable key(iMaster, n, 1, Cells::KeepAll);
  const int status = SortDataBy01(data, n, p, key, nOut, KeepInitialOrder);
  store(data, key);
  return status;
}

int entries::VB_SortDataBy01Bool(VARIANT_BOOL* iSlave, int n, int p, double* iMaster, int nOut,
                                 VARIANT_BOOL KeepInitialOrder) {
  InOutFlags data(iSlave, n, p);
  InOutTable key(iMaster, n, 1, Cells::KeepAll);
  const int status = SortDataBy01(data, n, p, key, nOut, KeepInitialOrder);
  store(data, key);
  return status;
}

void entries::VB_SortApply(double* iMat, int n, int p, double* iSortVect, double* oMat) {
  const InTable source(iMat, n, p, Cells::KeepAll);
  const InVector order(iSortVect, n, Cells::KeepAll);
  OutTable result(oMat, n, p);
  SortApply(source, n, p, order, result);
  store(result);
}

void entries::VB_SortApplyStr(BSTR* iMat, int n, int p, double* iSortVect, BSTR* oMat) {
  const InText source(iMat, n, p);
  const InVector order(iSortVect, n, Cells::KeepAll);
  OutText result(oMat);
  SortApplyStr(source, n, p, order, result);
  store(result);
}
