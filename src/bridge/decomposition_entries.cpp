// Entries of the decompositions: factorizations, solvers, singular values, eigenvalues.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "decomp/bidiagonal.h"
#include "decomp/packed.h"
#include "kavoratb1c/decomp/cholesky.h"
#include "kavoratb1c/decomp/collinearity.h"
#include "kavoratb1c/decomp/eigen.h"
#include "kavoratb1c/decomp/elimination.h"
#include "kavoratb1c/decomp/factors.h"
#include "kavoratb1c/decomp/inverse_triangular.h"
#include "kavoratb1c/decomp/inverses.h"
#include "kavoratb1c/decomp/lu.h"
#include "kavoratb1c/decomp/singular_values.h"

using namespace kav;

using namespace bridge;

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
  OutInts index(required(indx, n, 1), n, 1);
  OutDouble parity(d);
  OutFlag status(Problem);
  M_LUDecomp(a, n, index, parity, status);
  if (status < 0) {
    store(parity, status);
  } else {
    store(a, index, parity, status);
  }
}

double entries::VB_M_DeterminantTriang(double* iAMat, int n, VARIANT_BOOL* Problem) {
  const InTable t(iAMat, n, n);
  OutFlag status(Problem);
  const double determinant = M_DeterminantTriang(t, n, status);
  store(status);
  return determinant;
}

double entries::VB_M_Determinant(double* iAMat, int n, VARIANT_BOOL* Problem) {
  const InTable a(iAMat, n, n);
  OutFlag status(Problem);
  const double determinant = M_Determinant(a, n, status);
  store(status);
  return determinant;
}

double entries::VB_M_DeterminantCleaned(double* iMat, int p, int* iConstraints, VARIANT_BOOL* Problem) {
  const InTable a(iMat, p, p);
  const InInts excluded(iConstraints, p);
  OutFlag status(Problem);
  const double determinant = M_DeterminantCleaned(a, p, excluded, status);
  store(status);
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

int entries::VB_M_Gauss(double* ioMat1, int n, int p, double* ioMat2) {
  InOutTable a(ioMat1, n, n), b(ioMat2, n, p);
  const int status = M_Gauss(a, n, p, b);
  store(a, b);
  return status;
}

int entries::VB_V_Gauss(double* ioMat, int n, double* ioVect) {
  InOutTable a(ioMat, n, n), b(ioVect, n, 1);
  const int status = M_Gauss(a, n, 1, b);
  store(a, b);
  return status;
}

int entries::VB_M_Sweep(double* t, int n, int k) {
  InOutTable table(t, n < 1 ? 0 : packed::cellsOf(n), 1);
  const int status = M_Sweep(table, n, k);
  store(table);
  return status;
}

int entries::VB_M_InvGeneralized(double* iMat, int n, double* oInvMat, double iEps, int* oRank) {
  const InTable a(iMat, n, n);
  OutTable inverse(oInvMat, n, n);
  OutInt rank(oRank);
  const int status = M_InvGeneralized(a, n, inverse, iEps, rank);
  if (status == 0) store(inverse, rank);
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
  const bidiagonal::Job wanted(n, p, job);
  InOutTable x(X, n, p);
  OutTable values(s, wanted.order(), 1);
  OutTable leftVectors(u, wanted.left ? n : 0, wanted.leftColumns);
  OutTable rightVectors(v, wanted.right ? p : 0, p);
  OutInt failed(info);
  M_SVDecomp(x, n, p, values, leftVectors, ldu, rightVectors, ldv, job, failed);
  store(x, values, leftVectors, rightVectors, failed);
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
  OutInt kept(oNbEigen), selected(oDispEigen);
  FilterEigen(values, p, iDoFilter, iFilter, iMinPerc, iMaxFact, iMaxVal, kept, selected, percentages);
  store(values, percentages, kept, selected);
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
