// What the DLL exports to macros: each body behind its calling convention and its guard.
// Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.

#include "bridge/generated/entries.h"
#include "bridge/guard.h"
#include "platform/calling.h"

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

KAV_ENTRY void KAV_CALL VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateDbl(iAMat, n, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateStr(iAMat, n, p, oMat); });
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

KAV_ENTRY int KAV_CALL VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_InitVectorToFalse(oVector, n); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_IsMissingValueDbl(double iValue) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_IsMissingValueDbl(iValue); });
}

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_IsMissingValueStr(BSTR iValue) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_IsMissingValueStr(iValue); });
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

KAV_ENTRY double KAV_CALL VB_MPE(double* Y, double* YPred, int n, double* w, int binf) noexcept {
  return guarded<double>([&] { return entries::VB_MPE(Y, YPred, n, w, binf); });
}

KAV_ENTRY double KAV_CALL VB_MAE(double* Y, double* YPred, int n, double* w, int binf) noexcept {
  return guarded<double>([&] { return entries::VB_MAE(Y, YPred, n, w, binf); });
}

}  // extern "C"
