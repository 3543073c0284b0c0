// Entries of the missing-data family: missing cells counted, flagged, removed and replaced.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "missing/missing_cells.h"
#include "missing/missing_values.h"

using namespace bridge;

VARIANT_BOOL entries::VB_IsMissingValueDbl(double iValue) { return IsMissingValueDbl(iValue); }

VARIANT_BOOL entries::VB_IsMissingValueStr(BSTR iValue) { return IsMissingValueStr(textOf(iValue)); }

int entries::VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n) {
  OutFlags result(oVector, n, 1);
  const int status = InitVectorToFalse(result, n);
  store(result);
  return status;
}

void entries::VB_M_NbMissing(double* iMat, int n, int p, int* NbMissing) {
  const InTable a(iMat, n, p);
  M_NbMissing(a, n, p, NbMissing);
}

void entries::VB_M_NbMissingStr(BSTR* iMat, int n, int p, int* NbMissing) {
  const InText a(iMat, n, p);
  M_NbMissing(a, n, p, NbMissing);
}

void entries::VB_M_NbNonMissing(double* iMat, int n, int p, int* NbNonMissing) {
  const InTable a(iMat, n, p);
  M_NbNonMissing(a, n, p, NbNonMissing);
}

void entries::VB_M_AllMissingRows(double* iMat, int n, int p, VARIANT_BOOL* missing,
                                  VARIANT_BOOL* AllMissing) {
  const InTable a(iMat, n, p);
  M_AllMissingRows(a, n, p, missing, AllMissing);
}

void entries::VB_M_AllMissingRowsStr(BSTR* iMat, int n, int p, VARIANT_BOOL* missing,
                                     VARIANT_BOOL* AllMissing) {
  const InText a(iMat, n, p);
  M_AllMissingRows(a, n, p, missing, AllMissing);
}

void entries::VB_SummarizeMissing(int n, int* oNbMissing, VARIANT_BOOL* oMissing, VARIANT_BOOL* iMissing1,
                                  VARIANT_BOOL* iMissing2, VARIANT_BOOL* iMissing3) {
  SummarizeMissing(n, oNbMissing, oMissing, iMissing1, iMissing2, iMissing3);
}

void entries::VB_SummarizeAllMissing(int n, VARIANT_BOOL* AllMissingX, VARIANT_BOOL* AllMissingQ,
                                     int* NbAllMissing, VARIANT_BOOL* AllMissing) {
  SummarizeAllMissing(n, AllMissingX, AllMissingQ, NbAllMissing, AllMissing);
}

void entries::VB_RemoveRowsWithMissing(double* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing,
                                       double* oTable) {
  const InTable a(ioTable, n, p, Cells::KeepAll);
  OutTable rest(oTable);
  RemoveRowsWithMissing(a, n, p, NbMissing, iMissing, rest);
  store(rest);
}

void entries::VB_RemoveRowsWithMissingStr(BSTR* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing,
                                          BSTR* oTable) {
  const InText a(ioTable, n, p);
  OutText rest(oTable);
  RemoveRowsWithMissing(a, n, p, NbMissing, iMissing, rest);
  store(rest);
}

void entries::VB_M_ReplaceMissingByVal(double* iMat, int n, int p, double ival) {
  InOutTable a(iMat, n, p);
  M_ReplaceMissingByVal(a, n, p, ival);
  store(a);
}

void entries::VB_M_ReplaceMissingByStr(BSTR* iMat, int n, int p, BSTR ival) {
  InOutText a(iMat, n, p);
  M_ReplaceMissingByStr(a, n, p, textOf(ival));
  store(a);
}

void entries::VB_M_SetWeightsToZeroForMissing(double* t, int n, int p, double* w, int pW) {
  const InTable a(t, n, p);
  InOutTable weights(w, n, pW, Cells::KeepAll);
  M_SetWeightsToZeroForMissing(a, n, p, weights, pW);
  store(weights);
}

void entries::VB_ReplaceMissingObsLabels(BSTR* ioObsLabels, int n, VARIANT_BOOL* iMissingObs, BSTR iPrefixe) {
  InOutText labels(ioObsLabels, n);
  ReplaceMissingObsLabels(labels, n, iMissingObs, textOf(iPrefixe));
  store(labels);
}
