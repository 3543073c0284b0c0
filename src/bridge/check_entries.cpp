// Entries of the checks: structure of tables, qualitative summaries, derived variables.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/checks/derived_variables.h"
#include "kavoratb1c/checks/qualitative.h"
#include "kavoratb1c/checks/structure.h"

using namespace kav;

using namespace bridge;

VARIANT_BOOL entries::VB_M_IsSymmetric(double* t, int n) {
  const InTable table(t, n, n);
  return M_IsSymmetric(table, n);
}

VARIANT_BOOL entries::VB_M_IsDiagConstant(double* t, int n) {
  const InTable table(t, n, n);
  return M_IsDiagConstant(table, n);
}

int entries::VB_M_IsTriangular(double* t, int n, VARIANT_BOOL iUpdateT) {
  InOutTable table(t, n, n);
  const int filled = M_IsTriangular(table, n, iUpdateT);
  store(table);
  return filled;
}

VARIANT_BOOL entries::VB_M_IsDisjTable(double* iMat, int n, int p, VARIANT_BOOL* missing, int* oNbVar) {
  const InTable a(iMat, n, p);
  OutInt variables(oNbVar);
  const VARIANT_BOOL is = M_IsDisjTable(a, n, p, missing, variables);
  store(variables);
  return is;
}

VARIANT_BOOL entries::VB_M_IsIn01(double* iMat, int n, int p) {
  const InTable a(iMat, n, p);
  return M_IsIn01(a, n, p);
}

VARIANT_BOOL entries::VB_M_IsLong(double* iMat, int n, int p) {
  const InTable a(iMat, n, p);
  return M_IsLong(a, n, p);
}

VARIANT_BOOL entries::VB_M_IsPositive(double* iAMat, int n, int p, VARIANT_BOOL* iMissing,
                                      VARIANT_BOOL iStrictly) {
  const InTable a(iAMat, n, p);
  return M_IsPositive(a, n, p, iMissing, iStrictly);
}

int entries::VB_M_IsColConstant(double* iAMat, int n, int p) {
  const InTable a(iAMat, n, p);
  return M_IsColConstant(a, n, p);
}

void entries::VB_M_InfoQuali(BSTR* iMat, int n, int p, BSTR* Mode, double* FreqMode, int* NbCatTotal,
                             int* NbCat, BSTR* Cat, double* FreqCat, VARIANT_BOOL* iMissing, double* w,
                             VARIANT_BOOL DoSort) {
  const InText labels(iMat, n, p);
  const OptionalVector weights(w, n);
  OutText modes(Mode), categories(Cat);
  OutTable modeFrequencies(FreqMode), frequencies(FreqCat);
  OutInts counts(NbCat);
  OutInt total(NbCatTotal);
  M_InfoQuali(labels, n, p, modes, modeFrequencies, total, counts, categories, frequencies, iMissing, weights,
              DoSort);
  store(modes, modeFrequencies, counts, categories, frequencies, total);
}

void entries::VB_M_InfoQualiValid(BSTR* iMat, int n, int p, int nCat, int NbCatTotal, int* NbCat, BSTR* Cat,
                                  double* FreqCatValid, VARIANT_BOOL* Problem, VARIANT_BOOL* iMissing,
                                  double* w) {
  const InText labels(iMat, n, p), categories(Cat, NbCatTotal);
  const OptionalVector weights(w, n);
  OutTable frequencies(FreqCatValid);
  OutFlag problem(Problem);
  M_InfoQualiValid(labels, n, p, nCat, NbCatTotal, required(NbCat, nCat, 1), categories, frequencies, problem,
                   iMissing, weights);
  store(frequencies, problem);
}

void entries::VB_ComputeNewVar(double* LCombines, int n, int p, double* VarCov, double* NewVarVect,
                               double* NewVarCov) {
  const InTable combinations(LCombines, n, p, Cells::KeepAll), covariances(VarCov, p, p, Cells::KeepAll);
  OutTable variances(NewVarVect, n, 1), newCovariances(NewVarCov, n, n);
  ComputeNewVar(combinations, n, p, covariances, variances, newCovariances);
  store(variances, newCovariances);
}
