// Entries of the missing-data family: missing cells counted, flagged, removed and replaced.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/missing/missing_cells.h"
#include "kavoratb1c/missing/missing_values.h"

using namespace kav;

using namespace bridge;

VARIANT_BOOL entries::VB_IsMissingValueDbl(double iValue) { return IsMissingValueDbl(iValue); }

VARIANT_BOOL entries::VB_IsMissingValueStr(BSTR iValue) { return IsMissingValueStr(textOf(iValue)); }

void entries::VB_V_GetMissingDbl(double* iVector, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing) {
  const InVector x(iVector, n);
  OutFlags missing(oMissing, n, 1);
  V_GetMissingDbl(x, n, iMissing, missing);
  store(missing);
}

void entries::VB_V_GetMissingStr(BSTR* iVectMat, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing) {
  const InText labels(iVectMat, n);
  OutFlags missing(oMissing, n, 1);
  V_GetMissingStr(labels, n, iMissing, missing);
  store(missing);
}

void entries::VB_M_NbMissing(double* iMat, int n, int p, int* NbMissing) {
  const InTable a(iMat, n, p);
  M_NbMissing(a, n, p, required(NbMissing, p, 1));
}

void entries::VB_M_NbMissingStr(BSTR* iMat, int n, int p, int* NbMissing) {
  const InText a(iMat, n, p);
  M_NbMissing(a, n, p, required(NbMissing, p, 1));
}

void entries::VB_M_NbNonMissing(double* iMat, int n, int p, int* NbNonMissing) {
  const InTable a(iMat, n, p);
  M_NbNonMissing(a, n, p, required(NbNonMissing, p, 1));
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
  OutInt count(oNbMissing);
  SummarizeMissing(n, count, oMissing, iMissing1, iMissing2, iMissing3);
  store(count);
}

void entries::VB_SummarizeAllMissing(int n, VARIANT_BOOL* AllMissingX, VARIANT_BOOL* AllMissingQ,
                                     int* NbAllMissing, VARIANT_BOOL* AllMissing) {
  OutInt count(NbAllMissing);
  SummarizeAllMissing(n, AllMissingX, AllMissingQ, count, AllMissing);
  store(count);
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
