// What the DLL exports to macros: each body behind its calling convention and its guard.
// Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.

#include "bridge/generated/entries.h"
#include "bridge/guard.h"
#include "platform/calling.h"

using namespace kav;

extern "C" {

KAV_ENTRY double KAV_CALL VB_V_Sum(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_Sum(iVector, n, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_V_MinMax(
    double* iVector, int n, double* VMin, double* VMax, VARIANT_BOOL* iMissing) noexcept {
  return guarded<void>([&] { return entries::VB_V_MinMax(iVector, n, VMin, VMax, iMissing); });
}

KAV_ENTRY double KAV_CALL VB_V_Min(double* iVector, int n, VARIANT_BOOL* iMissing) noexcept {
  return guarded<double>([&] { return entries::VB_V_Min(iVector, n, iMissing); });
}

KAV_ENTRY double KAV_CALL VB_V_Max(double* iVector, int n, VARIANT_BOOL* iMissing) noexcept {
  return guarded<double>([&] { return entries::VB_V_Max(iVector, n, iMissing); });
}

KAV_ENTRY int KAV_CALL VB_V_MaxInt(int* iVector, int n, VARIANT_BOOL* iMissing) noexcept {
  return guarded<int>([&] { return entries::VB_V_MaxInt(iVector, n, iMissing); });
}

KAV_ENTRY void KAV_CALL VB_V_PlusVal(double* iVector, int n, double ival, VARIANT_BOOL* iMissing) noexcept {
  return guarded<void>([&] { return entries::VB_V_PlusVal(iVector, n, ival, iMissing); });
}

KAV_ENTRY double KAV_CALL VB_V_ProductTrV1V2(double* iV1, int n, double* iV2) noexcept {
  return guarded<double>([&] { return entries::VB_V_ProductTrV1V2(iV1, n, iV2); });
}

KAV_ENTRY double KAV_CALL VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_Mean(iVector, n, iMissing, w); });
}

KAV_ENTRY double KAV_CALL VB_V_MeanAbs(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_MeanAbs(iVector, n, iMissing, w); });
}

KAV_ENTRY double KAV_CALL VB_V_Freq(
    double* iVector, int n, double* w, double iValue, double iEpsilon) noexcept {
  return guarded<double>([&] { return entries::VB_V_Freq(iVector, n, w, iValue, iEpsilon); });
}

KAV_ENTRY int KAV_CALL VB_V_FreqLng(int* iVector, int n, double* w, int iValue) noexcept {
  return guarded<int>([&] { return entries::VB_V_FreqLng(iVector, n, w, iValue); });
}

KAV_ENTRY double KAV_CALL VB_V_FreqStr(BSTR* iVector, int n, double* w, BSTR iValue) noexcept {
  return guarded<double>([&] { return entries::VB_V_FreqStr(iVector, n, w, iValue); });
}

KAV_ENTRY double KAV_CALL VB_V_Var(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<double>([&] { return entries::VB_V_Var(iVector, n, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY double KAV_CALL VB_V_Stdev(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<double>([&] { return entries::VB_V_Stdev(iVector, n, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY void KAV_CALL VB_V_MeanVar(
    double* iVector, int n, double* Mean, double* Var, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_V_MeanVar(iVector, n, Mean, Var, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY void KAV_CALL VB_V_MeanStdev(
    double* iVector, int n, double* Mean, double* StDev, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_V_MeanStdev(iVector, n, Mean, StDev, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY BSTR KAV_CALL VB_V_Mode(BSTR* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<BSTR>([&] { return entries::VB_V_Mode(iVector, n, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_V_GetMissingStr(
    BSTR* iVectMat, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetMissingStr(iVectMat, n, iMissing, oMissing); });
}

KAV_ENTRY double KAV_CALL VB_V_HarmonicMean(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_HarmonicMean(iVector, n, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_V_GetMissingDbl(
    double* iVector, int n, VARIANT_BOOL* iMissing, VARIANT_BOOL* oMissing) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetMissingDbl(iVector, n, iMissing, oMissing); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsPositive(double* iV, int n, VARIANT_BOOL iStrictly) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsPositive(iV, n, iStrictly); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsWeights(double* iW, int nW) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsWeights(iW, nW); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsCWeights(double* iW, int nW) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsCWeights(iW, nW); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsIndicator(double* iV, int nV) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsIndicator(iV, nV); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_Is01(double* iV, int nV) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_Is01(iV, nV); });
}

KAV_ENTRY int KAV_CALL VB_V_NbMissing(double* iVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbMissing(iVector, n); });
}

KAV_ENTRY int KAV_CALL VB_V_NbMissingStr(BSTR* iVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbMissingStr(iVector, n); });
}

KAV_ENTRY int KAV_CALL VB_V_NbNonMissing(double* iVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbNonMissing(iVector, n); });
}

KAV_ENTRY double KAV_CALL VB_V_Sum2Dbl(double* iVector, int n) noexcept {
  return guarded<double>([&] { return entries::VB_V_Sum2Dbl(iVector, n); });
}

KAV_ENTRY int KAV_CALL VB_V_Sum2Lng(int* iVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_Sum2Lng(iVector, n); });
}

KAV_ENTRY double KAV_CALL VB_V_Quantile(double* X, int n, double Prob) noexcept {
  return guarded<double>([&] { return entries::VB_V_Quantile(X, n, Prob); });
}

KAV_ENTRY double KAV_CALL VB_V_QuantileW(double* X, int n, double* w, double Prob) noexcept {
  return guarded<double>([&] { return entries::VB_V_QuantileW(X, n, w, Prob); });
}

KAV_ENTRY double KAV_CALL VB_V_QuantileM(double* X, int n, VARIANT_BOOL* missing, double Prob) noexcept {
  return guarded<double>([&] { return entries::VB_V_QuantileM(X, n, missing, Prob); });
}

KAV_ENTRY double KAV_CALL VB_V_QuantileMW(
    double* X, int n, VARIANT_BOOL* missing, double* w, double Prob) noexcept {
  return guarded<double>([&] { return entries::VB_V_QuantileMW(X, n, missing, w, Prob); });
}

KAV_ENTRY void KAV_CALL VB_V_DuplicateDbl(double* iVect, int n, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_DuplicateDbl(iVect, n, oVect); });
}

KAV_ENTRY void KAV_CALL VB_V_DuplicateLng(int* iVect, int n, int* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_DuplicateLng(iVect, n, oVect); });
}

KAV_ENTRY void KAV_CALL VB_V_DuplicateStr(BSTR* iVect, int n, BSTR* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_DuplicateStr(iVect, n, oVect); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsConstant(double* iVect, int n) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsConstant(iVect, n); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsConstantBool(iVect, n); });
}

KAV_ENTRY void KAV_CALL VB_V_RemoveVal(double* iVect, int n, int ID, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_RemoveVal(iVect, n, ID, oVect); });
}

KAV_ENTRY int KAV_CALL VB_V_NbTrue(VARIANT_BOOL* iVect, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbTrue(iVect, n); });
}

KAV_ENTRY double KAV_CALL VB_V_SumFromTo(double* iVect, int n, int iFrom, int iTo) noexcept {
  return guarded<double>([&] { return entries::VB_V_SumFromTo(iVect, n, iFrom, iTo); });
}

KAV_ENTRY int KAV_CALL VB_V_SumFromToLng(int* iVect, int n, int iFrom, int iTo) noexcept {
  return guarded<int>([&] { return entries::VB_V_SumFromToLng(iVect, n, iFrom, iTo); });
}

KAV_ENTRY void KAV_CALL VB_V_MeanVarSkewPKurtP(
    double* iVector, int n, double* Mean, double* Var, double* SkewP, double* KurtP, double* SkewF,
    double* KurtF, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_V_MeanVarSkewPKurtP(iVector, n, Mean, Var, SkewP, KurtP, SkewF, KurtF, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY double KAV_CALL VB_V_MedianAbsDev(
    double* iVector, int n, double iMedian, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_MedianAbsDev(iVector, n, iMedian, iMissing, w); });
}

KAV_ENTRY double KAV_CALL VB_V_MeanAbsDev(
    double* iVector, int n, double iMean, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_MeanAbsDev(iVector, n, iMean, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_V_GMeanGSD(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, double* oGMean, double* oGSD) noexcept {
  return guarded<void>([&] { return entries::VB_V_GMeanGSD(iVector, n, iMissing, w, oGMean, oGSD); });
}

KAV_ENTRY void KAV_CALL VB_V_Standardize(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, double* oVector) noexcept {
  return guarded<void>([&] { return entries::VB_V_Standardize(iVector, n, iMissing, w, Unbiased, oVector); });
}

KAV_ENTRY void KAV_CALL VB_V_Standardize2(
    double* iVector, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_V_Standardize2(iVector, n, iMissing, w, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_V_Rescale(
    double* iVector, int n, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing, double* oVector) noexcept {
  return guarded<void>([&] { return entries::VB_V_Rescale(iVector, n, iLowerBound, iUpperBound, iMissing, oVector); });
}

KAV_ENTRY void KAV_CALL VB_V_Rescale2(
    double* iVector, int n, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing) noexcept {
  return guarded<void>([&] { return entries::VB_V_Rescale2(iVector, n, iLowerBound, iUpperBound, iMissing); });
}

KAV_ENTRY void KAV_CALL VB_V_ProductHorizV1V2(
    double* iVect1, int p1, double* iVect2, int p2, double* oVect, int p) noexcept {
  return guarded<void>([&] { return entries::VB_V_ProductHorizV1V2(iVect1, p1, iVect2, p2, oVect, p); });
}

KAV_ENTRY void KAV_CALL VB_V_ProductHorizV1V22(double* ioVect1, int* iop1, double* iVect2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_V_ProductHorizV1V22(ioVect1, iop1, iVect2, p2); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_V1GreaterThanMatCols(double* w, int n, double* Y, int p) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_V1GreaterThanMatCols(w, n, Y, p); });
}

KAV_ENTRY double KAV_CALL VB_V_SumSq(double* iVect, int n) noexcept {
  return guarded<double>([&] { return entries::VB_V_SumSq(iVect, n); });
}

KAV_ENTRY double KAV_CALL VB_V_SumSqW(double* iVect, int n, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_SumSqW(iVect, n, w); });
}

KAV_ENTRY void KAV_CALL VB_V_Norm(double* iVect, int n) noexcept {
  return guarded<void>([&] { return entries::VB_V_Norm(iVect, n); });
}

KAV_ENTRY void KAV_CALL VB_V_NormToVal(double* iVect, int n, double ival) noexcept {
  return guarded<void>([&] { return entries::VB_V_NormToVal(iVect, n, ival); });
}

KAV_ENTRY void KAV_CALL VB_V_NormW(double* iVect, int n, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_V_NormW(iVect, n, w); });
}

KAV_ENTRY void KAV_CALL VB_V_NormToValW(double* iVect, int n, double ival, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_V_NormToValW(iVect, n, ival, w); });
}

KAV_ENTRY void KAV_CALL VB_V_Set1toNDbl(double* oVect, int n) noexcept {
  return guarded<void>([&] { return entries::VB_V_Set1toNDbl(oVect, n); });
}

KAV_ENTRY void KAV_CALL VB_V_Set1toNLng(int* oVect, int n) noexcept {
  return guarded<void>([&] { return entries::VB_V_Set1toNLng(oVect, n); });
}

KAV_ENTRY void KAV_CALL VB_V_GetRanksLng(double* iVect, int n, int* oRanks) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetRanksLng(iVect, n, oRanks); });
}

KAV_ENTRY void KAV_CALL VB_V_GetRanksDbl(double* iVect, int n, double* oRanks) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetRanksDbl(iVect, n, oRanks); });
}

KAV_ENTRY void KAV_CALL VB_V_GetPositionInMatNNm1o2(int iPos, int n, int* oX, int* oY) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetPositionInMatNNm1o2(iPos, n, oX, oY); });
}

KAV_ENTRY void KAV_CALL VB_V_GetPositionInMatNNp1o2(int iPos, int n, int* oX, int* oY) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetPositionInMatNNp1o2(iPos, n, oX, oY); });
}

KAV_ENTRY void KAV_CALL VB_V_GetPositionInMatNN(int iPos, int n, int* oX, int* oY) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetPositionInMatNN(iPos, n, oX, oY); });
}

KAV_ENTRY int KAV_CALL VB_V_SetToValue(double* oVector, int n, double iValue) noexcept {
  return guarded<int>([&] { return entries::VB_V_SetToValue(oVector, n, iValue); });
}

KAV_ENTRY int KAV_CALL VB_V_SetToValueLng(int* oVector, int n, int iValue) noexcept {
  return guarded<int>([&] { return entries::VB_V_SetToValueLng(oVector, n, iValue); });
}

KAV_ENTRY void KAV_CALL VB_V_ReplaceDoubles(BSTR* LabelX, int n) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReplaceDoubles(LabelX, n); });
}

KAV_ENTRY void KAV_CALL VB_V_ReplaceVal(
    double* iVect, int n, double iVal1, double iVal2, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReplaceVal(iVect, n, iVal1, iVal2, oVect); });
}

KAV_ENTRY void KAV_CALL VB_V_ReplaceVal2(double* iVect, int n, double iVal1, double iVal2) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReplaceVal2(iVect, n, iVal1, iVal2); });
}

KAV_ENTRY void KAV_CALL VB_V_GetRanksTiesDbl(
    double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal, double* oNbTies) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetRanksTiesDbl(iVect1, n, w, oRanks, oNbTiedVal, oNbTies); });
}

KAV_ENTRY void KAV_CALL VB_V_GetRanksTiesIntDbl(
    double* iVect1, int n, double* w, double* oRanks, int* oNbTiedVal, double* oNbTies) noexcept {
  return guarded<void>([&] { return entries::VB_V_GetRanksTiesIntDbl(iVect1, n, w, oRanks, oNbTiedVal, oNbTies); });
}

KAV_ENTRY int KAV_CALL VB_V_NbTrueFromTo(VARIANT_BOOL* iVect, int n, int nStart, int nEnd) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbTrueFromTo(iVect, n, nStart, nEnd); });
}

KAV_ENTRY double KAV_CALL VB_V_MaxAndMaxPos(double* iVect, int n, int* oMaxPos) noexcept {
  return guarded<double>([&] { return entries::VB_V_MaxAndMaxPos(iVect, n, oMaxPos); });
}

KAV_ENTRY double KAV_CALL VB_V_MinAndMinPos(double* iVect, int n, int* oMinPos) noexcept {
  return guarded<double>([&] { return entries::VB_V_MinAndMinPos(iVect, n, oMinPos); });
}

KAV_ENTRY double KAV_CALL VB_V_DiffSq(double* iVect1, int n, double* iVect2) noexcept {
  return guarded<double>([&] { return entries::VB_V_DiffSq(iVect1, n, iVect2); });
}

KAV_ENTRY void KAV_CALL VB_V_ProductV1V22(double* ioVect1, int n, double* iVect2) noexcept {
  return guarded<void>([&] { return entries::VB_V_ProductV1V22(ioVect1, n, iVect2); });
}

KAV_ENTRY void KAV_CALL VB_V_ProductV1V2(double* iVect1, int n, double* iVect2, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_ProductV1V2(iVect1, n, iVect2, oVect); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_V1inferiorV2(double* iVect1, int n, double* iVect2) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_V1inferiorV2(iVect1, n, iVect2); });
}

KAV_ENTRY void KAV_CALL VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival) noexcept {
  return guarded<void>([&] { return entries::VB_V_SetToValueStr(oVect, n, ival); });
}

KAV_ENTRY int KAV_CALL VB_V_NbDistinct(double* iVect, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_NbDistinct(iVect, n); });
}

KAV_ENTRY void KAV_CALL VB_V_ExtractDistinct(double* iVect, int n, double* oVect, int* k) noexcept {
  return guarded<void>([&] { return entries::VB_V_ExtractDistinct(iVect, n, oVect, k); });
}

KAV_ENTRY double KAV_CALL VB_V_TimeIntervalSize(double* iVect, int n, VARIANT_BOOL iDoSort) noexcept {
  return guarded<double>([&] { return entries::VB_V_TimeIntervalSize(iVect, n, iDoSort); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsSorted(double* iVect, int n, VARIANT_BOOL iStrictly) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsSorted(iVect, n, iStrictly); });
}

KAV_ENTRY void KAV_CALL VB_V_ProductV1TrV2(double* iVect1, int n, double* iVect2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_V_ProductV1TrV2(iVect1, n, iVect2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_V_ReverseDbl(double* iVect, int n, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReverseDbl(iVect, n, oVect); });
}

KAV_ENTRY void KAV_CALL VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReverseBool(iVect, n, oVect); });
}

KAV_ENTRY int KAV_CALL VB_V_Gauss(double* ioMat, int n, double* ioVect) noexcept {
  return guarded<int>([&] { return entries::VB_V_Gauss(ioMat, n, ioVect); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsInInterval(
    double* iVect, int n, double iLower, double iUpper, VARIANT_BOOL iStrictly, VARIANT_BOOL iIgnoreMissing) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsInInterval(iVect, n, iLower, iUpper, iStrictly, iIgnoreMissing); });
}

KAV_ENTRY double KAV_CALL VB_V_NbIf(double* iVect, int n, double ival) noexcept {
  return guarded<double>([&] { return entries::VB_V_NbIf(iVect, n, ival); });
}

KAV_ENTRY double KAV_CALL VB_V_SumIf(double* iVect, int n, double* iVect2, double ival) noexcept {
  return guarded<double>([&] { return entries::VB_V_SumIf(iVect, n, iVect2, ival); });
}

KAV_ENTRY double KAV_CALL VB_V_MeanIf(double* iVect, int n, double* iVect2, double ival) noexcept {
  return guarded<double>([&] { return entries::VB_V_MeanIf(iVect, n, iVect2, ival); });
}

KAV_ENTRY double KAV_CALL VB_V_VarIf(
    double* iVect, int n, double* iVect2, double ival, VARIANT_BOOL iBiased) noexcept {
  return guarded<double>([&] { return entries::VB_V_VarIf(iVect, n, iVect2, ival, iBiased); });
}

KAV_ENTRY int KAV_CALL VB_M_Sweep(double* t, int n, int k) noexcept {
  return guarded<int>([&] { return entries::VB_M_Sweep(t, n, k); });
}

KAV_ENTRY int KAV_CALL VB_M_Transpose(double* iAMat, int n, int p, double* oTransMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_Transpose(iAMat, n, p, oTransMat); });
}

KAV_ENTRY int KAV_CALL VB_M_Transpose2(double* iAMat, int n, int p) noexcept {
  return guarded<int>([&] { return entries::VB_M_Transpose2(iAMat, n, p); });
}

KAV_ENTRY int KAV_CALL VB_M_Inverse1(double* iAMat, int n, double* oInvMat, double Eps) noexcept {
  return guarded<int>([&] { return entries::VB_M_Inverse1(iAMat, n, oInvMat, Eps); });
}

KAV_ENTRY int KAV_CALL VB_M_StandardizeKnownMeansStDev(
    double* iMat, int n, int p, double* Mean, double* oMat, double* StDev, double* Var,
    VARIANT_BOOL* iMissing) noexcept {
  return guarded<int>([&] { return entries::VB_M_StandardizeKnownMeansStDev(iMat, n, p, Mean, oMat, StDev, Var, iMissing); });
}

KAV_ENTRY int KAV_CALL VB_M_ProductAB(
    double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_ProductAB(iAMat, n, p, iBMat, m, oCMat); });
}

KAV_ENTRY int KAV_CALL VB_M_ProductABMissing(
    double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_ProductABMissing(iAMat, n, p, iBMat, m, oCMat); });
}

KAV_ENTRY int KAV_CALL VB_M_ProductBV(double* iBMat, int n, int p, double* iAVec, double* oCVec) noexcept {
  return guarded<int>([&] { return entries::VB_M_ProductBV(iBMat, n, p, iAVec, oCVec); });
}

KAV_ENTRY int KAV_CALL VB_M_Eigen(
    double* iMat, double* oEigenVal, double* oEigenVect, int n, VARIANT_BOOL iSort) noexcept {
  return guarded<int>([&] { return entries::VB_M_Eigen(iMat, oEigenVal, oEigenVect, n, iSort); });
}

KAV_ENTRY int KAV_CALL VB_M_MeanStDev(
    double* iMat, int n, int p, double* Mean, double* StDev, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne, VARIANT_BOOL MissingPerCol) noexcept {
  return guarded<int>([&] { return entries::VB_M_MeanStDev(iMat, n, p, Mean, StDev, iMissing, w, Unbiased, BiasIsOne, MissingPerCol); });
}

KAV_ENTRY int KAV_CALL VB_M_Mean(
    double* iMat, int n, int p, double* Mean, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<int>([&] { return entries::VB_M_Mean(iMat, n, p, Mean, iMissing, w); });
}

KAV_ENTRY int KAV_CALL VB_M_MeanStDevVar(
    double* iMat, int n, int p, double* Mean, double* StDev, double* Var, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<int>([&] { return entries::VB_M_MeanStDevVar(iMat, n, p, Mean, StDev, Var, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY int KAV_CALL VB_M_CovCorrAndMeanStDevVar(
    double* iMat, int n, int p, double* CovCorr, double* Mean, double* StDev, double* Var,
    VARIANT_BOOL Correlations, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne, VARIANT_BOOL ZeroMeaniMat, VARIANT_BOOL StandardizeiMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_CovCorrAndMeanStDevVar(iMat, n, p, CovCorr, Mean, StDev, Var, Correlations, iMissing, w, Unbiased, BiasIsOne, ZeroMeaniMat, StandardizeiMat); });
}

KAV_ENTRY void KAV_CALL VB_M_CorrMatMat(
    double* iMat1, int n, int p1, double* iMat2, int p2, double* CovCorr, VARIANT_BOOL* iMissing, double* w,
    VARIANT_BOOL Correlations, VARIANT_BOOL Determination, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_M_CorrMatMat(iMat1, n, p1, iMat2, p2, CovCorr, iMissing, w, Correlations, Determination, Unbiased, BiasIsOne); });
}

KAV_ENTRY void KAV_CALL VB_M_Normalize(
    double* iMat, int n, int p, double* Norm, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_M_Normalize(iMat, n, p, Norm, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY int KAV_CALL VB_M_CovCorr(
    double* iMat, int n, int p, double* CovCorr, VARIANT_BOOL Correlations, VARIANT_BOOL* iMissing,
    double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<int>([&] { return entries::VB_M_CovCorr(iMat, n, p, CovCorr, Correlations, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY void KAV_CALL VB_M_NormalizeMatrix(
    double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3, int n3) noexcept {
  return guarded<void>([&] { return entries::VB_M_NormalizeMatrix(ioM1, n1, p, ioM2, n2, ioM3, n3); });
}

KAV_ENTRY void KAV_CALL VB_M_Standardize(
    double* iMat, int n, int p, double* oMat, double* Mean, double* StDev, double* Var,
    VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_M_Standardize(iMat, n, p, oMat, Mean, StDev, Var, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY void KAV_CALL VB_M_StandardizeMatrix(
    double* ioM1, int n1, int p, double* ioM2, int n2, double* ioM3, int n3) noexcept {
  return guarded<void>([&] { return entries::VB_M_StandardizeMatrix(ioM1, n1, p, ioM2, n2, ioM3, n3); });
}

KAV_ENTRY void KAV_CALL VB_M_InfoQuali(
    BSTR* iMat, int n, int p, BSTR* Mode, double* FreqMode, int* NbCatTotal, int* NbCat, BSTR* Cat,
    double* FreqCat, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL DoSort) noexcept {
  return guarded<void>([&] { return entries::VB_M_InfoQuali(iMat, n, p, Mode, FreqMode, NbCatTotal, NbCat, Cat, FreqCat, iMissing, w, DoSort); });
}

KAV_ENTRY void KAV_CALL VB_M_InfoQualiValid(
    BSTR* iMat, int n, int p, int nCat, int NbCatTotal, int* NbCat, BSTR* Cat, double* FreqCatValid,
    VARIANT_BOOL* Problem, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_M_InfoQualiValid(iMat, n, p, nCat, NbCatTotal, NbCat, Cat, FreqCatValid, Problem, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_M_MeanStDevVarOneInMat(
    double* iMat, int n, int IDCol, double* Mean, double* StDev, double* Var, VARIANT_BOOL* iMissing,
    double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<void>([&] { return entries::VB_M_MeanStDevVarOneInMat(iMat, n, IDCol, Mean, StDev, Var, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsLong(double* iMat, int n, int p) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsLong(iMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_M_ReplaceMissingByVal(double* iMat, int n, int p, double ival) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReplaceMissingByVal(iMat, n, p, ival); });
}

KAV_ENTRY void KAV_CALL VB_M_ReplaceMissingByStr(BSTR* iMat, int n, int p, BSTR ival) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReplaceMissingByStr(iMat, n, p, ival); });
}

KAV_ENTRY void KAV_CALL VB_M_RemoveCol(double* iMat, int n, int p, int iCol, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_RemoveCol(iMat, n, p, iCol, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_RemoveRow(double* iMat, int n, int p, int iRow, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_RemoveRow(iMat, n, p, iRow, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_MoveRow(double* iMat, int n, int p, int iRow, int iNewPos) noexcept {
  return guarded<void>([&] { return entries::VB_M_MoveRow(iMat, n, p, iRow, iNewPos); });
}

KAV_ENTRY void KAV_CALL VB_M_MinMax(
    double* iMat, int n, int p, double* VMin, double* VMax, VARIANT_BOOL* iMissing,
    VARIANT_BOOL MissingPerCol) noexcept {
  return guarded<void>([&] { return entries::VB_M_MinMax(iMat, n, p, VMin, VMax, iMissing, MissingPerCol); });
}

KAV_ENTRY void KAV_CALL VB_M_AllMissingRows(
    double* iMat, int n, int p, VARIANT_BOOL* missing, VARIANT_BOOL* AllMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_AllMissingRows(iMat, n, p, missing, AllMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_AllMissingRowsStr(
    BSTR* iMat, int n, int p, VARIANT_BOOL* missing, VARIANT_BOOL* AllMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_AllMissingRowsStr(iMat, n, p, missing, AllMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_NbMissing(double* iMat, int n, int p, int* NbMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_NbMissing(iMat, n, p, NbMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_NbMissingStr(BSTR* iMat, int n, int p, int* NbMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_NbMissingStr(iMat, n, p, NbMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_NbNonMissing(double* iMat, int n, int p, int* NbNonMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_NbNonMissing(iMat, n, p, NbNonMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_Sums1As2B(
    double* iAMat, int n, int p, double* iBMat, double s1, double S2, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_Sums1As2B(iAMat, n, p, iBMat, s1, S2, oCMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductVB(double* iAVec, int n, double* iBMat, int p, double* oCVec) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductVB(iAVec, n, iBMat, p, oCVec); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrAB(
    double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrAB(iAMat, n, p, iBMat, m, oCMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductATrB(
    double* iAMat, int n, int p, double* iBMat, int m, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductATrB(iAMat, n, p, iBMat, m, oCMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrAA(double* iAMat, int n, int p, double* oTrAAMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrAA(iAMat, n, p, oTrAAMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductATrA(double* iAMat, int n, int p, double* oATrAMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductATrA(iAMat, n, p, oATrAMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductADTrA(
    double* iAMat, int n, int p, double* iDiagMat, double* oADTrA) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductADTrA(iAMat, n, p, iDiagMat, oADTrA); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrADA(
    double* iAMat, int n, int p, double* iDiagMat, double* oTrADA) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrADA(iAMat, n, p, iDiagMat, oTrADA); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductADiag(
    double* iAMat, int n, int p, double* iDiagMat, double* oADiagMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductADiag(iAMat, n, p, iDiagMat, oADiagMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrADiag(
    double* iAMat, int n, int p, double* iDiagMat, double* oTrADiagMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrADiag(iAMat, n, p, iDiagMat, oTrADiagMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductABTrA(
    double* iAMat, int n, int p, double* iBMat, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductABTrA(iAMat, n, p, iBMat, oCMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrABA(
    double* iAMat, int n, int p, double* iBMat, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrABA(iAMat, n, p, iBMat, oCMat); });
}

KAV_ENTRY double KAV_CALL VB_M_ProductTrVBV(double* iVect, int n, double* iBMat) noexcept {
  return guarded<double>([&] { return entries::VB_M_ProductTrVBV(iVect, n, iBMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrAinvBA(
    double* iAMat, int n, int p, double* iBMat, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrAinvBA(iAMat, n, p, iBMat, oCMat); });
}

KAV_ENTRY double KAV_CALL VB_M_ProductTrVinvBV(double* iVect, int n, double* iBMat) noexcept {
  return guarded<double>([&] { return entries::VB_M_ProductTrVinvBV(iVect, n, iBMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductAinvBTrA(
    double* iAMat, int n, int p, double* iBMat, double* oCMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductAinvBTrA(iAMat, n, p, iBMat, oCMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ScalarsA(double* iAMat, int n, int p, double s, double* osAMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ScalarsA(iAMat, n, p, s, osAMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ScalarsA2(double* iAMat, int n, int p, double s) noexcept {
  return guarded<void>([&] { return entries::VB_M_ScalarsA2(iAMat, n, p, s); });
}

KAV_ENTRY void KAV_CALL VB_M_ScalarsTrA(double* iAMat, int n, int p, double s, double* osTrAMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ScalarsTrA(iAMat, n, p, s, osTrAMat); });
}

KAV_ENTRY void KAV_CALL VB_M_APlusVal(double* iAMat, int n, int p, double ival, double* oAPlusVal) noexcept {
  return guarded<void>([&] { return entries::VB_M_APlusVal(iAMat, n, p, ival, oAPlusVal); });
}

KAV_ENTRY void KAV_CALL VB_M_Square(double* ioMat, int n, int p) noexcept {
  return guarded<void>([&] { return entries::VB_M_Square(ioMat, n, p); });
}

KAV_ENTRY double KAV_CALL VB_M_Trace(double* iAMat, int n) noexcept {
  return guarded<double>([&] { return entries::VB_M_Trace(iAMat, n); });
}

KAV_ENTRY double KAV_CALL VB_M_DeterminantTriang(double* iAMat, int n, VARIANT_BOOL* Problem) noexcept {
  return guarded<double>([&] { return entries::VB_M_DeterminantTriang(iAMat, n, Problem); });
}

KAV_ENTRY double KAV_CALL VB_M_Determinant(double* iAMat, int n, VARIANT_BOOL* Problem) noexcept {
  return guarded<double>([&] { return entries::VB_M_Determinant(iAMat, n, Problem); });
}

KAV_ENTRY void KAV_CALL VB_M_LUDecomp(
    double* iAMat, int n, int* indx, double* d, VARIANT_BOOL* Problem) noexcept {
  return guarded<void>([&] { return entries::VB_M_LUDecomp(iAMat, n, indx, d, Problem); });
}

KAV_ENTRY int KAV_CALL VB_M_CholDecomp(double* iAMat, int n, double* oMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_CholDecomp(iAMat, n, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_EuclidDist2(
    double* iAMat, int n, int p, double* oDistMat, double* w, VARIANT_BOOL iByRows) noexcept {
  return guarded<void>([&] { return entries::VB_M_EuclidDist2(iAMat, n, p, oDistMat, w, iByRows); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsPositive(
    double* iAMat, int n, int p, VARIANT_BOOL* iMissing, VARIANT_BOOL iStrictly) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsPositive(iAMat, n, p, iMissing, iStrictly); });
}

KAV_ENTRY void KAV_CALL VB_M_LogMatrix(double* iAMat, int n, int p, VARIANT_BOOL* iMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_LogMatrix(iAMat, n, p, iMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_SumByCols(double* iMat, int n, int p, double* oSums) noexcept {
  return guarded<void>([&] { return entries::VB_M_SumByCols(iMat, n, p, oSums); });
}

KAV_ENTRY void KAV_CALL VB_M_SumByRows(double* iMat, int n, int p, double* oSums) noexcept {
  return guarded<void>([&] { return entries::VB_M_SumByRows(iMat, n, p, oSums); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsDisjTable(
    double* iMat, int n, int p, VARIANT_BOOL* missing, int* oNbVar) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsDisjTable(iMat, n, p, missing, oNbVar); });
}

KAV_ENTRY void KAV_CALL VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateDbl(iAMat, n, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateStr(iAMat, n, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_CopyResize(double* iMat, int n, int p, double* oMat, int n2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_M_CopyResize(iMat, n, p, oMat, n2, p2); });
}

KAV_ENTRY void KAV_CALL VB_M_ExtractMatToMatDbl(
    double* iMat, int n, int p, int nStart, int nEnd, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ExtractMatToMatDbl(iMat, n, p, nStart, nEnd, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ExtractMatToMatStr(
    BSTR* iMat, int n, int p, int nStart, int nEnd, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ExtractMatToMatStr(iMat, n, p, nStart, nEnd, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_CopyResizeStr(BSTR* iMat, int n, int p, BSTR* oMat, int n2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_M_CopyResizeStr(iMat, n, p, oMat, n2, p2); });
}

KAV_ENTRY int KAV_CALL VB_M_IsColConstant(double* iAMat, int n, int p) noexcept {
  return guarded<int>([&] { return entries::VB_M_IsColConstant(iAMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_M_StandardizeByVect(
    double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_StandardizeByVect(iMat, n, p, iMissing, w, Unbiased, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_StandardizeByVect2(
    double* iMat, int n, int p, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_StandardizeByVect2(iMat, n, p, iMissing, w, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_RescaleByVect(
    double* iMat, int n, int p, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_RescaleByVect(iMat, n, p, iLowerBound, iUpperBound, iMissing, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_RescaleByVect2(
    double* iMat, int n, int p, double iLowerBound, double iUpperBound, VARIANT_BOOL* iMissing) noexcept {
  return guarded<void>([&] { return entries::VB_M_RescaleByVect2(iMat, n, p, iLowerBound, iUpperBound, iMissing); });
}

KAV_ENTRY void KAV_CALL VB_M_ReplaceCatByCodes(
    BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReplaceCatByCodes(iMat, n, p, NbCat, Cat, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductHorizAB(
    double* iMat1, int n, int p1, double* iMat2, int p2, double* oMat, int p) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductHorizAB(iMat1, n, p1, iMat2, p2, oMat, p); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductHorizAB2(
    double* ioMat1, int n, int* iop1, double* iMat2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductHorizAB2(ioMat1, n, iop1, iMat2, p2); });
}

KAV_ENTRY void KAV_CALL VB_M_ReplaceStrByCodes(
    BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, VARIANT_BOOL* iMissing, int iCodeStart, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReplaceStrByCodes(iMat, n, p, NbCat, Cat, iMissing, iCodeStart, oMat); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsSymmetric(double* t, int n) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsSymmetric(t, n); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsDiagConstant(double* t, int n) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsDiagConstant(t, n); });
}

KAV_ENTRY void KAV_CALL VB_M_Symmetrize(double* t, int n, int iType) noexcept {
  return guarded<void>([&] { return entries::VB_M_Symmetrize(t, n, iType); });
}

KAV_ENTRY int KAV_CALL VB_M_IsTriangular(double* t, int n, VARIANT_BOOL iUpdateT) noexcept {
  return guarded<int>([&] { return entries::VB_M_IsTriangular(t, n, iUpdateT); });
}

KAV_ENTRY int KAV_CALL VB_M_CheckIfSimOrDissim(double* t, int n, int iApriori) noexcept {
  return guarded<int>([&] { return entries::VB_M_CheckIfSimOrDissim(t, n, iApriori); });
}

KAV_ENTRY void KAV_CALL VB_M_TransformSimToDissim(double* t, int n) noexcept {
  return guarded<void>([&] { return entries::VB_M_TransformSimToDissim(t, n); });
}

KAV_ENTRY void KAV_CALL VB_M_SetWeightsToZeroForMissing(double* t, int n, int p, double* w, int pW) noexcept {
  return guarded<void>([&] { return entries::VB_M_SetWeightsToZeroForMissing(t, n, p, w, pW); });
}

KAV_ENTRY int KAV_CALL VB_M_InverseTriang(
    double* iTriangMat, int n, VARIANT_BOOL iIsLower, double* oInvMat, double Eps) noexcept {
  return guarded<int>([&] { return entries::VB_M_InverseTriang(iTriangMat, n, iIsLower, oInvMat, Eps); });
}

KAV_ENTRY void KAV_CALL VB_M_SVDecomp(
    double* X, int n, int p, double* s, double* u, int ldu, double* v, int ldv, int job, int* info) noexcept {
  return guarded<void>([&] { return entries::VB_M_SVDecomp(X, n, p, s, u, ldu, v, ldv, job, info); });
}

KAV_ENTRY void KAV_CALL VB_M_Center(double* iMat, int n, int p, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_Center(iMat, n, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_CenterW(double* iMat, int n, int p, double* w, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_CenterW(iMat, n, p, w, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_Center2(double* ioMat, int n, int p) noexcept {
  return guarded<void>([&] { return entries::VB_M_Center2(ioMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_M_CenterW2(double* ioMat, int n, int p, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_M_CenterW2(ioMat, n, p, w); });
}

KAV_ENTRY void KAV_CALL VB_M_Reduce(
    double* iMat, int n, int p, double* oMat, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_Reduce(iMat, n, p, oMat, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_ReduceW(
    double* iMat, int n, int p, double* w, double* oMat, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReduceW(iMat, n, p, w, oMat, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_Reduce2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_Reduce2(ioMat, n, p, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_ReduceW2(
    double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_ReduceW2(ioMat, n, p, w, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_Standardize2(double* ioMat, int n, int p, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_Standardize2(ioMat, n, p, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_Standardize3(
    double* ioMat, int n, int p, double* oMean, double* oStdev, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_Standardize3(ioMat, n, p, oMean, oStdev, Unbiased); });
}

KAV_ENTRY void KAV_CALL VB_M_StandardizeW2(
    double* ioMat, int n, int p, double* w, VARIANT_BOOL Unbiased) noexcept {
  return guarded<void>([&] { return entries::VB_M_StandardizeW2(ioMat, n, p, w, Unbiased); });
}

KAV_ENTRY double KAV_CALL VB_M_FrobeniusNorm(double* iMat1, int n, int p, double* iMat2) noexcept {
  return guarded<double>([&] { return entries::VB_M_FrobeniusNorm(iMat1, n, p, iMat2); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductByElement(
    double* iMat1, int n, int p, double* iMat2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductByElement(iMat1, n, p, iMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductADiagV(
    double* iMat, int n, int p, double* iDiagVect, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductADiagV(iMat, n, p, iDiagVect, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_SquaredRows(double* iMat, int n, int p, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_M_SquaredRows(iMat, n, p, oVect); });
}

KAV_ENTRY void KAV_CALL VB_M_SquaredColumns(double* iMat, int n, int p, double* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_M_SquaredColumns(iMat, n, p, oVect); });
}

KAV_ENTRY void KAV_CALL VB_M_CopyBlock(
    double* iMat, int n, int p, int nStart, int nEnd, int pStart, int pEnd, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_CopyBlock(iMat, n, p, nStart, nEnd, pStart, pEnd, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_RemoveCols2(double* ioMat, int n, int p, int pStart, int pEnd) noexcept {
  return guarded<void>([&] { return entries::VB_M_RemoveCols2(ioMat, n, p, pStart, pEnd); });
}

KAV_ENTRY void KAV_CALL VB_M_RemoveRows2(double* ioMat, int n, int p, int nStart, int nEnd) noexcept {
  return guarded<void>([&] { return entries::VB_M_RemoveRows2(ioMat, n, p, nStart, nEnd); });
}

KAV_ENTRY void KAV_CALL VB_M_ExtractMatToMatByColDbl(
    double* iMat, int n, int p, int pStart, int pEnd, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ExtractMatToMatByColDbl(iMat, n, p, pStart, pEnd, oMat); });
}

KAV_ENTRY double KAV_CALL VB_M_DeterminantCleaned(
    double* iMat, int p, int* iConstraints, VARIANT_BOOL* Problem) noexcept {
  return guarded<double>([&] { return entries::VB_M_DeterminantCleaned(iMat, p, iConstraints, Problem); });
}

KAV_ENTRY void KAV_CALL VB_M_Min(double* iMat, int n, int p, double* oMinVect) noexcept {
  return guarded<void>([&] { return entries::VB_M_Min(iMat, n, p, oMinVect); });
}

KAV_ENTRY void KAV_CALL VB_M_Max(double* iMat, int n, int p, double* oMaxVect) noexcept {
  return guarded<void>([&] { return entries::VB_M_Max(iMat, n, p, oMaxVect); });
}

KAV_ENTRY int KAV_CALL VB_M_CholDecompCleaned(double* iMat, int p, int* iConstraints, double* oMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_CholDecompCleaned(iMat, p, iConstraints, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_CorrMatFromCovMat(double* iCovMat, int p, double* oCorrMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_CorrMatFromCovMat(iCovMat, p, oCorrMat); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_M_IsIn01(double* iMat, int n, int p) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_M_IsIn01(iMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_M_PasteBlock(
    double* iMat, int n, int p, double* ioMat, int n2, int p2, int nStart, int pStart) noexcept {
  return guarded<void>([&] { return entries::VB_M_PasteBlock(iMat, n, p, ioMat, n2, p2, nStart, pStart); });
}

KAV_ENTRY double KAV_CALL VB_M_ProductTrV1BV2(double* iVect1, int n, double* iBMat, double* iVect2) noexcept {
  return guarded<double>([&] { return entries::VB_M_ProductTrV1BV2(iVect1, n, iBMat, iVect2); });
}

KAV_ENTRY void KAV_CALL VB_M_CopyToBigger(
    double* iMat, int n, int p, double* oMat, int nOut, int pOut) noexcept {
  return guarded<void>([&] { return entries::VB_M_CopyToBigger(iMat, n, p, oMat, nOut, pOut); });
}

KAV_ENTRY void KAV_CALL VB_M_SamplingRandomStratified(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed) noexcept {
  return guarded<void>([&] { return entries::VB_M_SamplingRandomStratified(iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed); });
}

KAV_ENTRY void KAV_CALL VB_M_SamplingSystematicCentered(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx) noexcept {
  return guarded<void>([&] { return entries::VB_M_SamplingSystematicCentered(iMat, n, p, SampleSize, oMat, idx); });
}

KAV_ENTRY void KAV_CALL VB_M_SamplingSystematicRdStart(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed) noexcept {
  return guarded<void>([&] { return entries::VB_M_SamplingSystematicRdStart(iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed); });
}

KAV_ENTRY void KAV_CALL VB_M_SampleUserDefined(BSTR* iMat, int n, int p, BSTR* oMat, double* idx) noexcept {
  return guarded<void>([&] { return entries::VB_M_SampleUserDefined(iMat, n, p, oMat, idx); });
}

KAV_ENTRY void KAV_CALL VB_M_SamplingWithReplacement(
    BSTR* iMat, int n, int p, int SampleSize, BSTR* oMat, double* idx, int* ioSeed, VARIANT_BOOL iSeedInit,
    int* oSeed) noexcept {
  return guarded<void>([&] { return entries::VB_M_SamplingWithReplacement(iMat, n, p, SampleSize, oMat, idx, ioSeed, iSeedInit, oSeed); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductDesignAB2(
    double* ioMat1, int n, int* iop1, double* iMat2, int p2, int iConstraintType, double* w,
    double* oInterFreqCat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductDesignAB2(ioMat1, n, iop1, iMat2, p2, iConstraintType, w, oInterFreqCat); });
}

KAV_ENTRY void KAV_CALL VB_M_Log10Matrix(double* ioMat, int n, int p) noexcept {
  return guarded<void>([&] { return entries::VB_M_Log10Matrix(ioMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductDiagVA(
    double* iDiagVect, int n, double* iMat, int p, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductDiagVA(iDiagVect, n, iMat, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductDiagV1ADiagV2(
    double* iDiagVect1, int n, double* iMat, int p, double* iDiagVect2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductDiagV1ADiagV2(iDiagVect1, n, iMat, p, iDiagVect2, oMat); });
}

KAV_ENTRY int KAV_CALL VB_M_Gauss(double* ioMat1, int n, int p, double* ioMat2) noexcept {
  return guarded<int>([&] { return entries::VB_M_Gauss(ioMat1, n, p, ioMat2); });
}

KAV_ENTRY void KAV_CALL VB_M_StandardizeW(
    double* iMat, int n, int p, double* w, VARIANT_BOOL Unbiased, VARIANT_BOOL isBiasOne, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_StandardizeW(iMat, n, p, w, Unbiased, isBiasOne, oMat); });
}

KAV_ENTRY int KAV_CALL VB_M_InvGeneralized(
    double* iMat, int n, double* oInvMat, double iEps, int* oRank) noexcept {
  return guarded<int>([&] { return entries::VB_M_InvGeneralized(iMat, n, oInvMat, iEps, oRank); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductTrADiagVA(
    double* iMat, int n, int p, double* iDiagVect, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductTrADiagVA(iMat, n, p, iDiagVect, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_ProductADiagVTrA(
    double* iMat, int n, int p, double* iDiagVect, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_ProductADiagVTrA(iMat, n, p, iDiagVect, oMat); });
}

KAV_ENTRY int KAV_CALL VB_M_RemoveRowsInList(
    double* iMat, int n, int p, int* iList, int nOut, double* oMat) noexcept {
  return guarded<int>([&] { return entries::VB_M_RemoveRowsInList(iMat, n, p, iList, nOut, oMat); });
}

KAV_ENTRY int KAV_CALL VB_SortQVectorLng(
    int* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown) noexcept {
  return guarded<int>([&] { return entries::VB_SortQVectorLng(ioVector, n, iLowerBound, iUpperBound, iSortdown); });
}

KAV_ENTRY int KAV_CALL VB_SortQVectorDbl(
    double* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown) noexcept {
  return guarded<int>([&] { return entries::VB_SortQVectorDbl(ioVector, n, iLowerBound, iUpperBound, iSortdown); });
}

KAV_ENTRY int KAV_CALL VB_SortQVectorStr(
    BSTR* ioVector, int n, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown) noexcept {
  return guarded<int>([&] { return entries::VB_SortQVectorStr(ioVector, n, iLowerBound, iUpperBound, iSortdown); });
}

KAV_ENTRY int KAV_CALL VB_SortQMatrixCol(
    double* ioMatrix, int n, int p, int iCol, int iLowerBound, int iUpperBound, VARIANT_BOOL iSortdown) noexcept {
  return guarded<int>([&] { return entries::VB_SortQMatrixCol(ioMatrix, n, p, iCol, iLowerBound, iUpperBound, iSortdown); });
}

KAV_ENTRY void KAV_CALL VB_SortMatrixSeqQDbl(double* iMat, int n, int p) noexcept {
  return guarded<void>([&] { return entries::VB_SortMatrixSeqQDbl(iMat, n, p); });
}

KAV_ENTRY void KAV_CALL VB_SortMatrixSeqQLng(int* iMat, int n, int p) noexcept {
  return guarded<void>([&] { return entries::VB_SortMatrixSeqQLng(iMat, n, p); });
}

KAV_ENTRY int KAV_CALL VB_SortQDbl(
    double* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster,
    double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) noexcept {
  return guarded<int>([&] { return entries::VB_SortQDbl(ioSlave, n, pSlave, iLowerBound, iUpperBound, ioMaster, ioSlave2, pSlave2, iSortdown, updateMaster); });
}

KAV_ENTRY int KAV_CALL VB_SortQLng(
    int* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, int* ioMaster, int* ioSlave2,
    int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) noexcept {
  return guarded<int>([&] { return entries::VB_SortQLng(ioSlave, n, pSlave, iLowerBound, iUpperBound, ioMaster, ioSlave2, pSlave2, iSortdown, updateMaster); });
}

KAV_ENTRY int KAV_CALL VB_SortQStr(
    BSTR* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster, double* ioSlave2,
    int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) noexcept {
  return guarded<int>([&] { return entries::VB_SortQStr(ioSlave, n, pSlave, iLowerBound, iUpperBound, ioMaster, ioSlave2, pSlave2, iSortdown, updateMaster); });
}

KAV_ENTRY int KAV_CALL VB_SortQBool(
    VARIANT_BOOL* ioSlave, int n, int pSlave, int iLowerBound, int iUpperBound, double* ioMaster,
    double* ioSlave2, int pSlave2, VARIANT_BOOL iSortdown, VARIANT_BOOL updateMaster) noexcept {
  return guarded<int>([&] { return entries::VB_SortQBool(ioSlave, n, pSlave, iLowerBound, iUpperBound, ioMaster, ioSlave2, pSlave2, iSortdown, updateMaster); });
}

KAV_ENTRY int KAV_CALL VB_SortDataBy01(
    double* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder) noexcept {
  return guarded<int>([&] { return entries::VB_SortDataBy01(iSlave, n, p, iMaster, nOut, KeepInitialOrder); });
}

KAV_ENTRY int KAV_CALL VB_SortDataBy01Str(
    BSTR* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder) noexcept {
  return guarded<int>([&] { return entries::VB_SortDataBy01Str(iSlave, n, p, iMaster, nOut, KeepInitialOrder); });
}

KAV_ENTRY int KAV_CALL VB_SortDataBy01Bool(
    VARIANT_BOOL* iSlave, int n, int p, double* iMaster, int nOut, VARIANT_BOOL KeepInitialOrder) noexcept {
  return guarded<int>([&] { return entries::VB_SortDataBy01Bool(iSlave, n, p, iMaster, nOut, KeepInitialOrder); });
}

KAV_ENTRY void KAV_CALL VB_SortApply(double* iMat, int n, int p, double* iSortVect, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_SortApply(iMat, n, p, iSortVect, oMat); });
}

KAV_ENTRY void KAV_CALL VB_SortApplyStr(BSTR* iMat, int n, int p, double* iSortVect, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_SortApplyStr(iMat, n, p, iSortVect, oMat); });
}

KAV_ENTRY void KAV_CALL VB_BuildDisjunctiveTable(
    BSTR* iMat, int n, int p, int NbCatTotal, int* NbCat, BSTR* Cat, double* FreqCat, int pMaxCat,
    double* oMat, int ConstraintType, int LeaveFirstCol) noexcept {
  return guarded<void>([&] { return entries::VB_BuildDisjunctiveTable(iMat, n, p, NbCatTotal, NbCat, Cat, FreqCat, pMaxCat, oMat, ConstraintType, LeaveFirstCol); });
}

KAV_ENTRY void KAV_CALL VB_HMergeVectors(
    double* iVect1, int NbRowVect1, double* iVect2, int NbRowVect2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeVectors(iVect1, NbRowVect1, iVect2, NbRowVect2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTableVect(
    double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTableVect(iMat2, NbRowMat2, NbColMat2, iVect, NbRowVect, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTableVect2(
    double* iMat2, int NbRowMat2, int NbColMat2, double* iVect, int NbRowVect) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTableVect2(iMat2, NbRowMat2, NbColMat2, iVect, NbRowVect); });
}

KAV_ENTRY void KAV_CALL VB_HMergeVectTable(
    double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeVectTable(iVect, NbRowVect, iMat2, NbRowMat2, NbColMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeVectColDbl(
    double* iVect, int NbRowVect, double* iMat2, int NbRowMat2, int iCol, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeVectColDbl(iVect, NbRowVect, iMat2, NbRowMat2, iCol, oMat); });
}

KAV_ENTRY void KAV_CALL VB_VMergeVectorsDbl(
    double* iVector1, int p1, double* iVector2, int p2, double* oVector) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeVectorsDbl(iVector1, p1, iVector2, p2, oVector); });
}

KAV_ENTRY void KAV_CALL VB_VMergeVectorsDbl2(double* iVector1, int p1, double* iVector2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeVectorsDbl2(iVector1, p1, iVector2, p2); });
}

KAV_ENTRY void KAV_CALL VB_VMergeVectorsStr(
    BSTR* iVector1, int p1, BSTR* iVector2, int p2, BSTR* oVector) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeVectorsStr(iVector1, p1, iVector2, p2, oVector); });
}

KAV_ENTRY void KAV_CALL VB_VMergeVectorsStr2(BSTR* iVector1, int p1, BSTR* iVector2, int p2) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeVectorsStr2(iVector1, p1, iVector2, p2); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesDbl(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesDbl(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesDbl2(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesDbl2(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesBool(
    VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2, int NbRowMat2, int NbColMat2,
    VARIANT_BOOL* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesBool(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesBool2(
    VARIANT_BOOL* iMat1, int NbRowMat1, int NbColMat1, VARIANT_BOOL* iMat2, int NbRowMat2, int NbColMat2) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesBool2(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesStr(
    BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2, int NbColMat2, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesStr(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_HMergeTablesStr2(
    BSTR* iMat1, int NbRowMat1, int NbColMat1, BSTR* iMat2, int NbRowMat2, int NbColMat2) noexcept {
  return guarded<void>([&] { return entries::VB_HMergeTablesStr2(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2); });
}

KAV_ENTRY void KAV_CALL VB_VMergeTablesDbl(
    double* iMat1, int NbRowMat1, int NbColMat1, double* iMat2, int NbRowMat2, int NbColMat2, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeTablesDbl(iMat1, NbRowMat1, NbColMat1, iMat2, NbRowMat2, NbColMat2, oMat); });
}

KAV_ENTRY void KAV_CALL VB_CopyMatrixColToMatrixCol(
    double* iMat, int n, int col, double* ioMat, int ColID, VARIANT_BOOL iRedimMat) noexcept {
  return guarded<void>([&] { return entries::VB_CopyMatrixColToMatrixCol(iMat, n, col, ioMat, ColID, iRedimMat); });
}

KAV_ENTRY void KAV_CALL VB_CopyMatrixColToVector(double* iMat, int n, int ColID, double* oVector) noexcept {
  return guarded<void>([&] { return entries::VB_CopyMatrixColToVector(iMat, n, ColID, oVector); });
}

KAV_ENTRY void KAV_CALL VB_CopyMatrixRowToMatrixRow(
    double* iMat, int n, int p, int Line, double* ioMat, int n2, int RowID, VARIANT_BOOL iRedimMat) noexcept {
  return guarded<void>([&] { return entries::VB_CopyMatrixRowToMatrixRow(iMat, n, p, Line, ioMat, n2, RowID, iRedimMat); });
}

KAV_ENTRY void KAV_CALL VB_CopyMatrixColToOneColMatStr(BSTR* iMat, int n, int iCol, BSTR* oVectMat) noexcept {
  return guarded<void>([&] { return entries::VB_CopyMatrixColToOneColMatStr(iMat, n, iCol, oVectMat); });
}

KAV_ENTRY void KAV_CALL VB_GenerateIndicator(double* iVector, int n, int iStart, int iEnd) noexcept {
  return guarded<void>([&] { return entries::VB_GenerateIndicator(iVector, n, iStart, iEnd); });
}

KAV_ENTRY void KAV_CALL VB_GenerateRandomIndicator(
    double* iVector, int n, int n1, int* ioSeed, VARIANT_BOOL iSeedInit, int* oSeed) noexcept {
  return guarded<void>([&] { return entries::VB_GenerateRandomIndicator(iVector, n, n1, ioSeed, iSeedInit, oSeed); });
}

KAV_ENTRY void KAV_CALL VB_VMergeVectorsBool2(
    VARIANT_BOOL* ioVect1, int n1, VARIANT_BOOL* iVect2, int n2) noexcept {
  return guarded<void>([&] { return entries::VB_VMergeVectorsBool2(ioVect1, n1, iVect2, n2); });
}

KAV_ENTRY void KAV_CALL VB_SummarizeAllMissing(
    int n, VARIANT_BOOL* AllMissingX, VARIANT_BOOL* AllMissingQ, int* NbAllMissing, VARIANT_BOOL* AllMissing) noexcept {
  return guarded<void>([&] { return entries::VB_SummarizeAllMissing(n, AllMissingX, AllMissingQ, NbAllMissing, AllMissing); });
}

KAV_ENTRY int KAV_CALL VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_InitVectorToFalse(oVector, n); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_IsMissingValueDbl(double iValue) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_IsMissingValueDbl(iValue); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_IsMissingValueStr(BSTR iValue) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_IsMissingValueStr(iValue); });
}

KAV_ENTRY void KAV_CALL VB_SummarizeMissing(
    int n, int* oNbMissing, VARIANT_BOOL* oMissing, VARIANT_BOOL* iMissing1, VARIANT_BOOL* iMissing2,
    VARIANT_BOOL* iMissing3) noexcept {
  return guarded<void>([&] { return entries::VB_SummarizeMissing(n, oNbMissing, oMissing, iMissing1, iMissing2, iMissing3); });
}

KAV_ENTRY void KAV_CALL VB_RemoveRowsWithMissing(
    double* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing, double* oTable) noexcept {
  return guarded<void>([&] { return entries::VB_RemoveRowsWithMissing(ioTable, n, p, NbMissing, iMissing, oTable); });
}

KAV_ENTRY void KAV_CALL VB_RemoveRowsWithMissingStr(
    BSTR* ioTable, int n, int p, int NbMissing, VARIANT_BOOL* iMissing, BSTR* oTable) noexcept {
  return guarded<void>([&] { return entries::VB_RemoveRowsWithMissingStr(ioTable, n, p, NbMissing, iMissing, oTable); });
}

KAV_ENTRY void KAV_CALL VB_ReplaceMissingObsLabels(
    BSTR* ioObsLabels, int n, VARIANT_BOOL* iMissingObs, BSTR iPrefixe) noexcept {
  return guarded<void>([&] { return entries::VB_ReplaceMissingObsLabels(ioObsLabels, n, iMissingObs, iPrefixe); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingMean(
    double* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingMean(ioTable, n, p, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingMode(
    BSTR* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingMode(ioTable, n, p, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingNN(
    double* iTable1Dbl, int n, int p1, VARIANT_BOOL* iMissing, double* iTable2Dbl, int p2, BSTR* iTable3Str,
    int p3, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingNN(iTable1Dbl, n, p1, iMissing, iTable2Dbl, p2, iTable3Str, p3, w); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingMeanPred(
    double* iTable, int nin, double* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingMeanPred(iTable, nin, ioTable, n, p, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingModePred(
    BSTR* iTable, int nin, BSTR* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingModePred(iTable, nin, ioTable, n, p, iMissing, w); });
}

KAV_ENTRY void KAV_CALL VB_EstimateRowsWithMissingNNPred(
    double* iiTable1Dbl, int nin, double* iTable1Dbl, int n, int p1, VARIANT_BOOL* iMissing,
    double* iiTable2Dbl, double* iTable2Dbl, int p2, BSTR* iiTable3Str, BSTR* iTable3Str, int p3, double* w) noexcept {
  return guarded<void>([&] { return entries::VB_EstimateRowsWithMissingNNPred(iiTable1Dbl, nin, iTable1Dbl, n, p1, iMissing, iiTable2Dbl, iTable2Dbl, p2, iiTable3Str, iTable3Str, p3, w); });
}

KAV_ENTRY double KAV_CALL VB_CorrelPearson(
    double* iVector1, double* iVector2, int n, VARIANT_BOOL* iMissing, double* w, VARIANT_BOOL Unbiased,
    VARIANT_BOOL BiasIsOne) noexcept {
  return guarded<double>([&] { return entries::VB_CorrelPearson(iVector1, iVector2, n, iMissing, w, Unbiased, BiasIsOne); });
}

KAV_ENTRY double KAV_CALL VB_MAPE(double* Y, double* YPred, int n, double* w, int binf) noexcept {
  return guarded<double>([&] { return entries::VB_MAPE(Y, YPred, n, w, binf); });
}

KAV_ENTRY double KAV_CALL VB_RMSE(double* Y, int nY, int p, double* PredY, int DF) noexcept {
  return guarded<double>([&] { return entries::VB_RMSE(Y, nY, p, PredY, DF); });
}

KAV_ENTRY void KAV_CALL VB_ComputeNewVar(
    double* LCombines, int n, int p, double* VarCov, double* NewVarVect, double* NewVarCov) noexcept {
  return guarded<void>([&] { return entries::VB_ComputeNewVar(LCombines, n, p, VarCov, NewVarVect, NewVarCov); });
}

KAV_ENTRY void KAV_CALL VB_FilterEigen(
    double* iEigenValues, int p, VARIANT_BOOL iDoFilter, double iFilter, double iMinPerc, int iMaxFact,
    double iMaxVal, int* oNbEigen, int* oDispEigen, double* Percent) noexcept {
  return guarded<void>([&] { return entries::VB_FilterEigen(iEigenValues, p, iDoFilter, iFilter, iMinPerc, iMaxFact, iMaxVal, oNbEigen, oDispEigen, Percent); });
}

KAV_ENTRY int KAV_CALL RunOLSBasic(
    int n, int p, double* X, double* Y, double* w, int iPolyDegree, VARIANT_BOOL iInteract2,
    VARIANT_BOOL iFixedIntercept, double iTolerance, double* oCoeffs, double* oPredY) noexcept {
  return guarded<int>([&] { return entries::RunOLSBasic(n, p, X, Y, w, iPolyDegree, iInteract2, iFixedIntercept, iTolerance, oCoeffs, oPredY); });
}

KAV_ENTRY int KAV_CALL RunOLSBasic2(
    int n, int p, double* X, double* Y, double* w, int iPolyDegree, VARIANT_BOOL iInteract2,
    VARIANT_BOOL iFixedIntercept, double iTolerance, double* oCoeffs, double* oStDevCoeffs, double* oPredY) noexcept {
  return guarded<int>([&] { return entries::RunOLSBasic2(n, p, X, Y, w, iPolyDegree, iInteract2, iFixedIntercept, iTolerance, oCoeffs, oStDevCoeffs, oPredY); });
}

KAV_ENTRY void KAV_CALL VB_CheckTolerance(
    double* R, int p, int NbFactors, int* FactActive, int* FactType, int* FactSubParents, double Tolerance,
    VARIANT_BOOL FastRemoval, VARIANT_BOOL iCheckall, VARIANT_BOOL WithAnEq0, int* oNotToleratedVars,
    double* oTolerances, double* oVIF) noexcept {
  return guarded<void>([&] { return entries::VB_CheckTolerance(R, p, NbFactors, FactActive, FactType, FactSubParents, Tolerance, FastRemoval, iCheckall, WithAnEq0, oNotToleratedVars, oTolerances, oVIF); });
}

KAV_ENTRY void KAV_CALL ComputeCosines(double* iMat, int n, int p, double* oCosines) noexcept {
  return guarded<void>([&] { return entries::ComputeCosines(iMat, n, p, oCosines); });
}

KAV_ENTRY void KAV_CALL VB_BiplotTransData(
    double* iScores, double* iScoresSupp, double* iLoadings, int n, int nSupp, int p, int iNbEigen,
    double* iEigenValues, double iScale, double iExpo, double* oNewScores, double* oNewLoadings) noexcept {
  return guarded<void>([&] { return entries::VB_BiplotTransData(iScores, iScoresSupp, iLoadings, n, nSupp, p, iNbEigen, iEigenValues, iScale, iExpo, oNewScores, oNewLoadings); });
}

KAV_ENTRY int KAV_CALL NewtonRaphson(
    double* ioParamVect, int p, int* iConstraints, double* iDeriv1, double* iDeriv2, double iConvergence,
    double* oStdErrVect, double* InvDeriv2, VARIANT_BOOL Checkchange, double Maxchange) noexcept {
  return guarded<int>([&] { return entries::NewtonRaphson(ioParamVect, p, iConstraints, iDeriv1, iDeriv2, iConvergence, oStdErrVect, InvDeriv2, Checkchange, Maxchange); });
}

KAV_ENTRY int KAV_CALL CleanConstraintsAndInvert(
    int p, int* iConstraints, double* iDeriv, double* oInvDeriv) noexcept {
  return guarded<int>([&] { return entries::CleanConstraintsAndInvert(p, iConstraints, iDeriv, oInvDeriv); });
}

KAV_ENTRY int KAV_CALL CleanConstraintsAndInvertTriang(
    int p, int* iConstraints, double* iDeriv, VARIANT_BOOL iIsLower, double* oInvDeriv) noexcept {
  return guarded<int>([&] { return entries::CleanConstraintsAndInvertTriang(p, iConstraints, iDeriv, iIsLower, oInvDeriv); });
}

KAV_ENTRY double KAV_CALL VB_MPE(double* Y, double* YPred, int n, double* w, int binf) noexcept {
  return guarded<double>([&] { return entries::VB_MPE(Y, YPred, n, w, binf); });
}

KAV_ENTRY double KAV_CALL VB_MAE(double* Y, double* YPred, int n, double* w, int binf) noexcept {
  return guarded<double>([&] { return entries::VB_MAE(Y, YPred, n, w, binf); });
}

}  // extern "C"
