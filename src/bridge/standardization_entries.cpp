// Entries of standardization: means and standard deviations of columns, centred and standardized tables.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/algebra/standardization.h"

using namespace kav;

using namespace bridge;

namespace {

/// Of workers that know all statistics, the weights used, before they transform the first cell.
constexpr InPlaceUnlessRead kStatisticsFirst;

}  // namespace

void entries::VB_M_Center(double* iMat, int n, int p, double* oMat) {
  const InTable a(iMat, n, p);
  OutTable c(oMat, n, p);
  M_Center(a, n, p, c);
  store(c);
}

void entries::VB_M_Center2(double* ioMat, int n, int p) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  M_Center2(a, n, p);
  store(a);
}

void entries::VB_M_CenterW(double* iMat, int n, int p, double* w, double* oMat) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(oMat, n, p);
  M_CenterW(a, n, p, weights, c);
  store(c);
}

void entries::VB_M_CenterW2(double* ioMat, int n, int p, double* w) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  const OptionalVector weights(w, n);
  M_CenterW2(a, n, p, weights);
  store(a);
}

void entries::VB_M_Reduce(double* iMat, int n, int p, double* oMat, VARIANT_BOOL Unbiased) {
  const InTable a(iMat, n, p);
  OutTable c(oMat, n, p);
  M_Reduce(a, n, p, c, Unbiased);
  store(c);
}

void entries::VB_M_Reduce2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  M_Reduce2(a, n, p, Unbiased);
  store(a);
}

void entries::VB_M_ReduceW(double* iMat, int n, int p, double* w, double* oMat, VARIANT_BOOL Unbiased) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(oMat, n, p);
  M_ReduceW(a, n, p, weights, c, Unbiased);
  store(c);
}

void entries::VB_M_ReduceW2(double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  const OptionalVector weights(w, n);
  M_ReduceW2(a, n, p, weights, Unbiased);
  store(a);
}

void entries::VB_M_Standardize2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  M_Standardize2(a, n, p, Unbiased);
  store(a);
}

void entries::VB_M_Standardize3(double* ioMat, int n, int p, double* oMean, double* oStdev,
                                VARIANT_BOOL Unbiased) {
  InOutTable a(ioMat, n, p);
  OutTable means(oMean, p, 1), stdevs(oStdev, p, 1);
  M_Standardize3(a, n, p, means, stdevs, Unbiased);
  store(a, means, stdevs);
}

void entries::VB_M_StandardizeW2(double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased) {
  InOutTable a(ioMat, n, p, kStatisticsFirst, Cells::FlagMissing);
  const OptionalVector weights(w, n);
  M_StandardizeW2(a, n, p, weights, Unbiased);
  store(a);
}

void entries::VB_M_StandardizeW(double* iMat, int n, int p, double* w, VARIANT_BOOL Unbiased,
                                VARIANT_BOOL isBiasOne, double* oMat) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(oMat, n, p);
  M_StandardizeW(a, n, p, weights, Unbiased, isBiasOne, c);
  store(c);
}

void entries::VB_M_Standardize(double* iMat, int n, int p, double* oMat, double* Mean, double* StDev,
                               double* Var, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                               VARIANT_BOOL BiasIsOne) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(oMat, n, p);
  OutTable means(Mean, p, 1), stdevs(StDev, p, 1), variances(Var, p, 1);
  M_Standardize(a, n, p, c, means, stdevs, variances, iMissing, weights, Unbiased, BiasIsOne);
  store(c, means, stdevs, variances);
}

int entries::VB_M_StandardizeKnownMeansStDev(double* iMat, int n, int p, double* Mean, double* oMat,
                                             double* StDev, double* Var, VARIANT_BOOL* iMissing) {
  const InTable a(iMat, n, p);
  const InVector means(Mean, p), stdevs(StDev, p);
  OutTable c(oMat, n, p);
  OutTable variances(Var, p, 1);
  const int status = M_StandardizeKnownMeansStDev(a, n, p, means, c, stdevs, variances, iMissing);
  store(c, variances);
  return status;
}

void entries::VB_M_Normalize(double* iMat, int n, int p, double* Norm, VARIANT_BOOL* iMissing, double* w,
                             VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) {
  InOutTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable norms(Norm, p, 1);
  M_Normalize(a, n, p, norms, iMissing, weights, Unbiased, BiasIsOne);
  store(a, norms);
}

void entries::VB_M_StandardizeMatrix(double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3,
                                     int n3) {
  InOutTable first(ioM1, n1, p), second(ioM2, n2, p), third(ioM3, n3, p);
  M_StandardizeMatrix(first, n1, p, second, n2, third, n3);
  store(first, second, third);
}

void entries::VB_M_NormalizeMatrix(double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3, int n3) {
  InOutTable first(ioM1, n1, p), second(ioM2, n2, p), third(ioM3, n3, p);
  M_NormalizeMatrix(first, n1, p, second, n2, third, n3);
  store(first, second, third);
}

int entries::VB_M_MeanStDev(double* iMat, int n, int p, double* Mean, double* StDev, VARIANT_BOOL* iMissing,
                            double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne,
                            VARIANT_BOOL MissingPerCol) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable means(Mean, p, 1), stdevs(StDev, p, 1);
  const int status =
      M_MeanStDev(a, n, p, means, stdevs, iMissing, weights, Unbiased, BiasIsOne, MissingPerCol);
  store(means, stdevs);
  return status;
}

int entries::VB_M_MeanStDevVar(double* iMat, int n, int p, double* Mean, double* StDev, double* Var,
                               VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                               VARIANT_BOOL BiasIsOne) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable means(Mean, p, 1), stdevs(StDev, p, 1), variances(Var, p, 1);
  const int status =
      M_MeanStDevVar(a, n, p, means, stdevs, variances, iMissing, weights, Unbiased, BiasIsOne);
  store(means, stdevs, variances);
  return status;
}

void entries::VB_M_MeanStDevVarOneInMat(double* iMat, int n, int IDCol, double* Mean, double* StDev,
                                        double* Var, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
                                        VARIANT_BOOL BiasIsOne) {
  const InTable a(iMat, n, IDCol);
  const OptionalVector weights(w, n);
  OutDouble mean(Mean), stdev(StDev), variance(Var);
  M_MeanStDevVarOneInMat(a, n, IDCol, mean, stdev, variance, iMissing, weights, Unbiased, BiasIsOne);
  store(mean, stdev, variance);
}

int entries::VB_M_Mean(double* iMat, int n, int p, double* Mean, VARIANT_BOOL* iMissing, double* w) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable means(Mean, p, 1);
  const int status = M_Mean(a, n, p, means, iMissing, weights);
  store(means);
  return status;
}

void entries::VB_M_StandardizeByVect(double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w,
                                     VARIANT_BOOL Unbiased, double* oMat) {
  const InTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  OutTable c(oMat, n, p);
  M_StandardizeByVect(a, n, p, iMissing, weights, Unbiased, c);
  store(c);
}

void entries::VB_M_StandardizeByVect2(double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w,
                                      VARIANT_BOOL Unbiased) {
  InOutTable a(iMat, n, p);
  const OptionalVector weights(w, n);
  M_StandardizeByVect2(a, n, p, iMissing, weights, Unbiased);
  store(a);
}

void entries::VB_M_RescaleByVect(double* iMat, int n, int p, double iLowerBound, double iUpperBound,
                                 VARIANT_BOOL* iMissing, double* oMat) {
  const InTable a(iMat, n, p);
  OutTable c(oMat, n, p);
  M_RescaleByVect(a, n, p, iLowerBound, iUpperBound, iMissing, c);
  store(c);
}

void entries::VB_M_RescaleByVect2(double* iMat, int n, int p, double iLowerBound, double iUpperBound,
                                  VARIANT_BOOL* iMissing) {
  InOutTable a(iMat, n, p);
  M_RescaleByVect2(a, n, p, iLowerBound, iUpperBound, iMissing);
  store(a);
}
