// Entries of covariances, correlations, distances and similarities.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/algebra/covariance.h"
#include "kavoratb1c/algebra/similarities.h"

using namespace kav;

using namespace bridge;

int entries::VB_M_CovCorr(double* iMat, int n, int p, double* CovCorr, VARIANT_BOOL Correlations,
                          VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(CovCorr, p, p);
  const int status = M_CovCorr(a, n, p, c, Correlations, iMissing, weights, Unbiased, BiasIsOne);
  store(c);
  return status;
}

int entries::VB_M_CovCorrAndMeanStDevVar(double* iMat, int n, int p, double* CovCorr, double* Mean,
                                         double* StDev, double* Var, VARIANT_BOOL Correlations,
                                         VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                                         VARIANT_BOOL BiasIsOne, VARIANT_BOOL ZeroMeaniMat,
                                         VARIANT_BOOL StandardizeiMat) {
  InOutTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(CovCorr, p, p);
  OutTable means(Mean, p, 1), stdevs(StDev, p, 1), variances(Var, p, 1);
  const int status = M_CovCorrAndMeanStDevVar(a, n, p, c, means, stdevs, variances, Correlations, iMissing,
                                              weights, Unbiased, BiasIsOne, ZeroMeaniMat, StandardizeiMat);
  store(a, c, means, stdevs, variances);
  return status;
}

void entries::VB_M_CorrMatMat(double* iMat1, int n, int p1, double* iMat2, int p2, double* CovCorr,
                              VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Correlations,
                              VARIANT_BOOL Determination, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  const InTable a(iMat1, n, p1);
  const InTable b(iMat2, n, p2);
  const OptionalVector weights(w, n);
  OutTable c(CovCorr, p1, p2);
  M_CorrMatMat(a, n, p1, b, p2, c, iMissing, weights, Correlations, Determination, Unbiased, BiasIsOne);
  store(c);
}

void entries::VB_M_CorrMatFromCovMat(double* iCovMat, int p, double* oCorrMat) {
  const InTable a(iCovMat, p, p, Cells::KeepAll);
  OutTable c(oCorrMat, p, p);
  M_CorrMatFromCovMat(a, p, c);
  store(c);
}

void entries::VB_M_EuclidDist2(double* iAMat, int n, int p, double* oDistMat, double* w,
                               VARIANT_BOOL iByRows) {
  const InTable a(iAMat, n, p);
  const int size = iByRows != 0 ? n : p;
  const OptionalVector weights(w, iByRows != 0 ? p : n);
  OutTable c(oDistMat, size, size);
  M_EuclidDist2(a, n, p, c, weights, iByRows);
  store(c);
}

void entries::VB_M_Symmetrize(double* t, int n, int iType) {
  InOutTable table(t, n, n, Cells::KeepAll);
  M_Symmetrize(table, n, iType);
  store(table);
}

int entries::VB_M_CheckIfSimOrDissim(double* t, int n, int iApriori) {
  const InTable table(t, n, n);
  return M_CheckIfSimOrDissim(table, n, iApriori);
}

void entries::VB_M_TransformSimToDissim(double* t, int n) {
  InOutTable table(t, n, n, Cells::KeepAll);
  M_TransformSimToDissim(table, n);
  store(table);
}
