// The bodies behind the macro entries. Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.
// A body is defined under its qualified name, so one that differs from the catalogue does not compile.
#pragma once

#include "platform/ole.h"

namespace kav::entries {

/// Weighted sum of the cells whose flag is 0; a missing cell counts as 0.
double VB_V_Sum(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Writes the smallest and largest value of the cells whose flag is 0 to VMin and VMax, or the
/// missing-value marker if there is none. Missing cells are skipped, but if the first such cell is
/// missing, VMin is the marker.
void VB_V_MinMax(double* iVector, int n, double* VMin, double* VMax, VARIANT_BOOL* iMissing);

/// Smallest value of the cells whose flag is 0; the missing-value marker if there is none or if the first
/// of them is missing.
double VB_V_Min(double* iVector, int n, VARIANT_BOOL* iMissing);

/// Largest value of the cells whose flag is 0, missing cells skipped; the missing-value marker if there
/// is none.
double VB_V_Max(double* iVector, int n, VARIANT_BOOL* iMissing);

/// Largest integer among the cells whose flag is 0; 0 if there is none.
int VB_V_MaxInt(int* iVector, int n, VARIANT_BOOL* iMissing);

/// Adds ival, in place, to every cell of iVector whose flag is 0; flagged cells become missing and
/// missing cells stay missing.
void VB_V_PlusVal(double* iVector, int n, double ival, VARIANT_BOOL* iMissing);

/// Scalar product of iV1 and iV2; missing cells are not recognized.
double VB_V_ProductTrV1V2(double* iV1, int n, double* iV2);

/// Weighted mean of the usable cells (flag 0, not missing, weight not 0); NaN if there is none.
double VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Weighted mean of the absolute values of the usable cells (flag 0, not missing, weight not 0); NaN if
/// there is none.
double VB_V_MeanAbs(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Total weight of the cells that differ from iValue by less than iEpsilon; 0 if n is below 1.
double VB_V_Freq(double* iVector, int n, double* w, double iValue, double iEpsilon);

/// Total weight of the cells equal to iValue, truncated toward zero to an integer.
int VB_V_FreqLng(int* iVector, int n, double* w, int iValue);

/// Total weight of the labels exactly equal to iValue; upper and lower case are distinguished.
double VB_V_FreqStr(BSTR* iVector, int n, double* w, BSTR iValue);

/// Weighted variance of the cells with flag 0 that are not missing, weight 0 included (NaN if the first
/// weight is 0). Denominator: sum of weights W; if Unbiased is -1, W - W/count, or W - 1 if BiasIsOne is
/// -1 too.
double VB_V_Var(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Weighted standard deviation: the square root of VB_V_Var with the same arguments.
double VB_V_Stdev(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Writes the weighted Mean and Var of the usable cells (flag 0, not missing, weight not 0). Variance
/// denominator: sum of weights W; if Unbiased is -1, W - W/count, or W - 1 if BiasIsOne is -1 too.
void VB_V_MeanVar(
    double* iVector, int n, double* Mean, double* Var, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Writes the weighted Mean and StDev of the usable cells (flag 0, not missing, weight not 0); StDev is
/// the square root of the Var of VB_V_MeanVar with the same options.
void VB_V_MeanStdev(
    double* iVector, int n, double* Mean, double* StDev, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Returns the label with the largest total weight among the non-empty labels whose flag is 0; ties go to
/// the first in string order. The result is empty if there is none.
BSTR VB_V_Mode(BSTR* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Sets oMissing to -1 where the label is empty or iMissing is not 0, and to 0 elsewhere.
void VB_V_GetMissingStr(BSTR* iVectMat, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing);

/// Weighted harmonic mean of the cells whose flag is 0, including negative ones; the missing-value marker
/// if one of them is 0, NaN if all are flagged.
double VB_V_HarmonicMean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Sets oMissing to -1 where the cell is missing or iMissing is not 0, and to 0 elsewhere.
void VB_V_GetMissingDbl(double* iVector, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing);

/// -1 if no cell is below 0 (if every cell is above 0 when iStrictly is -1), else 0; a missing cell
/// counts as 0.
VARIANT_BOOL VB_V_IsPositive(double* iV, int n, VARIANT_BOOL iStrictly);

/// -1 if the sum of the cells is above 0, else 0; single cells are not checked.
VARIANT_BOOL VB_V_IsWeights(double* iW, int nW);

/// -1 if the sum of the cells is above 0 and every cell is a whole number, else 0.
VARIANT_BOOL VB_V_IsCWeights(double* iW, int nW);

/// -1 if every cell is exactly 0 or 1 and at least one is 1, else 0.
VARIANT_BOOL VB_V_IsIndicator(double* iV, int nV);

/// -1 if every cell is exactly 0 or 1 or there are no cells, else 0.
VARIANT_BOOL VB_V_Is01(double* iV, int nV);

/// Number of missing cells.
int VB_V_NbMissing(double* iVector, int n);

/// Number of empty strings, which stand for missing labels.
int VB_V_NbMissingStr(BSTR* iVector, int n);

/// Number of cells that are not missing; n itself if n is below 1.
int VB_V_NbNonMissing(double* iVector, int n);

/// Unweighted sum of all n cells; a missing cell counts as 0.
double VB_V_Sum2Dbl(double* iVector, int n);

/// Sum of all n integers.
int VB_V_Sum2Lng(int* iVector, int n);

/// Quantile of all n cells for Prob (0 to 1), interpolated at position 1 + (n - 1) * Prob (1-based);
/// missing cells are included and sort first. -1 if n is below 1.
double VB_V_Quantile(double* X, int n, double Prob);

/// Weighted quantile of all n cells for Prob (0 to 1), as VB_V_Quantile if all weights are equal; missing
/// cells sort first. The missing-value marker if no cell that is not missing has a weight above 0.
double VB_V_QuantileW(double* X, int n, double* w, double Prob);

/// Quantile for Prob (0 to 1), interpolated, of the cells whose flag is 0 and that are not missing; the
/// missing-value marker if there is none.
double VB_V_QuantileM(double* X, int n, VARIANT_BOOL* missing, double Prob);

/// Weighted quantile for Prob (0 to 1), as VB_V_QuantileW, of the cells whose flag is 0 and that are not
/// missing; the missing-value marker if none of them has a weight above 0.
double VB_V_QuantileMW(double* X, int n, VARIANT_BOOL* missing, double* w, double Prob);

/// Copies the n cells of iVect to oVect, missing cells included.
void VB_V_DuplicateDbl(double* iVect, int n, double* oVect);

/// Copies the n integers of iVect to oVect.
void VB_V_DuplicateLng(int* iVect, int n, int* oVect);

/// Copies the n strings of iVect to oVect as new strings; previous strings of oVect are not freed.
void VB_V_DuplicateStr(BSTR* iVect, int n, BSTR* oVect);

/// -1 if all n cells are exactly equal or n is below 2, else 0; a missing cell is compared as the marker.
VARIANT_BOOL VB_V_IsConstant(double* iVect, int n);

/// -1 if all n flags hold the same value or n is below 2, else 0.
VARIANT_BOOL VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n);

/// Copies iVect without its cell ID (1-based) to oVect, which receives n - 1 cells.
void VB_V_RemoveVal(double* iVect, int n, int ID, double* oVect);

/// Number of true flags among the n flags.
int VB_V_NbTrue(VARIANT_BOOL* iVect, int n);

/// Sum of cells iFrom to iTo (1-based, inclusive, limited to 1 to n); a missing cell counts as 0.
double VB_V_SumFromTo(double* iVect, int n, int iFrom, int iTo);

/// Sum of the integers in cells iFrom to iTo (1-based, inclusive, limited to 1 to n).
int VB_V_SumFromToLng(int* iVect, int n, int iFrom, int iTo);

/// Writes Mean, Var, population skewness and excess kurtosis (SkewP, KurtP) and sample ones (SkewF,
/// KurtF), or missing-value markers if they cannot be computed. A missing cell whose flag is 0 counts as
/// 0.
void VB_V_MeanVarSkewPKurtP(
    double* iVector, int n, double* Mean, double* Var, double* SkewP, double* KurtP, double* SkewF,
    double* KurtF, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Weighted median of the absolute deviations from iMedian, unscaled, over the cells whose flag is 0 and
/// that are not missing; the missing-value marker if there is none.
double VB_V_MedianAbsDev(double* iVector, int n, double iMedian, VARIANT_BOOL* iMissing, double* w);

/// Weighted mean of the absolute deviations from iMean over the cells whose flag is 0, missing cells not
/// skipped; NaN if all are flagged.
double VB_V_MeanAbsDev(double* iVector, int n, double iMean, VARIANT_BOOL* iMissing, double* w);

/// Writes the weighted geometric mean and geometric standard deviation of the cells whose flag is 0. Both
/// are the missing-value marker if a cell is not above 0, oGSD alone if its denominator is 0.
void VB_V_GMeanGSD(double* iVector, int n, VARIANT_BOOL* iMissing, double* w, double* oGMean, double* oGSD);

/// Writes the cells, standardized by the weighted mean and standard deviation of the usable ones, to
/// oVector; 0 if the standard deviation is 0. Flagged and missing cells give the missing-value marker.
void VB_V_Standardize(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, double* oVector);

/// Standardizes iVector in place by the weighted mean and standard deviation of its usable cells; 0 if
/// the standard deviation is 0. Flagged and missing cells become the missing-value marker.
void VB_V_Standardize2(double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased);

/// Maps the usable cells linearly onto the range iLowerBound to iUpperBound and writes them to oVector.
/// Constant values give iLowerBound, flagged and missing cells the missing-value marker.
void VB_V_Rescale(
    double* iVector, int n, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing, double* oVector);

/// Maps the usable cells of iVector linearly onto the range iLowerBound to iUpperBound, in place.
/// Constant values give iLowerBound, flagged and missing cells the missing-value marker.
void VB_V_Rescale2(double* iVector, int n, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing);

/// Writes the products iVect1(a) * iVect2(b) to cells (a - 1) * p2 + b of oVect (1-based), at most the
/// first p of these p1 * p2 cells.
void VB_V_ProductHorizV1V2(double* iVect1, int p1, double* iVect2, int p2, double* oVect, int p);

/// Replaces ioVect1 by its products with iVect2: cell (a - 1) * p2 + b becomes ioVect1(a) * iVect2(b),
/// and iop1 becomes iop1 * p2. ioVect1 must have room for them.
void VB_V_ProductHorizV1V22(double* ioVect1, int* iop1, double* iVect2, int p2);

/// -1 if w(i) is greater than Y(i, j) in every row i and column j of the n x p table Y, else 0; a missing
/// cell gives 0.
VARIANT_BOOL VB_V_V1GreaterThanMatCols(double* w, int n, double* Y, int p);

/// Sum of the squares of the cells that are not missing; 0 if there is none.
double VB_V_SumSq(double* iVect, int n);

/// Weighted sum of the squares of the cells that are not missing; 0 if there is none.
double VB_V_SumSqW(double* iVect, int n, double* w);

/// Divides iVect in place by its Euclidean norm; missing cells stay missing and do not enter the norm. A
/// norm of 0 gives NaN.
void VB_V_Norm(double* iVect, int n);

/// Rescales iVect in place so that its Euclidean norm becomes ival; missing cells stay missing. A norm of
/// 0 gives NaN.
void VB_V_NormToVal(double* iVect, int n, double ival);

/// Divides iVect in place by the square root of its weighted sum of squares; missing cells stay missing.
/// A norm of 0 is not checked for.
void VB_V_NormW(double* iVect, int n, double* w);

/// Rescales iVect in place so that the square root of its weighted sum of squares becomes ival; missing
/// cells stay missing. A norm of 0 is not checked for.
void VB_V_NormToValW(double* iVect, int n, double ival, double* w);

/// Fills oVect with 1, 2, ..., n.
void VB_V_Set1toNDbl(double* oVect, int n);

/// Fills oVect with the integers 1, 2, ..., n.
void VB_V_Set1toNLng(int* oVect, int n);

/// Writes the dense ranks of the n cells to oRanks as integers: 1 for the smallest value; equal values
/// share a rank and the next value has the next rank. A missing cell ranks first.
void VB_V_GetRanksLng(double* iVect, int n, int* oRanks);

/// Writes the dense ranks of the n cells to oRanks: 1 for the smallest value; equal values share a rank
/// and the next value has the next rank. A missing cell ranks first.
void VB_V_GetRanksDbl(double* iVect, int n, double* oRanks);

/// Writes row oX and column oY (oY < oX) of position iPos in the lower triangle, without diagonal, of an
/// n x n matrix, packed row by row; all 1-based.
void VB_V_GetPositionInMatNNm1o2(int iPos, int n, int* oX, int* oY);

/// Writes row oX and column oY (oY <= oX) of position iPos in the lower triangle, with diagonal, of an n
/// x n matrix, packed row by row; all 1-based.
void VB_V_GetPositionInMatNNp1o2(int iPos, int n, int* oX, int* oY);

/// Writes row oX and column oY of position iPos in an n x n matrix in column-major order; all 1-based.
void VB_V_GetPositionInMatNN(int iPos, int n, int* oX, int* oY);

/// Sets the n cells of oVector to iValue; returns 0.
int VB_V_SetToValue(double* oVector, int n, double iValue);

/// Sets the n integers of oVector to iValue; returns 0.
int VB_V_SetToValueLng(int* oVector, int n, int iValue);

/// Makes the labels of LabelX unique in place: the second occurrence gets -2 appended, the third -3 and
/// so on, or the next free number. Elements receive new strings; the previous ones are not freed.
void VB_V_ReplaceDoubles(BSTR* LabelX, int n);

/// Copies iVect to oVect with every cell exactly equal to iVal1 replaced by iVal2; either value may be
/// the missing-value marker.
void VB_V_ReplaceVal(double* iVect, int n, double iVal1, double iVal2, double* oVect);

/// Replaces every cell of iVect exactly equal to iVal1 by iVal2, in place; either value may be the
/// missing-value marker.
void VB_V_ReplaceVal2(double* iVect, int n, double iVal1, double iVal2);

/// Writes ranks to oRanks, the number of tie groups to oNbTiedVal and their sizes to oNbTies. Ties share
/// their weighted mean rank, where the first of a group has the weight of the smallest of all cells.
void VB_V_GetRanksTiesDbl(double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal, double* oNbTies);

/// Writes the ranks of VB_V_GetRanksTiesDbl to oRanks, the rank of each tie group rounded down to an
/// integer. oNbTiedVal receives the number of groups, oNbTies their sizes.
void VB_V_GetRanksTiesIntDbl(
    double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal, double* oNbTies);

/// Number of true flags in cells nStart to nEnd (1-based, inclusive, limited to 1 to n).
int VB_V_NbTrueFromTo(VARIANT_BOOL* iVect, int n, int nStart, int nEnd);

/// Returns the largest value that is not missing and writes its first position (1-based) to oMaxPos; the
/// missing-value marker and position 0 if there is none.
double VB_V_MaxAndMaxPos(double* iVect, int n, int* oMaxPos);

/// Returns the smallest value that is not missing and writes its first position (1-based) to oMinPos; the
/// missing-value marker and position 0 if there is none.
double VB_V_MinAndMinPos(double* iVect, int n, int* oMinPos);

/// Sum of the squared differences between iVect1 and iVect2, no cell skipped; 0 if n is below 1.
double VB_V_DiffSq(double* iVect1, int n, double* iVect2);

/// Multiplies ioVect1 in place by iVect2, cell by cell; missing cells are not recognized.
void VB_V_ProductV1V22(double* ioVect1, int n, double* iVect2);

/// Writes the products of iVect1 and iVect2, cell by cell, to oVect; missing cells are not recognized.
void VB_V_ProductV1V2(double* iVect1, int n, double* iVect2, double* oVect);

/// -1 if every cell of iVect1 is smaller than the same cell of iVect2, else 0; a missing cell gives 0.
VARIANT_BOOL VB_V_V1inferiorV2(double* iVect1, int n, double* iVect2);

/// Sets the n elements of oVect to new copies of ival; previous strings are not freed.
void VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival);

/// Number of distinct values among the n cells, compared exactly; the missing-value marker is one of the
/// values.
int VB_V_NbDistinct(double* iVect, int n);

/// Writes the distinct values of iVect in ascending order to the first k cells of oVect, and their number
/// to k; the missing-value marker is one of the values.
void VB_V_ExtractDistinct(double* iVect, int n, double* oVect, int* k);

/// Smallest positive difference between successive times in iVect, sorted first if iDoSort is -1; missing
/// times are skipped. The missing-value marker if there is none.
double VB_V_TimeIntervalSize(double* iVect, int n, VARIANT_BOOL iDoSort);

/// -1 if the cells never decrease (always increase if iStrictly is -1), else 0; missing cells are
/// skipped.
VARIANT_BOOL VB_V_IsSorted(double* iVect, int n, VARIANT_BOOL iStrictly);

/// Writes iVect1(i) * iVect2(j) to row i and column j of the n x n matrix oMat; missing cells are not
/// recognized.
void VB_V_ProductV1TrV2(double* iVect1, int n, double* iVect2, double* oMat);

/// Copies iVect in reverse order to oVect, missing cells included.
void VB_V_ReverseDbl(double* iVect, int n, double* oVect);

/// Copies the flags of iVect in reverse order to oVect as 0 or -1.
void VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect);

/// Solves the n x n system ioMat * x = ioVect with full pivoting: ioMat becomes its inverse and ioVect
/// the solution. Returns 0, or -2 if a pivot is exactly 0 (singular).
int VB_V_Gauss(double* ioMat, int n, double* ioVect);

/// -1 if every cell lies between iLower and iUpper, bounds included (excluded if iStrictly is -1), else
/// 0. A missing cell gives 0 unless iIgnoreMissing is -1.
VARIANT_BOOL VB_V_IsInInterval(
    double* iVect, int n, double iLower, double iUpper, VARIANT_BOOL iStrictly, VARIANT_BOOL iIgnoreMissing);

/// Number of cells that are not missing and exactly equal to ival, as a double; 0 if n is below 1.
double VB_V_NbIf(double* iVect, int n, double ival);

/// Sum of the cells of iVect whose cell in iVect2 equals ival, both not missing; 0 if there is none, the
/// missing-value marker if n is below 1.
double VB_V_SumIf(double* iVect, int n, double* iVect2, double ival);

/// Mean of the cells of iVect that are not missing and whose cell in iVect2 equals ival; the
/// missing-value marker if there is none.
double VB_V_MeanIf(double* iVect, int n, double* iVect2, double ival);

/// Variance of the cells of iVect that are not missing and whose cell in iVect2 equals ival, with
/// denominator count - 1, or count if iBiased is -1; the missing-value marker if it cannot be computed.
double VB_V_VarIf(double* iVect, int n, double* iVect2, double ival, VARIANT_BOOL iBiased);

/// Sweeps the packed symmetric matrix t (lower triangle row by row, n(n+1)/2 cells) on the 1-based pivot
/// k, in place. Returns 0; a zero pivot is not checked for.
int VB_M_Sweep(double* t, int n, int k);

/// Writes the transpose (p x n) of the n x p matrix into oTransMat; missing-value markers are kept.
/// Returns 0.
int VB_M_Transpose(double* iAMat, int n, int p, double* oTransMat);

/// Replaces the n x p matrix by its p x n transpose, in place; missing-value markers are kept. Returns 0.
int VB_M_Transpose2(double* iAMat, int n, int p);

/// Writes the inverse of the n x n matrix into oInvMat; returns 0, or -1 if the matrix is singular. A
/// pivot counts as zero up to 1E-08 if Eps is positive, else up to 2.2E-16.
int VB_M_Inverse1(double* iAMat, int n, double* oInvMat, double Eps);

/// Writes (x - Mean) / StDev for each column into oMat and StDev squared into Var; a StDev not above 0
/// gives 0.0. Missing cells and flagged rows are kept. Returns 0.
int VB_M_StandardizeKnownMeansStDev(
    double* iMat, int n, int p, double* Mean, double* oMat, double* StDev, double* Var,
    VARIANT_BOOL* iMissing);

/// Writes the matrix product A.B (n x m) into oCMat; missing cells are not recognized. Returns 0.
int VB_M_ProductAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);

/// Writes the matrix product A.B (n x m) into oCMat; a cell with a missing term becomes the missing-value
/// marker. Returns 0.
int VB_M_ProductABMissing(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);

/// Writes B.v (n cells) into oCVec, where B is n x p and v has p cells; missing cells are not recognized.
/// Returns 0.
int VB_M_ProductBV(double* iBMat, int n, int p, double* iAVec, double* oCVec);

/// Eigenvalues and unit eigenvectors (columns of oEigenVect) of the symmetric n x n matrix, in decreasing
/// order if iSort is not 0. Returns 0, or -1 if the method does not converge.
int VB_M_Eigen(double* iMat, double* oEigenVal, double* oEigenVect, int n, VARIANT_BOOL iSort);

/// Weighted mean and standard deviation of each column; the missing-value marker if no row is used. A
/// missing cell is left out if MissingPerCol is -1, and counts as 0.0 if it is 0. Returns 0.
int VB_M_MeanStDev(
    double* iMat, int n, int p, double* Mean, double* StDev, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne, VARIANT_BOOL MissingPerCol);

/// Weighted mean of each column over the rows whose flag is 0; 0.0 if no row is used. A missing cell
/// counts as 0.0. Returns 0.
int VB_M_Mean(double* iMat, int n, int p, double* Mean, VARIANT_BOOL* iMissing, double* w);

/// Weighted mean, standard deviation and variance of each column over the rows whose flag is 0; the
/// missing-value marker if they cannot be computed. Returns 0.
int VB_M_MeanStDevVar(
    double* iMat, int n, int p, double* Mean, double* StDev, double* Var, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Covariances or correlations (p x p), means, standard deviations and variances of the columns.
/// ZeroMeaniMat centres and StandardizeiMat standardizes iMat in place. Returns 0.
int VB_M_CovCorrAndMeanStDevVar(
    double* iMat, int n, int p, double* CovCorr, double* Mean, double* StDev, double* Var,
    VARIANT_BOOL Correlations, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne, VARIANT_BOOL ZeroMeaniMat, VARIANT_BOOL StandardizeiMat);

/// Writes the covariances (p1 x p2) of the columns of iMat1 with those of iMat2 into CovCorr:
/// correlations if Correlations is not 0, their squares if Determination is not 0.
void VB_M_CorrMatMat(
    double* iMat1, int n, int p1, double* iMat2, int p2, double* CovCorr, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Correlations, VARIANT_BOOL Determination, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Divides each column of iMat, in place, by the square root of its sum of squares over the usable rows;
/// the p divisors are written to Norm.
void VB_M_Normalize(
    double* iMat, int n, int p, double* Norm, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne);

/// Weighted covariances or correlations (p x p), with pairwise deletion of missing cells. A pair without
/// rows gives the missing-value marker, a constant column correlations of 0.0. Returns 0.
int VB_M_CovCorr(
    double* iMat, int n, int p, double* CovCorr, VARIANT_BOOL Correlations, VARIANT_BOOL* iMissing,
    double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Standardizes three tables of p columns in place by the column means and standard deviations of ioM1,
/// and multiplies them by the square root of n1 / (n1 - 1).
void VB_M_NormalizeMatrix(double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3, int n3);

/// Writes (x - mean) / standard deviation into oMat and the column statistics, which leave out flagged
/// rows, into Mean, StDev and Var. A constant column becomes 0.0.
void VB_M_Standardize(
    double* iMat, int n, int p, double* oMat, double* Mean, double* StDev, double* Var,
    VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Standardizes three tables of p columns in place by the column means and unbiased standard deviations
/// of ioM1; a constant column becomes 0.0.
void VB_M_StandardizeMatrix(double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3, int n3);

/// Describes the labels of each column: the most frequent one (Mode, FreqMode), the number of categories
/// (NbCat, in all NbCatTotal), their list (Cat, sorted if DoSort is -1) and their weights (FreqCat).
void VB_M_InfoQuali(
    BSTR* iMat, int n, int p, BSTR* Mode, double* FreqMode, int* NbCatTotal, int* NbCat, BSTR* Cat,
    double* FreqCat, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL DoSort);

/// Writes the weighted frequencies, in this table, of the categories listed in Cat (NbCat per column)
/// into FreqCatValid; Problem is -1 if a label is not listed.
void VB_M_InfoQualiValid(
    BSTR* iMat, int n, int p, int nCat, int NbCatTotal, int* NbCat, BSTR* Cat, double* FreqCatValid,
    VARIANT_BOOL* Problem, VARIANT_BOOL* iMissing, double* w);

/// Weighted mean, standard deviation and variance of column IDCol (1-based) over the rows whose flag is
/// 0; the missing-value marker if they cannot be computed.
void VB_M_MeanStDevVarOneInMat(
    double* iMat, int n, int IDCol, double* Mean, double* StDev, double* Var, VARIANT_BOOL* iMissing,
    double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne);

/// Returns -1 if every cell is an integer below 2^53 in magnitude, else 0.
VARIANT_BOOL VB_M_IsLong(double* iMat, int n, int p);

/// Replaces every missing cell of iMat by ival, in place; the other cells are kept.
void VB_M_ReplaceMissingByVal(double* iMat, int n, int p, double ival);

/// Replaces every empty cell of the string table by ival, in place; the other cells keep their text.
void VB_M_ReplaceMissingByStr(BSTR* iMat, int n, int p, BSTR ival);

/// Copies the table without column iCol (1-based; the last column if there is no such column) into oMat
/// (n x (p - 1)); missing-value markers are kept.
void VB_M_RemoveCol(double* iMat, int n, int p, int iCol, double* oMat);

/// Copies the table without row iRow (1-based; the last row if there is no such row) into oMat ((n - 1) x
/// p); missing-value markers are kept.
void VB_M_RemoveRow(double* iMat, int n, int p, int iRow, double* oMat);

/// Moves row iRow to row iNewPos (both 1-based) in place; the rows between shift by one.
void VB_M_MoveRow(double* iMat, int n, int p, int iRow, int iNewPos);

/// Smallest and largest value of each column, without flagged rows; if MissingPerCol is -1, without
/// missing cells instead. The missing-value marker if no cell is used.
void VB_M_MinMax(
    double* iMat, int n, int p, double* VMin, double* VMax, VARIANT_BOOL* iMissing,
    VARIANT_BOOL MissingPerCol);

/// Sets missing to -1 where it was not 0 or the row has a missing cell, and AllMissing to -1 where every
/// cell of the row is missing; both to 0 elsewhere.
void VB_M_AllMissingRows(double* iMat, int n, int p, VARIANT_BOOL* missing, VARIANT_BOOL* AllMissing);

/// Sets missing to -1 where it was not 0 or the row has an empty cell, and AllMissing to -1 where every
/// cell of the row is empty; both to 0 elsewhere.
void VB_M_AllMissingRowsStr(BSTR* iMat, int n, int p, VARIANT_BOOL* missing, VARIANT_BOOL* AllMissing);

/// Writes the number of missing cells in each column into NbMissing (p cells).
void VB_M_NbMissing(double* iMat, int n, int p, int* NbMissing);

/// Writes the number of empty cells in each column of the string table into NbMissing (p cells).
void VB_M_NbMissingStr(BSTR* iMat, int n, int p, int* NbMissing);

/// Writes the number of cells that are not missing in each column into NbNonMissing (p cells).
void VB_M_NbNonMissing(double* iMat, int n, int p, int* NbNonMissing);

/// Writes s1.A + S2.B (n x p) into oCMat; missing cells are not recognized.
void VB_M_Sums1As2B(double* iAMat, int n, int p, double* iBMat, double s1, double S2, double* oCMat);

/// Writes v'.B (p cells) into oCVec, where v has n cells and B is n x p; missing cells are not
/// recognized.
void VB_M_ProductVB(double* iAVec, int n, double* iBMat, int p, double* oCVec);

/// Writes A'.B (p x m) into oCMat, where A is n x p and B is n x m; missing cells are not recognized.
void VB_M_ProductTrAB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);

/// Writes A.B' (n x m) into oCMat, where A is n x p and B is m x p; missing cells are not recognized.
void VB_M_ProductATrB(double* iAMat, int n, int p, double* iBMat, int m, double* oCMat);

/// Writes A'.A (p x p) into oTrAAMat; missing cells are not recognized.
void VB_M_ProductTrAA(double* iAMat, int n, int p, double* oTrAAMat);

/// Writes A.A' (n x n) into oATrAMat; missing cells are not recognized.
void VB_M_ProductATrA(double* iAMat, int n, int p, double* oATrAMat);

/// Writes A.D.A' (n x n) into oADTrA; only the diagonal of the p x p matrix D is used.
void VB_M_ProductADTrA(double* iAMat, int n, int p, double* iDiagMat, double* oADTrA);

/// Writes A'.D.A (p x p) into oTrADA; only the diagonal of the n x n matrix D is used.
void VB_M_ProductTrADA(double* iAMat, int n, int p, double* iDiagMat, double* oTrADA);

/// Writes A.D (n x p) into oADiagMat; only the diagonal of the p x p matrix D is used.
void VB_M_ProductADiag(double* iAMat, int n, int p, double* iDiagMat, double* oADiagMat);

/// Writes A'.D (p x n) into oTrADiagMat; only the diagonal of the n x n matrix D is used.
void VB_M_ProductTrADiag(double* iAMat, int n, int p, double* iDiagMat, double* oTrADiagMat);

/// Writes A.B.A' (n x n) into oCMat, where B is p x p; missing cells are not recognized.
void VB_M_ProductABTrA(double* iAMat, int n, int p, double* iBMat, double* oCMat);

/// Writes A'.B.A (p x p) into oCMat, where B is n x n; missing cells are not recognized.
void VB_M_ProductTrABA(double* iAMat, int n, int p, double* iBMat, double* oCMat);

/// Returns v'.B.v, where v has n cells and B is n x n; missing cells are not recognized.
double VB_M_ProductTrVBV(double* iVect, int n, double* iBMat);

/// Writes A'.inv(B).A (p x p) into oCMat, where B is n x n; the inverse of a singular B is taken as
/// zeros.
void VB_M_ProductTrAinvBA(double* iAMat, int n, int p, double* iBMat, double* oCMat);

/// Returns v'.inv(B).v, where v has n cells and B is n x n; the inverse of a singular B is taken as
/// zeros.
double VB_M_ProductTrVinvBV(double* iVect, int n, double* iBMat);

/// Writes A.inv(B).A' (n x n) into oCMat, where B is p x p; the inverse of a singular B is taken as
/// zeros.
void VB_M_ProductAinvBTrA(double* iAMat, int n, int p, double* iBMat, double* oCMat);

/// Writes s.A (n x p) into osAMat; missing cells are not recognized.
void VB_M_ScalarsA(double* iAMat, int n, int p, double s, double* osAMat);

/// Multiplies every cell of iAMat by s, in place.
void VB_M_ScalarsA2(double* iAMat, int n, int p, double s);

/// Writes s.A' (p x n) into osTrAMat; missing cells are not recognized.
void VB_M_ScalarsTrA(double* iAMat, int n, int p, double s, double* osTrAMat);

/// Writes A with ival added to every cell (n x p) into oAPlusVal.
void VB_M_APlusVal(double* iAMat, int n, int p, double ival, double* oAPlusVal);

/// Squares the cells of ioMat in place, except for the first column and the first cell of the second
/// column.
void VB_M_Square(double* ioMat, int n, int p);

/// Returns the trace (sum of the diagonal) of the n x n matrix.
double VB_M_Trace(double* iAMat, int n);

/// Returns the determinant of a triangular n x n matrix, the product of its diagonal; Problem is set to
/// 0.
double VB_M_DeterminantTriang(double* iAMat, int n, VARIANT_BOOL* Problem);

/// Returns the determinant of the n x n matrix. Problem is 0, -1 for a row of zeros, or 1 if no pivot is
/// found; in the last two cases the result is 0.0.
double VB_M_Determinant(double* iAMat, int n, VARIANT_BOOL* Problem);

/// Replaces iAMat (n x n) by its LU factors; indx receives the 1-based pivot rows, d the parity 1 or -1.
/// Problem is 0, -1 for a row of zeros, or 1 if no pivot is found.
void VB_M_LUDecomp(double* iAMat, int n, int* indx, double* d, VARIANT_BOOL* Problem);

/// Writes the lower triangular L with A = L.L' (n x n) into oMat; returns 0, or -1 if A is not positive
/// definite. Only the upper triangle of A is read.
int VB_M_CholDecomp(double* iAMat, int n, double* oMat);

/// Writes the squared weighted distances between rows (n x n, p weights) into oDistMat, or between
/// columns (p x p, n weights) if iByRows is 0.
void VB_M_EuclidDist2(double* iAMat, int n, int p, double* oDistMat, double* w, VARIANT_BOOL iByRows);

/// Returns -1 if every cell of the rows whose flag is 0 is at least 0 (above 0 if iStrictly is -1), else
/// 0.
VARIANT_BOOL VB_M_IsPositive(double* iAMat, int n, int p, VARIANT_BOOL* iMissing, VARIANT_BOOL iStrictly);

/// Replaces the cells by their natural logarithm, in place; missing cells and flagged rows are kept. Zero
/// gives minus infinity, a negative cell NaN.
void VB_M_LogMatrix(double* iAMat, int n, int p, VARIANT_BOOL* iMissing);

/// Writes the sum of each column into oSums (p cells); missing cells are not recognized.
void VB_M_SumByCols(double* iMat, int n, int p, double* oSums);

/// Writes the sum of each row into oSums (n cells); missing cells are not recognized.
void VB_M_SumByRows(double* iMat, int n, int p, double* oSums);

/// Returns -1 if the table consists of 0/1 columns in consecutive groups that sum to 1 in every row whose
/// flag is 0, else 0; oNbVar receives the number of groups.
VARIANT_BOOL VB_M_IsDisjTable(double* iMat, int n, int p, VARIANT_BOOL* missing, int* oNbVar);

/// Copies the table cell by cell into oMat (n x p); missing-value markers are kept.
void VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat);

/// Copies the string table into oMat (n x p) as new strings; previous strings of oMat are not freed.
void VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat);

/// Copies the leading block of the n x p table into oMat (n2 x p2); additional cells become 0.0,
/// missing-value markers are kept.
void VB_M_CopyResize(double* iMat, int n, int p, double* oMat, int n2, int p2);

/// Copies rows nStart to nEnd (1-based, inclusive, limited to the table), all p columns, into oMat;
/// missing-value markers are kept.
void VB_M_ExtractMatToMatDbl(double* iMat, int n, int p, int nStart, int nEnd, double* oMat);

/// Copies rows nStart to nEnd (1-based, inclusive, limited to the table) of the string table, all p
/// columns, into oMat as new strings.
void VB_M_ExtractMatToMatStr(BSTR* iMat, int n, int p, int nStart, int nEnd, BSTR* oMat);

/// Copies the leading block of the n x p string table into oMat (n2 x p2) as new strings; additional
/// cells become empty.
void VB_M_CopyResizeStr(BSTR* iMat, int n, int p, BSTR* oMat, int n2, int p2);

/// Returns the 1-based position of the first constant column, or 0 if there is none.
int VB_M_IsColConstant(double* iAMat, int n, int p);

/// Standardizes each column by its weighted mean and standard deviation, into oMat; there are n x p
/// flags. Flagged or missing cells become the missing-value marker, a constant column 0.0.
void VB_M_StandardizeByVect(
    double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, double* oMat);

/// Standardizes each column by its weighted mean and standard deviation, in place; there are n x p flags.
/// Flagged or missing cells become the missing-value marker, a constant column 0.0.
void VB_M_StandardizeByVect2(
    double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased);

/// Maps each column onto the range iLowerBound to iUpperBound, into oMat; there are n x p flags. Flagged
/// or missing cells become the missing-value marker, a constant column the lower bound.
void VB_M_RescaleByVect(
    double* iMat, int n, int p, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing, double* oMat);

/// Maps each column onto the range iLowerBound to iUpperBound, in place; there are n x p flags. Flagged
/// or missing cells become the missing-value marker, a constant column the lower bound.
void VB_M_RescaleByVect2(
    double* iMat, int n, int p, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing);

/// Writes the 1-based position of each label among its column's categories into oMat (n x p); an empty or
/// unknown label gives the missing-value marker.
void VB_M_ReplaceCatByCodes(BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, double* oMat);

/// Writes the products of each column of iMat1 with each column of iMat2, row by row, into oMat (n x
/// p1.p2); the column of iMat2 varies fastest.
void VB_M_ProductHorizAB(double* iMat1, int n, int p1, double* iMat2, int p2, double* oMat, int p);

/// Replaces ioMat1 by the products of each of its columns with each column of iMat2, row by row (n x
/// iop1.p2); iop1 becomes iop1.p2. The array must be large enough.
void VB_M_ProductHorizAB2(double* ioMat1, int n, int* iop1, double* iMat2, int p2);

/// Writes the position of each label among its column's categories, counted from iCodeStart, into oMat.
/// An empty or unknown label or a flagged row gives the missing-value marker.
void VB_M_ReplaceStrByCodes(
    BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, VARIANT_BOOL* iMissing, int iCodeStart, double* oMat);

/// Returns -1 if the n x n matrix is symmetric, else 0.
VARIANT_BOOL VB_M_IsSymmetric(double* t, int n);

/// Returns -1 if all diagonal cells of the n x n matrix are equal, else 0.
VARIANT_BOOL VB_M_IsDiagConstant(double* t, int n);

/// Makes the n x n matrix symmetric in place: iType 0 takes the mean of both triangles, 1 copies the
/// upper to the lower, 2 the lower to the upper.
void VB_M_Symmetrize(double* t, int n, int iType);

/// Returns 1 for a lower triangular matrix, 2 for an upper triangular one, 3 for both, 0 for neither; if
/// iUpdateT is -1, the filled triangle is mirrored in place.
int VB_M_IsTriangular(double* t, int n, VARIANT_BOOL iUpdateT);

/// Returns 0 for a matrix of dissimilarities, 1 for similarities, iApriori if both are possible, -1 if
/// neither is.
int VB_M_CheckIfSimOrDissim(double* t, int n, int iApriori);

/// Replaces similarities by dissimilarities in place: s(i,i) - s(i,j) for i below j, mirrored, with a
/// diagonal of 0.0.
void VB_M_TransformSimToDissim(double* t, int n);

/// Sets all pW weights (w is n x pW) of each row of t that has a missing cell to 0.0; the other weights
/// are kept.
void VB_M_SetWeightsToZeroForMissing(double* t, int n, int p, double* w, int pW);

/// Writes the inverse of a triangular n x n matrix into the same triangle of oInvMat; the other triangle
/// is not written. Returns 0, or -1 if a diagonal cell is below Eps in magnitude.
int VB_M_InverseTriang(double* iTriangMat, int n, VARIANT_BOOL iIsLower, double* oInvMat, double Eps);

/// Writes the singular values, decreasing, into s and the vectors that job selects (21 for both) into u
/// and v; X is overwritten. info is 0, or the position of a value that does not converge.
void VB_M_SVDecomp(
    double* X, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job, int* info);

/// Writes each column minus its mean into oMat (n x p); a missing cell counts as 0.0.
void VB_M_Center(double* iMat, int n, int p, double* oMat);

/// Writes each column minus its weighted mean into oMat (n x p). Rows of weight 0.0 do not enter the
/// mean; a missing cell counts as 0.0.
void VB_M_CenterW(double* iMat, int n, int p, double* w, double* oMat);

/// Subtracts from each column its mean, in place; a missing cell counts as 0.0 in the mean and stays
/// missing.
void VB_M_Center2(double* ioMat, int n, int p);

/// Subtracts from each column its weighted mean, in place; a missing cell counts as 0.0 in the mean and
/// stays missing.
void VB_M_CenterW2(double* ioMat, int n, int p, double* w);

/// Writes each column divided by its standard deviation, without centring, into oMat (n x p). A constant
/// column becomes 0.0; a missing cell counts as 0.0.
void VB_M_Reduce(double* iMat, int n, int p, double* oMat, VARIANT_BOOL Unbiased);

/// Writes each column divided by its weighted standard deviation, without centring, into oMat (n x p). A
/// constant column becomes 0.0.
void VB_M_ReduceW(double* iMat, int n, int p, double* w, double* oMat, VARIANT_BOOL Unbiased);

/// Divides each column by its standard deviation, without centring, in place. A constant column becomes
/// 0.0; a missing cell stays missing.
void VB_M_Reduce2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased);

/// Divides each column by its weighted standard deviation, without centring, in place. A constant column
/// becomes 0.0; a missing cell stays missing.
void VB_M_ReduceW2(double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased);

/// Standardizes each column in place: (x - mean) / standard deviation, with variance denominator n - 1 if
/// Unbiased is -1, else n. A constant column becomes 0.0; a missing cell stays missing.
void VB_M_Standardize2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased);

/// Standardizes each column in place and writes the p means and standard deviations into oMean and
/// oStdev. A constant column becomes 0.0; a missing cell stays missing.
void VB_M_Standardize3(double* ioMat, int n, int p, double* oMean, double* oStdev, VARIANT_BOOL Unbiased);

/// Standardizes each column in place by its weighted mean and standard deviation. A constant column
/// becomes 0.0; a missing cell stays missing.
void VB_M_StandardizeW2(double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased);

/// Returns the sum of the products of the cells of iMat1 and iMat2, trace(A'.B); no square root is taken.
double VB_M_FrobeniusNorm(double* iMat1, int n, int p, double* iMat2);

/// Writes the product, cell by cell, of iMat1 and iMat2 into oMat (n x p); missing cells are not
/// recognized.
void VB_M_ProductByElement(double* iMat1, int n, int p, double* iMat2, double* oMat);

/// Writes A.diag(v) (n x p) into oMat: column j times cell j of iDiagVect (p cells).
void VB_M_ProductADiagV(double* iMat, int n, int p, double* iDiagVect, double* oMat);

/// Writes the sum of squares of each row into oVect (n cells); missing cells are not recognized.
void VB_M_SquaredRows(double* iMat, int n, int p, double* oVect);

/// Writes the sum of squares of each column into oVect (p cells); missing cells are not recognized.
void VB_M_SquaredColumns(double* iMat, int n, int p, double* oVect);

/// Copies rows nStart to nEnd and columns pStart to pEnd (1-based, inclusive, limited to the table) into
/// oMat; missing-value markers are kept.
void VB_M_CopyBlock(double* iMat, int n, int p, int nStart, int nEnd, int pStart, int pEnd, double* oMat);

/// Removes columns pStart to pEnd (1-based, inclusive) in place; the smaller table is packed at the start
/// of the array.
void VB_M_RemoveCols2(double* ioMat, int n, int p, int pStart, int pEnd);

/// Removes rows nStart to nEnd (1-based, inclusive) in place; the smaller table is packed at the start of
/// the array.
void VB_M_RemoveRows2(double* ioMat, int n, int p, int nStart, int nEnd);

/// Copies columns pStart to pEnd (1-based, inclusive, limited to the table), all n rows, into oMat;
/// missing-value markers are kept.
void VB_M_ExtractMatToMatByColDbl(double* iMat, int n, int p, int pStart, int pEnd, double* oMat);

/// Returns the determinant of the p x p matrix without the rows and columns whose iConstraints is not 0.
/// Problem is as in VB_M_Determinant.
double VB_M_DeterminantCleaned(double* iMat, int p, int* iConstraints, VARIANT_BOOL* Problem);

/// Writes the smallest value of each column into oMinVect (p cells). Cells holding the missing-value
/// marker are skipped; a column of markers gives the marker.
void VB_M_Min(double* iMat, int n, int p, double* oMinVect);

/// Writes the largest value of each column into oMaxVect (p cells). Cells holding the missing-value
/// marker are skipped; a column of markers gives the marker.
void VB_M_Max(double* iMat, int n, int p, double* oMaxVect);

/// Writes the lower triangular L with A = L.L' over the variables whose iConstraints is 0 into oMat (p x
/// p), zeros elsewhere. Returns 0, or -1 if A is not positive definite.
int VB_M_CholDecompCleaned(double* iMat, int p, int* iConstraints, double* oMat);

/// Writes the correlations (p x p) that belong to the covariances iCovMat into oCorrMat; a variable
/// without variance gives 0.0, even on the diagonal.
void VB_M_CorrMatFromCovMat(double* iCovMat, int p, double* oCorrMat);

/// Returns -1 if every cell lies between 0 and 1, bounds included, else 0.
VARIANT_BOOL VB_M_IsIn01(double* iMat, int n, int p);

/// Pastes the n x p table into ioMat (n2 x p2) from row nStart and column pStart (1-based) on; what does
/// not fit is cut off, the other cells are kept.
void VB_M_PasteBlock(double* iMat, int n, int p, double* ioMat, int n2, int p2, int nStart, int pStart);

/// Returns x'.B.y, where x and y have n cells and B is n x n; missing cells are not recognized.
double VB_M_ProductTrV1BV2(double* iVect1, int n, double* iBMat, double* iVect2);

/// Copies the n x p table into the leading block of oMat (nOut x pOut); the other cells of oMat are kept.
void VB_M_CopyToBigger(double* iMat, int n, int p, double* oMat, int nOut, int pOut);

/// Draws one random row from each of SampleSize intervals into oMat, and its 1-based position into idx.
/// ioSeed receives the seed used unless iSeedInit is -1; oSeed receives a seed for the next call.
void VB_M_SamplingRandomStratified(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed);

/// Takes the middle row of each of SampleSize equal intervals: rows into oMat (SampleSize x p) as new
/// strings, 1-based positions into idx.
void VB_M_SamplingSystematicCentered(BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx);

/// Draws SampleSize rows at even steps from a random start into oMat, and their 1-based positions into
/// idx. ioSeed receives the seed used unless iSeedInit is -1; oSeed receives a seed for the next call.
void VB_M_SamplingSystematicRdStart(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed);

/// Copies the rows of the string table whose 1-based positions are in idx into oMat, in that order, as
/// new strings.
void VB_M_SampleUserDefined(BSTR* iMat, int n, int p, BSTR* oMat, double* idx);

/// Draws SampleSize rows with replacement into oMat, and their 1-based positions into idx. ioSeed
/// receives the seed used unless iSeedInit is -1; oSeed receives a seed for the next call.
void VB_M_SamplingWithReplacement(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed);

/// Writes the interaction of two coded blocks into ioMat1; iop1 becomes iop1.p2. If iConstraintType is 3,
/// cells are divided by sums of weights, and oInterFreqCat receives the sums of the positive cells.
void VB_M_ProductDesignAB2(
    double* ioMat1, int n, int* iop1, double* iMat2, int p2, int iConstraintType, double* w,
    double* oInterFreqCat);

/// Replaces the cells by their base-10 logarithm, in place; missing cells are kept. Zero gives minus
/// infinity, a negative cell NaN.
void VB_M_Log10Matrix(double* ioMat, int n, int p);

/// Writes diag(v).A (n x p) into oMat: row i times cell i of iDiagVect (n cells).
void VB_M_ProductDiagVA(double* iDiagVect, int n, double* iMat, int p, double* oMat);

/// Writes diag(x).A.diag(y) (n x p) into oMat, where x is iDiagVect1 (n cells) and y is iDiagVect2 (p
/// cells).
void VB_M_ProductDiagV1ADiagV2(
    double* iDiagVect1, int n, double* iMat, int p, double* iDiagVect2, double* oMat);

/// Solves linear systems: ioMat1 (n x n) becomes its inverse, the right-hand sides ioMat2 (n x p) the
/// solutions. Returns 0, or -2 if a pivot is zero.
int VB_M_Gauss(double* ioMat1, int n, int p, double* ioMat2);

/// Writes each column, standardized by its weighted mean and standard deviation, into oMat (n x p); a
/// constant column becomes 0.0.
void VB_M_StandardizeW(
    double* iMat, int n, int p, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL isBiasOne, double* oMat);

/// Writes the generalized inverse of the symmetric n x n matrix into oInvMat. Singular values below iEps
/// count as zero; oRank is the number of the others. Returns 0, or -1 on failure.
int VB_M_InvGeneralized(double* iMat, int n, double* oInvMat, double iEps, int* oRank);

/// Writes A'.diag(v).A (p x p) into oMat, where v is iDiagVect (n cells); missing cells are not
/// recognized.
void VB_M_ProductTrADiagVA(double* iMat, int n, int p, double* iDiagVect, double* oMat);

/// Writes A.diag(v).A' (n x n) into oMat, where v is iDiagVect (p cells); missing cells are not
/// recognized.
void VB_M_ProductADiagVTrA(double* iMat, int n, int p, double* iDiagVect, double* oMat);

/// Copies the table without the nOut rows listed in iList (1-based, in any order; other numbers are
/// ignored) into oMat, without gaps; returns the number of remaining rows.
int VB_M_RemoveRowsInList(double* iMat, int n, int p, int* iList, int nOut, double* oMat);

/// Sorts cells iLowerBound to iUpperBound (1-based, inclusive) of ioVector in place, ascending, or
/// descending if iSortdown is not 0; returns 0.
int VB_SortQVectorLng(int* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown);

/// Sorts cells iLowerBound to iUpperBound (1-based) of ioVector in place, ascending, or descending if
/// iSortdown is not 0; returns 0. Missing-value markers count as smallest, NaN as largest.
int VB_SortQVectorDbl(double* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown);

/// Sorts strings iLowerBound to iUpperBound (1-based) of ioVector in place by character code, descending
/// if iSortdown is not 0; returns 0. Elements receive new strings; the previous ones are not freed.
int VB_SortQVectorStr(BSTR* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown);

/// Sorts rows iLowerBound to iUpperBound (1-based) of ioMatrix in place by column iCol (1-based),
/// descending only if iSortdown is -1; ties keep their order. Returns 0.
int VB_SortQMatrixCol(
    double* ioMatrix, int n, int p, int iCol, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown);

/// Sorts the rows of iMat in place, ascending, by column 1, then by each next column within runs of
/// neighbours that are equal within 1e-12 in the column before; earlier columns are not consulted.
void VB_SortMatrixSeqQDbl(double* iMat, int n, int p);

/// Sorts the integer rows of iMat in place, ascending, by column 1, then by each next column within runs
/// of neighbours that are equal in the column before; earlier columns are not consulted.
void VB_SortMatrixSeqQLng(int* iMat, int n, int p);

/// Sorts rows iLowerBound to iUpperBound (1-based) of ioSlave and ioSlave2 stably by the keys ioMaster,
/// descending if iSortdown is -1; the keys are sorted too if updateMaster is -1. Returns 0.
int VB_SortQDbl(
    double* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster,
    double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster);

/// Sorts integer rows iLowerBound to iUpperBound (1-based) of ioSlave and ioSlave2 stably by the keys
/// ioMaster, descending if iSortdown is -1; the keys are sorted too if updateMaster is -1. Returns 0.
int VB_SortQLng(
    int* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, int* ioMaster, int* ioSlave2,
    int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster);

/// Sorts rows iLowerBound to iUpperBound (1-based) of strings ioSlave and of ioSlave2 stably by keys
/// ioMaster, descending if iSortdown is -1, keys too if updateMaster is -1; old strings are not freed.
/// Returns 0.
int VB_SortQStr(
    BSTR* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster, double* ioSlave2,
    int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster);

/// Sorts rows iLowerBound to iUpperBound (1-based) of flags ioSlave and of ioSlave2 stably by the keys
/// ioMaster, descending if iSortdown is -1; the keys are sorted too if updateMaster is -1. Returns 0.
int VB_SortQBool(
    VARIANT_BOOL* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster,
    double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster);

/// Sorts all rows of iSlave in place by the 0/1 key iMaster, zeros first; rows of equal keys keep their
/// order, and iMaster is sorted too. nOut and KeepInitialOrder are not used; returns 0.
int VB_SortDataBy01(double* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder);

/// Sorts all string rows of iSlave in place by the 0/1 key iMaster, zeros first; equal keys keep their
/// order, and iMaster is sorted too. Elements receive new strings, the previous ones are not freed;
/// returns 0.
int VB_SortDataBy01Str(BSTR* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder);

/// Sorts all flag rows of iSlave in place by the 0/1 key iMaster, zeros first; rows of equal keys keep
/// their order, and iMaster is sorted too. nOut and KeepInitialOrder are not used; returns 0.
int VB_SortDataBy01Bool(
    VARIANT_BOOL* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder);

/// Copies row iSortVect(r) of iMat (1-based) to row r of oMat for r = 1 to n; a row number outside 1 to n
/// gives -1 in every cell.
void VB_SortApply(double* iMat, int n, int p, double* iSortVect, double* oMat);

/// Copies row iSortVect(r) of the string table iMat (1-based) to row r of oMat as new strings, for r = 1
/// to n; a row number outside 1 to n gives empty strings.
void VB_SortApplyStr(BSTR* iMat, int n, int p, double* iSortVect, BSTR* oMat);

/// Writes indicator columns of the categories into oMat (n x pMaxCat). ConstraintType 0 keeps all, 1
/// drops the first, 2 the last, 3 sums to zero; LeaveFirstCol keeps the first. FreqCat is not used.
void VB_BuildDisjunctiveTable(
    BSTR* iMat, int n, int p, int NbCatTotal, int* NbCat, BSTR* Cat, double* FreqCat, int pMaxCat,
    double* oMat, int ConstraintType, int LeaveFirstCol);

/// Puts two vectors side by side into oMat (2 columns, as many rows as the longer vector); the shorter is
/// padded with 0.0, missing-value markers are kept.
void VB_HMergeVectors(double* iVect1, int NbRowVect1, double* iVect2, int NbRowVect2, double* oMat);

/// Puts a table and, to its right, a vector into oMat (NbColMat2 + 1 columns); the shorter is padded with
/// 0.0, missing-value markers are kept.
void VB_HMergeTableVect(
    double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect, double* oMat);

/// Adds a vector as the last column of iMat2, in place; the array must have room for the merged table.
/// The shorter is padded with 0.0, missing-value markers are kept.
void VB_HMergeTableVect2(double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect);

/// Puts a vector and, to its right, a table into oMat (NbColMat2 + 1 columns); the shorter is padded with
/// 0.0, missing-value markers are kept.
void VB_HMergeVectTable(
    double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat);

/// Puts a vector and column iCol (1-based) of iMat2 side by side into oMat (2 columns); the shorter is
/// padded with 0.0, missing-value markers are kept.
void VB_HMergeVectColDbl(double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int iCol, double* oMat);

/// Writes iVector1 followed by iVector2 into oVector (p1 + p2 cells); missing-value markers are kept.
void VB_VMergeVectorsDbl(double* iVector1, int p1, double* iVector2, int p2, double* oVector);

/// Appends iVector2 to iVector1, in place; the array must have room for p1 + p2 cells. Missing-value
/// markers are kept.
void VB_VMergeVectorsDbl2(double* iVector1, int p1, double* iVector2, int p2);

/// Writes iVector1 followed by iVector2 into oVector (p1 + p2 cells) as new strings; previous strings of
/// oVector are not freed.
void VB_VMergeVectorsStr(BSTR* iVector1, int p1, BSTR* iVector2, int p2, BSTR* oVector);

/// Appends iVector2 to iVector1, in place, as new strings; the array must have room for p1 + p2 cells.
void VB_VMergeVectorsStr2(BSTR* iVector1, int p1, BSTR* iVector2, int p2);

/// Puts two tables side by side into oMat (NbColMat1 + NbColMat2 columns); the shorter is padded with
/// 0.0, missing-value markers are kept.
void VB_HMergeTablesDbl(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat);

/// Puts iMat2 to the right of iMat1, in place; iMat1 must have room for the merged table. The shorter is
/// padded with 0.0, missing-value markers are kept.
void VB_HMergeTablesDbl2(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2);

/// Puts two flag tables side by side into oMat (NbColMat1 + NbColMat2 columns); the shorter is padded
/// with 0.
void VB_HMergeTablesBool(
    VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2, int NbRowMat2, int NbColMat2,
    VARIANT_BOOL* oMat);

/// Puts flag table iMat2 to the right of iMat1, in place; iMat1 must have room for the merged table. The
/// shorter is padded with 0.
void VB_HMergeTablesBool2(
    VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2, int NbRowMat2, int NbColMat2);

/// Puts two string tables side by side into oMat (NbColMat1 + NbColMat2 columns) as new strings; the
/// shorter is padded with empty strings.
void VB_HMergeTablesStr(
    BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2, int NbColMat2, BSTR* oMat);

/// Puts string table iMat2 to the right of iMat1, in place, as new strings; iMat1 must have room for the
/// merged table. The shorter is padded with empty strings.
void VB_HMergeTablesStr2(
    BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2, int NbColMat2);

/// Puts iMat2 below iMat1 into oMat (NbRowMat1 + NbRowMat2 rows); the narrower is padded with 0.0,
/// missing-value markers are kept.
void VB_VMergeTablesDbl(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat);

/// Copies column col of iMat (n rows) into column ColID of ioMat, both 1-based; the other cells are kept.
/// iRedimMat has no effect.
void VB_CopyMatrixColToMatrixCol(
    double* iMat, int n, int col, double* ioMat, int ColID, VARIANT_BOOL iRedimMat);

/// Copies column ColID (1-based) of iMat into oVector (n cells); missing-value markers are kept.
void VB_CopyMatrixColToVector(double* iMat, int n, int ColID, double* oVector);

/// Copies row Line of iMat (n x p) into row RowID of ioMat (n2 rows), both 1-based; the other cells are
/// kept. iRedimMat has no effect.
void VB_CopyMatrixRowToMatrixRow(
    double* iMat, int n, int p, int Line, double* ioMat, int n2, int RowID, VARIANT_BOOL iRedimMat);

/// Copies column iCol (1-based) of the string table into oVectMat (n cells) as new strings; previous
/// strings of oVectMat are not freed.
void VB_CopyMatrixColToOneColMatStr(BSTR* iMat, int n, int iCol, BSTR* oVectMat);

/// Fills iVector (n cells) with 1.0 from iStart to iEnd (1-based, inclusive) and 0.0 elsewhere.
void VB_GenerateIndicator(double* iVector, int n, int iStart, int iEnd);

/// Fills iVector with n1 ones at random positions among n cells, zeros elsewhere. ioSeed receives the
/// seed used unless iSeedInit is -1; oSeed receives a seed for the next call.
void VB_GenerateRandomIndicator(
    double* iVector, int n, int n1, int* ioSeed, VARIANT_BOOL iSeedInit, int* oSeed);

/// Appends the flags iVect2 to ioVect1, in place; the array must have room for n1 + n2 cells.
void VB_VMergeVectorsBool2(VARIANT_BOOL* ioVect1, int n1, VARIANT_BOOL* iVect2, int n2);

/// Sets AllMissing to -1 for the rows flagged in both AllMissingX and AllMissingQ (a null array is
/// ignored), to 0 elsewhere; NbAllMissing receives their number.
void VB_SummarizeAllMissing(
    int n, VARIANT_BOOL* AllMissingX, VARIANT_BOOL* AllMissingQ, int* NbAllMissing, VARIANT_BOOL* AllMissing);

/// Sets the n flags of oVector to 0; returns 0.
int VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n);

/// -1 if iValue is the missing-value marker -1.79769313486231E+308 or lower, else 0; NaN gives 0.
VARIANT_BOOL VB_IsMissingValueDbl(double iValue);

/// -1 if iValue is the empty string, else 0; a string of blanks is not missing.
VARIANT_BOOL VB_IsMissingValueStr(BSTR iValue);

/// Sets oMissing to -1 for the rows with a flag other than 0 in iMissing1, iMissing2 or iMissing3 (each
/// may be null), to 0 elsewhere; oNbMissing receives their number.
void VB_SummarizeMissing(
    int n, int* oNbMissing, VARIANT_BOOL* oMissing, VARIANT_BOOL* iMissing1, VARIANT_BOOL* iMissing2,
    VARIANT_BOOL* iMissing3);

/// Copies the rows of ioTable whose flag is 0, in order, to oTable, which receives n - NbMissing rows of
/// p columns.
void VB_RemoveRowsWithMissing(
    double* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing, double* oTable);

/// Copies the rows of the string table ioTable whose flag is 0, in order, to oTable as new strings: n -
/// NbMissing rows of p columns.
void VB_RemoveRowsWithMissingStr(
    BSTR* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing, BSTR* oTable);

/// Replaces, in place, the label of every row whose flag is not 0 by iPrefixe followed by the row number
/// (1-based).
void VB_ReplaceMissingObsLabels(BSTR* ioObsLabels, int n, VARIANT_BOOL* iMissingObs, BSTR iPrefixe);

/// Replaces missing cells of ioTable in place by the column's weighted mean; flagged rows are filled but
/// do not contribute to it. A column of missing cells only stays missing.
void VB_EstimateRowsWithMissingMean(double* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w);

/// Replaces empty cells of ioTable in place by the column's weighted mode; flagged rows are filled but do
/// not contribute to it. A column of empty cells only stays empty.
void VB_EstimateRowsWithMissingMode(BSTR* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w);

/// Fills each missing cell of the three tables in place from the nearest row, measured over all three,
/// that has the cell, flag 0 and a weight above 0; ties go to the first row.
void VB_EstimateRowsWithMissingNN(
    double* iTable1Dbl, int n, int p1, VARIANT_BOOL* iMissing, double* iTable2Dbl, int p2, BSTR* iTable3Str,
    int p3, double* w);

/// Replaces missing cells of ioTable (n rows) in place by the weighted column means of the learning table
/// iTable (nin rows); a column with no mean there stays missing.
void VB_EstimateRowsWithMissingMeanPred(
    double* iTable, int nin, double* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w);

/// Replaces empty cells of ioTable (n rows) in place by the weighted column modes of the learning table
/// iTable (nin rows); a column with no mode there stays empty.
void VB_EstimateRowsWithMissingModePred(
    BSTR* iTable, int nin, BSTR* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w);

/// Fills each missing cell of the three n-row tables in place from the nearest of the nin rows of the
/// learning tables (names beginning with ii) that has the cell, flag 0 and a weight above 0; ties go to
/// the first row.
void VB_EstimateRowsWithMissingNNPred(
    double* iiTable1Dbl, int nin, double* iTable1Dbl, int n, int p1, VARIANT_BOOL* iMissing,
    double* iiTable2Dbl, double* iTable2Dbl, int p2, BSTR* iiTable3Str, BSTR* iTable3Str, int p3, double* w);

/// Returns the weighted linear correlation of two vectors over the rows that have flag 0, no missing cell
/// and a weight other than 0.0; 0.0 if a vector is constant.
double VB_CorrelPearson(
    double* iVector1, double* iVector2, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne);

/// Returns 100 times the weighted mean of abs(1 - YPred / Y) from position binf (1-based) on; missing
/// cells and Y = 0 are left out, 0 if none is left. w may be null.
double VB_MAPE(double* Y, double* YPred, int n, double* w, int binf);

/// Returns the square root of sum((Y - PredY)^2) / DF over the nY rows of column p (1-based); rows with Y
/// missing are left out.
double VB_RMSE(double* Y, int nY, int p, double* PredY, int DF);

/// Writes L.VarCov.L' (n x n), where L is LCombines, into NewVarCov and its diagonal into NewVarVect;
/// LCombines holds n linear combinations of p variables.
void VB_ComputeNewVar(double* LCombines, int n, int p, double* VarCov, double* NewVarVect, double* NewVarCov);

/// Counts the eigenvalues kept (oNbEigen) and those selected (oDispEigen); Percent receives percentages.
/// Unless iDoFilter is -1, nothing is dropped, but a last eigenvalue below iFilter becomes 0.0 in place.
void VB_FilterEigen(
    double* iEigenValues, int p, VARIANT_BOOL iDoFilter, double iFilter, double iMinPerc, int iMaxFact,
    double iMaxVal, int* oNbEigen, int* oDispEigen, double* Percent);

/// Weighted least squares: slopes, then intercept, into oCoeffs, fitted values into oPredY; missing cells
/// count as 0.0, collinear columns get 0.0. Returns 0, or -1 if n, p or iPolyDegree is below 1.
int RunOLSBasic(
    int n, int p, double* X, double* Y, double* w, int iPolyDegree, VARIANT_BOOL iInteract2,
    VARIANT_BOOL iFixedIntercept, double iTolerance, double* oCoeffs, double* oPredY);

/// As RunOLSBasic, with standard errors in oStDevCoeffs in the order of oCoeffs: 0.0 for columns left
/// out, the missing-value marker without degrees of freedom. Returns 0, or -1 if n, p or iPolyDegree is
/// below 1.
int RunOLSBasic2(
    int n, int p, double* X, double* Y, double* w, int iPolyDegree, VARIANT_BOOL iInteract2,
    VARIANT_BOOL iFixedIntercept, double iTolerance, double* oCoeffs, double* oStDevCoeffs, double* oPredY);

/// Collinearity check: oNotToleratedVars is 0 usable, 50000 no variance, 60000 collinear. oTolerances
/// receives the tolerances and oVIF their reciprocals (missing-value marker for a tolerance of 0.0).
void VB_CheckTolerance(
    double* R, int p, int NbFactors, int* FactActive, int* FactType, int* FactSubParents, double Tolerance,
    VARIANT_BOOL FastRemoval, VARIANT_BOOL iCheckall, VARIANT_BOOL WithAnEq0, int* oNotToleratedVars,
    double* oTolerances, double* oVIF);

/// Writes the squared cosines of each row with the p axes, x^2 / row sum of squares, into oCosines (n x
/// p); rows of zeros are not written.
void ComputeCosines(double* iMat, int n, int p, double* oCosines);

/// Writes scores times iScale.eigenvalue^iExpo (n rows, then nSupp) into oNewScores and loadings divided
/// by it into oNewLoadings, over iNbEigen axes; a zero eigenvalue gives 0.0.
void VB_BiplotTransData(
    double* iScores, double* iScoresSupp, double* iLoadings, int n, int nSupp, int p, int iNbEigen,
    double* iEigenValues, double iScale, double iExpo, double* oNewScores, double* oNewLoadings);

/// One Newton step of ioParamVect, capped at Maxchange if Checkchange is -1. Returns 1 if converged, 0 if
/// not yet, -1 if iDeriv2 cannot be inverted; standard errors of excluded parameters are not written.
int NewtonRaphson(
    double* ioParamVect, int p, int* iConstraints, double* iDeriv1, double* iDeriv2, double iConvergence,
    double* oStdErrVect, double* InvDeriv2, VARIANT_BOOL Checkchange, double Maxchange);

/// Writes the inverse of the p x p matrix over the variables whose iConstraints is 0, zeros elsewhere,
/// into oInvDeriv. Returns 0, or -1 if it is singular; a single variable with 0.0 gives 1E12.
int CleanConstraintsAndInvert(int p, int* iConstraints, double* iDeriv, double* oInvDeriv);

/// Writes the inverse of the triangular p x p matrix over the variables whose iConstraints is 0, zeros
/// elsewhere, into oInvDeriv. Returns 0, or -1 if a diagonal cell is below 1E-12 in magnitude.
int CleanConstraintsAndInvertTriang(
    int p, int* iConstraints, double* iDeriv, VARIANT_BOOL iIsLower, double* oInvDeriv);

/// Returns 100 times the weighted mean of (Y - YPred) / Y from position binf (1-based) on; missing-value
/// markers and Y = 0 are left out, the marker if none is left.
double VB_MPE(double* Y, double* YPred, int n, double* w, int binf);

/// Returns the weighted mean of abs(Y - YPred) from position binf (1-based) on; missing-value markers are
/// left out, the marker if none is left.
double VB_MAE(double* Y, double* YPred, int n, double* w, int binf);

}  // namespace kav::entries
