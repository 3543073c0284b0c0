// Entries of the table family: factorizations, solvers, singular values, eigenvalues.

#include <algorithm>

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "core/results.h"
#include "decomp/collinearity.h"
#include "decomp/eigen.h"
#include "decomp/elimination.h"
#include "decomp/logarithms.h"
#include "decomp/packed.h"
#include "decomp/singular_values.h"
#include "decomp/triangular.h"

using namespace bridge;
using results::give;

int entries::VB_M_CholDecomp(double* iAMat, int n, double* oMat) {
  const InTable a(iAMat, n, n);
  OutTable l(oMat, n, n);
  const int status = M_CholDecomp(a, n, l);
  store(l);
  return status;
}

int entries::VB_M_CholDecompCleaned(double* iMat, int p, int* iConstraints, double* oMat) {
  const InTable a(iMat, p, p);
  const InInts excluded(iConstraints, p);
  OutTable l(oMat, p, p);
  const int status = M_CholDecompCleaned(a, p, excluded, l);
  if (status == 0) store(l);
  return status;
}

void entries::VB_M_LUDecomp(double* iAMat, int n, int* indx, double* d, VARIANT_BOOL* Problem) {
  InOutTable a(iAMat, n, n);
  OutInts index(indx, n, 1);
  double parity;
  short status;
  M_LUDecomp(a, n, index, parity, status);
  if (status >= 0) store(a, index);
  give(d, parity);
  give(Problem, status);
}

double entries::VB_M_DeterminantTriang(double* iAMat, int n, VARIANT_BOOL* Problem) {
  const InTable t(iAMat, n, n);
  short status;
  const double determinant = M_DeterminantTriang(t, n, status);
  give(Problem, status);
  return determinant;
}

double entries::VB_M_Determinant(double* iAMat, int n, VARIANT_BOOL* Problem) {
  const InTable a(iAMat, n, n);
  short status;
  const double determinant = M_Determinant(a, n, status);
  give(Problem, status);
  return determinant;
}

double entries::VB_M_DeterminantCleaned(double* iMat, int p, int* iConstraints, VARIANT_BOOL* Problem) {
  const InTable a(iMat, p, p);
  const InInts excluded(iConstraints, p);
  short status;
  const double determinant = M_DeterminantCleaned(a, p, excluded, status);
  give(Problem, status);
  return determinant;
}

int entries::VB_M_InverseTriang(double* iTriangMat, int n, VARIANT_BOOL iIsLower, double* oInvMat,
                                double Eps) {
  const InTable t(iTriangMat, n, n);
  InOutTable inverse(oInvMat, n, n, Cells::KeepAll);
  const int status = M_InverseTriang(t, n, iIsLower, inverse, Eps);
  store(inverse);
  return status;
}

VARIANT_BOOL entries::VB_M_IsPositive(double* iAMat, int n, int p, VARIANT_BOOL* iMissing,
                                      VARIANT_BOOL iStrictly) {
  const InTable a(iAMat, n, p);
  return M_IsPositive(a, n, p, iMissing, iStrictly);
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

int entries::VB_M_Gauss(double* ioMat1, int n, int p, double* ioMat2) {
  InOutTable a(ioMat1, n, n), b(ioMat2, n, p);
  const int status = M_Gauss(a, n, p, b);
  store(a, b);
  return status;
}

int entries::VB_V_Gauss(double* ioMat, int n, double* ioVect) { return VB_M_Gauss(ioMat, n, 1, ioVect); }

int entries::VB_M_Sweep(double* t, int n, int k) {
  InOutTable table(t, n < 1 ? 0 : packed::cellsOf(n), 1);
  const int status = M_Sweep(table, n, k);
  store(table);
  return status;
}

int entries::VB_M_InvGeneralized(double* iMat, int n, double* oInvMat, double iEps, int* oRank) {
  const InTable a(iMat, n, n);
  OutTable inverse(oInvMat, n, n);
  int rank;
  const int status = M_InvGeneralized(a, n, inverse, iEps, rank);
  if (status != 0) return status;
  store(inverse);
  give(oRank, rank);
  return status;
}

int entries::CleanConstraintsAndInvert(int p, int* iConstraints, double* iDeriv, double* oInvDeriv) {
  const InTable a(iDeriv, p, p);
  const InInts excluded(iConstraints, p);
  OutTable inverse(oInvDeriv, p, p);
  const int status = cCleanConstraintsAndInvert(p, excluded, a, inverse);
  if (status == 0) store(inverse);
  return status;
}

int entries::CleanConstraintsAndInvertTriang(int p, int* iConstraints, double* iDeriv, VARIANT_BOOL iIsLower,
                                             double* oInvDeriv) {
  const InTable t(iDeriv, p, p);
  const InInts excluded(iConstraints, p);
  OutTable inverse(oInvDeriv, p, p);
  const int status = cCleanConstraintsAndInvertTriang(p, excluded, t, iIsLower, inverse);
  if (status == 0) store(inverse);
  return status;
}

void entries::VB_CheckTolerance(double* R, int p, int NbFactors, int* FactActive, int*, int* FactSubParents,
                                double Tolerance, VARIANT_BOOL FastRemoval, VARIANT_BOOL iCheckall,
                                VARIANT_BOOL WithAnEq0, int* oNotToleratedVars, double* oTolerances,
                                double* oVIF) {
  const InTable r(R, p, p);
  const InInts selection(FactActive, NbFactors);
  InOutInts groups(FactSubParents, p, 1);
  OutInts status(oNotToleratedVars, p, 1);
  InOutTable tolerances(oTolerances, p, 1, Cells::KeepAll), inflations(oVIF, p, 1, Cells::KeepAll);
  CheckTolerance(r, p, NbFactors, selection, nullptr, groups, Tolerance, FastRemoval, iCheckall, WithAnEq0,
                 status, tolerances, inflations);
  store(status, tolerances, inflations);
}

void entries::VB_M_SVDecomp(double* X, int n, int p, double* s, double* u, int ldu, double* v, int ldv,
                            int job, int* info) {
  const int left = job % 100 / 10, order = static_cast<int>(std::min<std::int64_t>(std::int64_t{n} + 1, p));
  InOutTable x(X, n, p);
  OutTable values(s, order, 1);
  OutTable leftVectors(u, left == 0 ? 0 : n, left > 1 ? std::min(n, p) : n);
  OutTable rightVectors(v, job % 10 == 0 ? 0 : p, p);
  int failed;
  M_SVDecomp(x, n, p, values, leftVectors, ldu, rightVectors, ldv, job, failed);
  store(x, values, leftVectors, rightVectors);
  give(info, failed);
}

int entries::VB_M_Eigen(double* iMat, double* oEigenVal, double* oEigenVect, int n, VARIANT_BOOL iSort) {
  const InTable a(iMat, n, n);
  OutTable values(oEigenVal, n, 1), vectors(oEigenVect, n, n);
  const int status = M_Eigen(a, values, vectors, n, iSort);
  store(values, vectors);
  return status;
}

void entries::VB_FilterEigen(double* iEigenValues, int p, VARIANT_BOOL iDoFilter, double iFilter,
                             double iMinPerc, int iMaxFact, double iMaxVal, int* oNbEigen, int* oDispEigen,
                             double* Percent) {
  InOutTable values(iEigenValues, p, 1);
  OutTable percentages(Percent, p, 1);
  int kept, selected;
  FilterEigen(values, p, iDoFilter, iFilter, iMinPerc, iMaxFact, iMaxVal, kept, selected, percentages);
  store(values, percentages);
  give(oNbEigen, kept);
  give(oDispEigen, selected);
}

void entries::ComputeCosines(double* iMat, int n, int p, double* oCosines) {
  const InTable f(iMat, n, p);
  InOutTable cosines(oCosines, n, p, Cells::KeepAll);
  cComputeCosines(f, n, p, cosines);
  store(cosines);
}

void entries::VB_BiplotTransData(double* iScores, double* iScoresSupp, double* iLoadings, int n, int nSupp,
                                 int p, int iNbEigen, double* iEigenValues, double iScale, double iExpo,
                                 double* oNewScores, double* oNewLoadings) {
  const InTable scores(iScores, n, iNbEigen), supplementary(iScoresSupp, nSupp, iNbEigen);
  const InTable loadings(iLoadings, p, iNbEigen);
  const InVector values(iEigenValues, iNbEigen);
  OutTable newScores(oNewScores), newLoadings(oNewLoadings);
  BiplotTransData(scores, supplementary, loadings, n, nSupp, p, iNbEigen, values, iScale, iExpo, newScores,
                  newLoadings);
  store(newScores, newLoadings);
}
