// Entries of the checks: structure of tables, qualitative summaries, derived variables.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "checks/derived_variables.h"
#include "checks/qualitative.h"
#include "checks/structure.h"
#include "core/results.h"

using namespace bridge;

VARIANT_BOOL entries::VB_M_IsSymmetric(double* t, int n) { return M_IsSymmetric(InTable(t, n, n), n); }

VARIANT_BOOL entries::VB_M_IsDiagConstant(double* t, int n) { return M_IsDiagConstant(InTable(t, n, n), n); }

int entries::VB_M_IsTriangular(double* t, int n, VARIANT_BOOL iUpdateT) {
  InOutTable table(t, n, n);
  const int filled = M_IsTriangular(table, n, iUpdateT);
  store(table);
  return filled;
}

VARIANT_BOOL entries::VB_M_IsDisjTable(double* iMat, int n, int p, VARIANT_BOOL* missing, int* oNbVar) {
  return M_IsDisjTable(InTable(iMat, n, p), n, p, missing, oNbVar);
}

VARIANT_BOOL entries::VB_M_IsIn01(double* iMat, int n, int p) { return M_IsIn01(InTable(iMat, n, p), n, p); }

VARIANT_BOOL entries::VB_M_IsLong(double* iMat, int n, int p) { return M_IsLong(InTable(iMat, n, p), n, p); }

void entries::VB_M_InfoQuali(BSTR* iMat, int n, int p, BSTR* Mode, double* FreqMode, int* NbCatTotal,
                             int* NbCat, BSTR* Cat, double* FreqCat, VARIANT_BOOL* iMissing, double* w,
                             VARIANT_BOOL DoSort) {
  const InText labels(iMat, n, p);
  const OptionalVector weights(w, n);
  OutText modes(Mode), categories(Cat);
  OutTable modeFrequencies(FreqMode), frequencies(FreqCat);
  OutInts counts(NbCat);
  int total = 0;
  M_InfoQuali(labels, n, p, modes, modeFrequencies, &total, counts, categories, frequencies, iMissing,
              weights, DoSort);
  store(modes, modeFrequencies, counts, categories, frequencies);
  results::give(NbCatTotal, total);
}

void entries::VB_M_InfoQualiValid(BSTR* iMat, int n, int p, int nCat, int NbCatTotal, int* NbCat, BSTR* Cat,
                                  double* FreqCatValid, VARIANT_BOOL* Problem, VARIANT_BOOL* iMissing,
                                  double* w) {
  const InText labels(iMat, n, p), categories(Cat, NbCatTotal);
  const OptionalVector weights(w, n);
  OutTable frequencies(FreqCatValid);
  VARIANT_BOOL problem = kFalse;
  M_InfoQualiValid(labels, n, p, nCat, NbCatTotal, required(NbCat, nCat, 1), categories, frequencies,
                   &problem, iMissing, weights);
  store(frequencies);
  results::give(Problem, problem);
}

void entries::VB_ComputeNewVar(double* LCombines, int n, int p, double* VarCov, double* NewVarVect,
                               double* NewVarCov) {
  const InTable combinations(LCombines, n, p, Cells::KeepAll), covariances(VarCov, p, p, Cells::KeepAll);
  OutTable variances(NewVarVect, n, 1), newCovariances(NewVarCov, n, n);
  ComputeNewVar(combinations, n, p, covariances, variances, newCovariances);
  store(variances, newCovariances);
}
