Attribute VB_Name = "KAVORATB1C"
' Declarations for hosts that do not read the DLL's type library.
' Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.
'
' Arrays: pass the first element, iVector(1). Tables are column-major.
' Strings: Declare statements would convert them, so they go as pointers: StrPtr(s) for one string,
' VarPtr(labels(1)) for an array. A string result is turned into a string by TakeString.
' String arrays that receive results must be fresh: what a slot held is not freed.
' Flags and weights that an entry lets be null cannot be left out here; pass flags of False and weights of 1.
Option Explicit

#If VBA7 Then
  Public Declare PtrSafe Function VB_V_Sum Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Sub VB_V_MinMax Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef VMin As Double, ByRef VMax As Double, ByRef iMissing As Boolean)
  Public Declare PtrSafe Function VB_V_Min Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean) As Double
  Public Declare PtrSafe Function VB_V_Max Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean) As Double
  Public Declare PtrSafe Function VB_V_MaxInt Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long, ByRef iMissing As Boolean) As Long
  Public Declare PtrSafe Sub VB_V_PlusVal Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal ival As Double, ByRef iMissing As Boolean)
  Public Declare PtrSafe Function VB_V_ProductTrV1V2 Lib "KAVORATB1C.dll" (ByRef iV1 As Double, ByVal n As Long, ByRef iV2 As Double) As Double
  Public Declare PtrSafe Function VB_V_Mean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Function VB_V_MeanAbs Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Function VB_V_Freq Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef w As Double, ByVal iValue As Double, ByVal iEpsilon As Double) As Double
  Public Declare PtrSafe Function VB_V_FreqLng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long, ByRef w As Double, ByVal iValue As Long) As Long
  Public Declare PtrSafe Function VB_V_FreqStr Lib "KAVORATB1C.dll" (ByVal iVector As LongPtr, ByVal n As Long, ByRef w As Double, ByVal iValue As LongPtr) As Double
  Public Declare PtrSafe Function VB_V_Var Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare PtrSafe Function VB_V_Stdev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare PtrSafe Sub VB_V_MeanVar Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Sub VB_V_MeanStdev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Function VB_V_Mode Lib "KAVORATB1C.dll" (ByVal iVector As LongPtr, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As LongPtr
  Public Declare PtrSafe Sub VB_V_GetMissingStr Lib "KAVORATB1C.dll" (ByVal iVectMat As LongPtr, ByVal n As Long, ByRef iMissing As Boolean, ByRef oMissing As Boolean)
  Public Declare PtrSafe Function VB_V_HarmonicMean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Sub VB_V_GetMissingDbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef oMissing As Boolean)
  Public Declare PtrSafe Function VB_V_IsPositive Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal n As Long, ByVal iStrictly As Boolean) As Boolean
  Public Declare PtrSafe Function VB_V_IsWeights Lib "KAVORATB1C.dll" (ByRef iW As Double, ByVal nW As Long) As Boolean
  Public Declare PtrSafe Function VB_V_IsCWeights Lib "KAVORATB1C.dll" (ByRef iW As Double, ByVal nW As Long) As Boolean
  Public Declare PtrSafe Function VB_V_IsIndicator Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal nV As Long) As Boolean
  Public Declare PtrSafe Function VB_V_Is01 Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal nV As Long) As Boolean
  Public Declare PtrSafe Function VB_V_NbMissing Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_V_NbMissingStr Lib "KAVORATB1C.dll" (ByVal iVector As LongPtr, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_V_NbNonMissing Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_V_Sum2Dbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Double
  Public Declare PtrSafe Function VB_V_Sum2Lng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_V_Quantile Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByVal Prob As Double) As Double
  Public Declare PtrSafe Function VB_V_QuantileW Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef w As Double, ByVal Prob As Double) As Double
  Public Declare PtrSafe Function VB_V_QuantileM Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef missing As Boolean, ByVal Prob As Double) As Double
  Public Declare PtrSafe Function VB_V_QuantileMW Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef missing As Boolean, ByRef w As Double, ByVal Prob As Double) As Double
  Public Declare PtrSafe Sub VB_V_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_V_DuplicateLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByRef oVect As Long)
  Public Declare PtrSafe Sub VB_V_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iVect As LongPtr, ByVal n As Long, ByVal oVect As LongPtr)
  Public Declare PtrSafe Function VB_V_IsConstant Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Boolean
  Public Declare PtrSafe Function VB_V_IsConstantBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Boolean
  Public Declare PtrSafe Sub VB_V_RemoveVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ID As Long, ByRef oVect As Double)
  Public Declare PtrSafe Function VB_V_NbTrue Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_V_SumFromTo Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iFrom As Long, ByVal iTo As Long) As Double
  Public Declare PtrSafe Function VB_V_SumFromToLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByVal iFrom As Long, ByVal iTo As Long) As Long
  Public Declare PtrSafe Sub VB_V_MeanVarSkewPKurtP Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef Var As Double, ByRef SkewP As Double, ByRef KurtP As Double, ByRef SkewF As Double, ByRef KurtF As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Function VB_V_MedianAbsDev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iMedian As Double, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Function VB_V_MeanAbsDev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iMean As Double, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Sub VB_V_GMeanGSD Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByRef oGMean As Double, ByRef oGSD As Double)
  Public Declare PtrSafe Sub VB_V_Standardize Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByRef oVector As Double)
  Public Declare PtrSafe Sub VB_V_Standardize2 Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_V_Rescale Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean, ByRef oVector As Double)
  Public Declare PtrSafe Sub VB_V_Rescale2 Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean)
  Public Declare PtrSafe Sub VB_V_ProductHorizV1V2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal p1 As Long, ByRef iVect2 As Double, ByVal p2 As Long, ByRef oVect As Double, ByVal p As Long)
  Public Declare PtrSafe Sub VB_V_ProductHorizV1V22 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Double, ByRef iop1 As Long, ByRef iVect2 As Double, ByVal p2 As Long)
  Public Declare PtrSafe Function VB_V_V1GreaterThanMatCols Lib "KAVORATB1C.dll" (ByRef w As Double, ByVal n As Long, ByRef Y As Double, ByVal p As Long) As Boolean
  Public Declare PtrSafe Function VB_V_SumSq Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Double
  Public Declare PtrSafe Function VB_V_SumSqW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef w As Double) As Double
  Public Declare PtrSafe Sub VB_V_Norm Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long)
  Public Declare PtrSafe Sub VB_V_NormToVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double)
  Public Declare PtrSafe Sub VB_V_NormW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef w As Double)
  Public Declare PtrSafe Sub VB_V_NormToValW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double, ByRef w As Double)
  Public Declare PtrSafe Sub VB_V_Set1toNDbl Lib "KAVORATB1C.dll" (ByRef oVect As Double, ByVal n As Long)
  Public Declare PtrSafe Sub VB_V_Set1toNLng Lib "KAVORATB1C.dll" (ByRef oVect As Long, ByVal n As Long)
  Public Declare PtrSafe Sub VB_V_GetRanksLng Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oRanks As Long)
  Public Declare PtrSafe Sub VB_V_GetRanksDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oRanks As Double)
  Public Declare PtrSafe Sub VB_V_GetPositionInMatNNm1o2 Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare PtrSafe Sub VB_V_GetPositionInMatNNp1o2 Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare PtrSafe Sub VB_V_GetPositionInMatNN Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare PtrSafe Function VB_V_SetToValue Lib "KAVORATB1C.dll" (ByRef oVector As Double, ByVal n As Long, ByVal iValue As Double) As Long
  Public Declare PtrSafe Function VB_V_SetToValueLng Lib "KAVORATB1C.dll" (ByRef oVector As Long, ByVal n As Long, ByVal iValue As Long) As Long
  Public Declare PtrSafe Sub VB_V_ReplaceDoubles Lib "KAVORATB1C.dll" (ByVal LabelX As LongPtr, ByVal n As Long)
  Public Declare PtrSafe Sub VB_V_ReplaceVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iVal1 As Double, ByVal iVal2 As Double, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_V_ReplaceVal2 Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iVal1 As Double, ByVal iVal2 As Double)
  Public Declare PtrSafe Sub VB_V_GetRanksTiesDbl Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef w As Double, ByRef oRanks As Double, ByRef oNbTiedVal As Long, ByRef oNbTies As Double)
  Public Declare PtrSafe Sub VB_V_GetRanksTiesIntDbl Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef w As Double, ByRef oRanks As Double, ByRef oNbTiedVal As Long, ByRef oNbTies As Double)
  Public Declare PtrSafe Function VB_V_NbTrueFromTo Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByVal nStart As Long, ByVal nEnd As Long) As Long
  Public Declare PtrSafe Function VB_V_MaxAndMaxPos Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oMaxPos As Long) As Double
  Public Declare PtrSafe Function VB_V_MinAndMinPos Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oMinPos As Long) As Double
  Public Declare PtrSafe Function VB_V_DiffSq Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double) As Double
  Public Declare PtrSafe Sub VB_V_ProductV1V22 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Double, ByVal n As Long, ByRef iVect2 As Double)
  Public Declare PtrSafe Sub VB_V_ProductV1V2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double, ByRef oVect As Double)
  Public Declare PtrSafe Function VB_V_V1inferiorV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double) As Boolean
  Public Declare PtrSafe Sub VB_V_SetToValueStr Lib "KAVORATB1C.dll" (ByVal oVect As LongPtr, ByVal n As Long, ByVal ival As LongPtr)
  Public Declare PtrSafe Function VB_V_NbDistinct Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Long
  Public Declare PtrSafe Sub VB_V_ExtractDistinct Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double, ByRef k As Long)
  Public Declare PtrSafe Function VB_V_TimeIntervalSize Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iDoSort As Boolean) As Double
  Public Declare PtrSafe Function VB_V_IsSorted Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iStrictly As Boolean) As Boolean
  Public Declare PtrSafe Sub VB_V_ProductV1TrV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_V_ReverseDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_V_ReverseBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByRef oVect As Boolean)
  Public Declare PtrSafe Function VB_V_Gauss Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByRef ioVect As Double) As Long
  Public Declare PtrSafe Function VB_V_IsInInterval Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iLower As Double, ByVal iUpper As Double, ByVal iStrictly As Boolean, ByVal iIgnoreMissing As Boolean) As Boolean
  Public Declare PtrSafe Function VB_V_NbIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double) As Double
  Public Declare PtrSafe Function VB_V_SumIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double) As Double
  Public Declare PtrSafe Function VB_V_MeanIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double) As Double
  Public Declare PtrSafe Function VB_V_VarIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double, ByVal iBiased As Boolean) As Double
  Public Declare PtrSafe Function VB_M_Sweep Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal k As Long) As Long
  Public Declare PtrSafe Function VB_M_Transpose Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oTransMat As Double) As Long
  Public Declare PtrSafe Function VB_M_Transpose2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long) As Long
  Public Declare PtrSafe Function VB_M_Inverse1 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef oInvMat As Double, ByVal Eps As Double) As Long
  Public Declare PtrSafe Function VB_M_StandardizeKnownMeansStDev Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef oMat As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean) As Long
  Public Declare PtrSafe Function VB_M_ProductAB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double) As Long
  Public Declare PtrSafe Function VB_M_ProductABMissing Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double) As Long
  Public Declare PtrSafe Function VB_M_ProductBV Lib "KAVORATB1C.dll" (ByRef iBMat As Double, ByVal n As Long, ByVal p As Long, ByRef iAVec As Double, ByRef oCVec As Double) As Long
  Public Declare PtrSafe Function VB_M_Eigen Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByRef oEigenVal As Double, ByRef oEigenVect As Double, ByVal n As Long, ByVal iSort As Boolean) As Long
  Public Declare PtrSafe Function VB_M_MeanStDev Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean, ByVal MissingPerCol As Boolean) As Long
  Public Declare PtrSafe Function VB_M_Mean Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef iMissing As Boolean, ByRef w As Double) As Long
  Public Declare PtrSafe Function VB_M_MeanStDevVar Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Long
  Public Declare PtrSafe Function VB_M_CovCorrAndMeanStDevVar Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef CovCorr As Double, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByVal Correlations As Boolean, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean, ByVal ZeroMeaniMat As Boolean, ByVal StandardizeiMat As Boolean) As Long
  Public Declare PtrSafe Sub VB_M_CorrMatMat Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByRef CovCorr As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Correlations As Boolean, ByVal Determination As Boolean, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Sub VB_M_Normalize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Norm As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Function VB_M_CovCorr Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef CovCorr As Double, ByVal Correlations As Boolean, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Long
  Public Declare PtrSafe Sub VB_M_NormalizeMatrix Lib "KAVORATB1C.dll" (ByRef ioM1 As Double, ByVal n1 As Long, ByVal p As Long, ByRef ioM2 As Double, ByVal n2 As Long, ByRef ioM3 As Double, ByVal n3 As Long)
  Public Declare PtrSafe Sub VB_M_Standardize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Sub VB_M_StandardizeMatrix Lib "KAVORATB1C.dll" (ByRef ioM1 As Double, ByVal n1 As Long, ByVal p As Long, ByRef ioM2 As Double, ByVal n2 As Long, ByRef ioM3 As Double, ByVal n3 As Long)
  Public Declare PtrSafe Sub VB_M_InfoQuali Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal Mode As LongPtr, ByRef FreqMode As Double, ByRef NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As LongPtr, ByRef FreqCat As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal DoSort As Boolean)
  Public Declare PtrSafe Sub VB_M_InfoQualiValid Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal nCat As Long, ByVal NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As LongPtr, ByRef FreqCatValid As Double, ByRef Problem As Boolean, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare PtrSafe Sub VB_M_MeanStDevVarOneInMat Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal IDCol As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare PtrSafe Function VB_M_IsLong Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long) As Boolean
  Public Declare PtrSafe Sub VB_M_ReplaceMissingByVal Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal ival As Double)
  Public Declare PtrSafe Sub VB_M_ReplaceMissingByStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal ival As LongPtr)
  Public Declare PtrSafe Sub VB_M_RemoveCol Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iCol As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_RemoveRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iRow As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_MoveRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iRow As Long, ByVal iNewPos As Long)
  Public Declare PtrSafe Sub VB_M_MinMax Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef VMin As Double, ByRef VMax As Double, ByRef iMissing As Boolean, ByVal MissingPerCol As Boolean)
  Public Declare PtrSafe Sub VB_M_AllMissingRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef AllMissing As Boolean)
  Public Declare PtrSafe Sub VB_M_AllMissingRowsStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef AllMissing As Boolean)
  Public Declare PtrSafe Sub VB_M_NbMissing Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef NbMissing As Long)
  Public Declare PtrSafe Sub VB_M_NbMissingStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByRef NbMissing As Long)
  Public Declare PtrSafe Sub VB_M_NbNonMissing Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef NbNonMissing As Long)
  Public Declare PtrSafe Sub VB_M_Sums1As2B Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal s1 As Double, ByVal S2 As Double, ByRef oCMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductVB Lib "KAVORATB1C.dll" (ByRef iAVec As Double, ByVal n As Long, ByRef iBMat As Double, ByVal p As Long, ByRef oCVec As Double)
  Public Declare PtrSafe Sub VB_M_ProductTrAB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductATrB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductTrAA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oTrAAMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductATrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oATrAMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductADTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oADTrA As Double)
  Public Declare PtrSafe Sub VB_M_ProductTrADA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oTrADA As Double)
  Public Declare PtrSafe Sub VB_M_ProductADiag Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oADiagMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductTrADiag Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oTrADiagMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductABTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductTrABA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare PtrSafe Function VB_M_ProductTrVBV Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iBMat As Double) As Double
  Public Declare PtrSafe Sub VB_M_ProductTrAinvBA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare PtrSafe Function VB_M_ProductTrVinvBV Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iBMat As Double) As Double
  Public Declare PtrSafe Sub VB_M_ProductAinvBTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare PtrSafe Sub VB_M_ScalarsA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef osAMat As Double)
  Public Declare PtrSafe Sub VB_M_ScalarsA2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double)
  Public Declare PtrSafe Sub VB_M_ScalarsTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef osTrAMat As Double)
  Public Declare PtrSafe Sub VB_M_APlusVal Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal ival As Double, ByRef oAPlusVal As Double)
  Public Declare PtrSafe Sub VB_M_Square Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare PtrSafe Function VB_M_Trace Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long) As Double
  Public Declare PtrSafe Function VB_M_DeterminantTriang Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef Problem As Boolean) As Double
  Public Declare PtrSafe Function VB_M_Determinant Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef Problem As Boolean) As Double
  Public Declare PtrSafe Sub VB_M_LUDecomp Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef indx As Long, ByRef d As Double, ByRef Problem As Boolean)
  Public Declare PtrSafe Function VB_M_CholDecomp Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef oMat As Double) As Long
  Public Declare PtrSafe Sub VB_M_EuclidDist2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oDistMat As Double, ByRef w As Double, ByVal iByRows As Boolean)
  Public Declare PtrSafe Function VB_M_IsPositive Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByVal iStrictly As Boolean) As Boolean
  Public Declare PtrSafe Sub VB_M_LogMatrix Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean)
  Public Declare PtrSafe Sub VB_M_SumByCols Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oSums As Double)
  Public Declare PtrSafe Sub VB_M_SumByRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oSums As Double)
  Public Declare PtrSafe Function VB_M_IsDisjTable Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef oNbVar As Long) As Boolean
  Public Declare PtrSafe Sub VB_M_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iAMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal oMat As LongPtr)
  Public Declare PtrSafe Sub VB_M_CopyResize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal n2 As Long, ByVal p2 As Long)
  Public Declare PtrSafe Sub VB_M_ExtractMatToMatDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_ExtractMatToMatStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByVal oMat As LongPtr)
  Public Declare PtrSafe Sub VB_M_CopyResizeStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal oMat As LongPtr, ByVal n2 As Long, ByVal p2 As Long)
  Public Declare PtrSafe Function VB_M_IsColConstant Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long) As Long
  Public Declare PtrSafe Sub VB_M_StandardizeByVect Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_StandardizeByVect2 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_RescaleByVect Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_RescaleByVect2 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean)
  Public Declare PtrSafe Sub VB_M_ReplaceCatByCodes Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByRef NbCat As Long, ByVal Cat As LongPtr, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductHorizAB Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByRef oMat As Double, ByVal p As Long)
  Public Declare PtrSafe Sub VB_M_ProductHorizAB2 Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByRef iop1 As Long, ByRef iMat2 As Double, ByVal p2 As Long)
  Public Declare PtrSafe Sub VB_M_ReplaceStrByCodes Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByRef NbCat As Long, ByVal Cat As LongPtr, ByRef iMissing As Boolean, ByVal iCodeStart As Long, ByRef oMat As Double)
  Public Declare PtrSafe Function VB_M_IsSymmetric Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long) As Boolean
  Public Declare PtrSafe Function VB_M_IsDiagConstant Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long) As Boolean
  Public Declare PtrSafe Sub VB_M_Symmetrize Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iType As Long)
  Public Declare PtrSafe Function VB_M_IsTriangular Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iUpdateT As Boolean) As Long
  Public Declare PtrSafe Function VB_M_CheckIfSimOrDissim Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iApriori As Long) As Long
  Public Declare PtrSafe Sub VB_M_TransformSimToDissim Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long)
  Public Declare PtrSafe Sub VB_M_SetWeightsToZeroForMissing Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal pW As Long)
  Public Declare PtrSafe Function VB_M_InverseTriang Lib "KAVORATB1C.dll" (ByRef iTriangMat As Double, ByVal n As Long, ByVal iIsLower As Boolean, ByRef oInvMat As Double, ByVal Eps As Double) As Long
  Public Declare PtrSafe Sub VB_M_SVDecomp Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, ByVal ldu As Long, ByRef v As Double, ByVal ldv As Long, ByVal job As Long, ByRef info As Long)
  Public Declare PtrSafe Sub VB_M_Center Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_CenterW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_Center2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare PtrSafe Sub VB_M_CenterW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double)
  Public Declare PtrSafe Sub VB_M_Reduce Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_ReduceW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef oMat As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_Reduce2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_ReduceW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_Standardize2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_Standardize3 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMean As Double, ByRef oStdev As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Sub VB_M_StandardizeW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare PtrSafe Function VB_M_FrobeniusNorm Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef iMat2 As Double) As Double
  Public Declare PtrSafe Sub VB_M_ProductByElement Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef iMat2 As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductADiagV Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_SquaredRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_M_SquaredColumns Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_M_CopyBlock Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByVal pStart As Long, ByVal pEnd As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_RemoveCols2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal pStart As Long, ByVal pEnd As Long)
  Public Declare PtrSafe Sub VB_M_RemoveRows2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long)
  Public Declare PtrSafe Sub VB_M_ExtractMatToMatByColDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal pStart As Long, ByVal pEnd As Long, ByRef oMat As Double)
  Public Declare PtrSafe Function VB_M_DeterminantCleaned Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef Problem As Boolean) As Double
  Public Declare PtrSafe Sub VB_M_Min Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMinVect As Double)
  Public Declare PtrSafe Sub VB_M_Max Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMaxVect As Double)
  Public Declare PtrSafe Function VB_M_CholDecompCleaned Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef oMat As Double) As Long
  Public Declare PtrSafe Sub VB_M_CorrMatFromCovMat Lib "KAVORATB1C.dll" (ByRef iCovMat As Double, ByVal p As Long, ByRef oCorrMat As Double)
  Public Declare PtrSafe Function VB_M_IsIn01 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long) As Boolean
  Public Declare PtrSafe Sub VB_M_PasteBlock Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef ioMat As Double, ByVal n2 As Long, ByVal p2 As Long, ByVal nStart As Long, ByVal pStart As Long)
  Public Declare PtrSafe Function VB_M_ProductTrV1BV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iBMat As Double, ByRef iVect2 As Double) As Double
  Public Declare PtrSafe Sub VB_M_CopyToBigger Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal nOut As Long, ByVal pOut As Long)
  Public Declare PtrSafe Sub VB_M_SamplingRandomStratified Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As LongPtr, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare PtrSafe Sub VB_M_SamplingSystematicCentered Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As LongPtr, ByRef idx As Double)
  Public Declare PtrSafe Sub VB_M_SamplingSystematicRdStart Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As LongPtr, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare PtrSafe Sub VB_M_SampleUserDefined Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal oMat As LongPtr, ByRef idx As Double)
  Public Declare PtrSafe Sub VB_M_SamplingWithReplacement Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As LongPtr, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare PtrSafe Sub VB_M_ProductDesignAB2 Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByRef iop1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByVal iConstraintType As Long, ByRef w As Double, ByRef oInterFreqCat As Double)
  Public Declare PtrSafe Sub VB_M_Log10Matrix Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare PtrSafe Sub VB_M_ProductDiagVA Lib "KAVORATB1C.dll" (ByRef iDiagVect As Double, ByVal n As Long, ByRef iMat As Double, ByVal p As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductDiagV1ADiagV2 Lib "KAVORATB1C.dll" (ByRef iDiagVect1 As Double, ByVal n As Long, ByRef iMat As Double, ByVal p As Long, ByRef iDiagVect2 As Double, ByRef oMat As Double)
  Public Declare PtrSafe Function VB_M_Gauss Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef ioMat2 As Double) As Long
  Public Declare PtrSafe Sub VB_M_StandardizeW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean, ByVal isBiasOne As Boolean, ByRef oMat As Double)
  Public Declare PtrSafe Function VB_M_InvGeneralized Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByRef oInvMat As Double, ByVal iEps As Double, ByRef oRank As Long) As Long
  Public Declare PtrSafe Sub VB_M_ProductTrADiagVA Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_ProductADiagVTrA Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare PtrSafe Function VB_M_RemoveRowsInList Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iList As Long, ByVal nOut As Long, ByRef oMat As Double) As Long
  Public Declare PtrSafe Function VB_SortQVectorLng Lib "KAVORATB1C.dll" (ByRef ioVector As Long, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQVectorDbl Lib "KAVORATB1C.dll" (ByRef ioVector As Double, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQVectorStr Lib "KAVORATB1C.dll" (ByVal ioVector As LongPtr, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQMatrixCol Lib "KAVORATB1C.dll" (ByRef ioMatrix As Double, ByVal n As Long, ByVal p As Long, ByVal iCol As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare PtrSafe Sub VB_SortMatrixSeqQDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare PtrSafe Sub VB_SortMatrixSeqQLng Lib "KAVORATB1C.dll" (ByRef iMat As Long, ByVal n As Long, ByVal p As Long)
  Public Declare PtrSafe Function VB_SortQDbl Lib "KAVORATB1C.dll" (ByRef ioSlave As Double, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQLng Lib "KAVORATB1C.dll" (ByRef ioSlave As Long, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Long, ByRef ioSlave2 As Long, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQStr Lib "KAVORATB1C.dll" (ByVal ioSlave As LongPtr, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare PtrSafe Function VB_SortQBool Lib "KAVORATB1C.dll" (ByRef ioSlave As Boolean, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare PtrSafe Function VB_SortDataBy01 Lib "KAVORATB1C.dll" (ByRef iSlave As Double, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare PtrSafe Function VB_SortDataBy01Str Lib "KAVORATB1C.dll" (ByVal iSlave As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare PtrSafe Function VB_SortDataBy01Bool Lib "KAVORATB1C.dll" (ByRef iSlave As Boolean, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare PtrSafe Sub VB_SortApply Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iSortVect As Double, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_SortApplyStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iSortVect As Double, ByVal oMat As LongPtr)
  Public Declare PtrSafe Sub VB_BuildDisjunctiveTable Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As LongPtr, ByRef FreqCat As Double, ByVal pMaxCat As Long, ByRef oMat As Double, ByVal ConstraintType As Long, ByVal LeaveFirstCol As Long)
  Public Declare PtrSafe Sub VB_HMergeVectors Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal NbRowVect1 As Long, ByRef iVect2 As Double, ByVal NbRowVect2 As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_HMergeTableVect Lib "KAVORATB1C.dll" (ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef iVect As Double, ByVal NbRowVect As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_HMergeTableVect2 Lib "KAVORATB1C.dll" (ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef iVect As Double, ByVal NbRowVect As Long)
  Public Declare PtrSafe Sub VB_HMergeVectTable Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal NbRowVect As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_HMergeVectColDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal NbRowVect As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal iCol As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_VMergeVectorsDbl Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByVal p1 As Long, ByRef iVector2 As Double, ByVal p2 As Long, ByRef oVector As Double)
  Public Declare PtrSafe Sub VB_VMergeVectorsDbl2 Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByVal p1 As Long, ByRef iVector2 As Double, ByVal p2 As Long)
  Public Declare PtrSafe Sub VB_VMergeVectorsStr Lib "KAVORATB1C.dll" (ByVal iVector1 As LongPtr, ByVal p1 As Long, ByVal iVector2 As LongPtr, ByVal p2 As Long, ByVal oVector As LongPtr)
  Public Declare PtrSafe Sub VB_VMergeVectorsStr2 Lib "KAVORATB1C.dll" (ByVal iVector1 As LongPtr, ByVal p1 As Long, ByVal iVector2 As LongPtr, ByVal p2 As Long)
  Public Declare PtrSafe Sub VB_HMergeTablesDbl Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_HMergeTablesDbl2 Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare PtrSafe Sub VB_HMergeTablesBool Lib "KAVORATB1C.dll" (ByRef iMat1 As Boolean, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Boolean, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Boolean)
  Public Declare PtrSafe Sub VB_HMergeTablesBool2 Lib "KAVORATB1C.dll" (ByRef iMat1 As Boolean, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Boolean, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare PtrSafe Sub VB_HMergeTablesStr Lib "KAVORATB1C.dll" (ByVal iMat1 As LongPtr, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByVal iMat2 As LongPtr, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByVal oMat As LongPtr)
  Public Declare PtrSafe Sub VB_HMergeTablesStr2 Lib "KAVORATB1C.dll" (ByVal iMat1 As LongPtr, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByVal iMat2 As LongPtr, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare PtrSafe Sub VB_VMergeTablesDbl Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_CopyMatrixColToMatrixCol Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal col As Long, ByRef ioMat As Double, ByVal ColID As Long, ByVal iRedimMat As Boolean)
  Public Declare PtrSafe Sub VB_CopyMatrixColToVector Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal ColID As Long, ByRef oVector As Double)
  Public Declare PtrSafe Sub VB_CopyMatrixRowToMatrixRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal [Line] As Long, ByRef ioMat As Double, ByVal n2 As Long, ByVal RowID As Long, ByVal iRedimMat As Boolean)
  Public Declare PtrSafe Sub VB_CopyMatrixColToOneColMatStr Lib "KAVORATB1C.dll" (ByVal iMat As LongPtr, ByVal n As Long, ByVal iCol As Long, ByVal oVectMat As LongPtr)
  Public Declare PtrSafe Sub VB_GenerateIndicator Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iStart As Long, ByVal iEnd As Long)
  Public Declare PtrSafe Sub VB_GenerateRandomIndicator Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal n1 As Long, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare PtrSafe Sub VB_VMergeVectorsBool2 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Boolean, ByVal n1 As Long, ByRef iVect2 As Boolean, ByVal n2 As Long)
  Public Declare PtrSafe Sub VB_SummarizeAllMissing Lib "KAVORATB1C.dll" (ByVal n As Long, ByRef AllMissingX As Boolean, ByRef AllMissingQ As Boolean, ByRef NbAllMissing As Long, ByRef AllMissing As Boolean)
  Public Declare PtrSafe Function VB_InitVectorToFalse Lib "KAVORATB1C.dll" (ByRef oVector As Boolean, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "KAVORATB1C.dll" (ByVal iValue As Double) As Boolean
  Public Declare PtrSafe Function VB_IsMissingValueStr Lib "KAVORATB1C.dll" (ByVal iValue As LongPtr) As Boolean
  Public Declare PtrSafe Sub VB_SummarizeMissing Lib "KAVORATB1C.dll" (ByVal n As Long, ByRef oNbMissing As Long, ByRef oMissing As Boolean, ByRef iMissing1 As Boolean, ByRef iMissing2 As Boolean, ByRef iMissing3 As Boolean)
  Public Declare PtrSafe Sub VB_RemoveRowsWithMissing Lib "KAVORATB1C.dll" (ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByVal NbMissing As Long, ByRef iMissing As Boolean, ByRef oTable As Double)
  Public Declare PtrSafe Sub VB_RemoveRowsWithMissingStr Lib "KAVORATB1C.dll" (ByVal ioTable As LongPtr, ByVal n As Long, ByVal p As Long, ByVal NbMissing As Long, ByRef iMissing As Boolean, ByVal oTable As LongPtr)
  Public Declare PtrSafe Sub VB_ReplaceMissingObsLabels Lib "KAVORATB1C.dll" (ByVal ioObsLabels As LongPtr, ByVal n As Long, ByRef iMissingObs As Boolean, ByVal iPrefixe As LongPtr)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMean Lib "KAVORATB1C.dll" (ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMode Lib "KAVORATB1C.dll" (ByVal ioTable As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNN Lib "KAVORATB1C.dll" (ByRef iTable1Dbl As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMissing As Boolean, ByRef iTable2Dbl As Double, ByVal p2 As Long, ByVal iTable3Str As LongPtr, ByVal p3 As Long, ByRef w As Double)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingMeanPred Lib "KAVORATB1C.dll" (ByRef iTable As Double, ByVal nin As Long, ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingModePred Lib "KAVORATB1C.dll" (ByVal iTable As LongPtr, ByVal nin As Long, ByVal ioTable As LongPtr, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare PtrSafe Sub VB_EstimateRowsWithMissingNNPred Lib "KAVORATB1C.dll" (ByRef iiTable1Dbl As Double, ByVal nin As Long, ByRef iTable1Dbl As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMissing As Boolean, ByRef iiTable2Dbl As Double, ByRef iTable2Dbl As Double, ByVal p2 As Long, ByVal iiTable3Str As LongPtr, ByVal iTable3Str As LongPtr, ByVal p3 As Long, ByRef w As Double)
  Public Declare PtrSafe Function VB_CorrelPearson Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByRef iVector2 As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare PtrSafe Function VB_MAPE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double
  Public Declare PtrSafe Function VB_RMSE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByVal nY As Long, ByVal p As Long, ByRef PredY As Double, ByVal DF As Long) As Double
  Public Declare PtrSafe Sub VB_ComputeNewVar Lib "KAVORATB1C.dll" (ByRef LCombines As Double, ByVal n As Long, ByVal p As Long, ByRef VarCov As Double, ByRef NewVarVect As Double, ByRef NewVarCov As Double)
  Public Declare PtrSafe Sub VB_FilterEigen Lib "KAVORATB1C.dll" (ByRef iEigenValues As Double, ByVal p As Long, ByVal iDoFilter As Boolean, ByVal iFilter As Double, ByVal iMinPerc As Double, ByVal iMaxFact As Long, ByVal iMaxVal As Double, ByRef oNbEigen As Long, ByRef oDispEigen As Long, ByRef Percent As Double)
  Public Declare PtrSafe Function RunOLSBasic Lib "KAVORATB1C.dll" (ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef Y As Double, ByRef w As Double, ByVal iPolyDegree As Long, ByVal iInteract2 As Boolean, ByVal iFixedIntercept As Boolean, ByVal iTolerance As Double, ByRef oCoeffs As Double, ByRef oPredY As Double) As Long
  Public Declare PtrSafe Function RunOLSBasic2 Lib "KAVORATB1C.dll" (ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef Y As Double, ByRef w As Double, ByVal iPolyDegree As Long, ByVal iInteract2 As Boolean, ByVal iFixedIntercept As Boolean, ByVal iTolerance As Double, ByRef oCoeffs As Double, ByRef oStDevCoeffs As Double, ByRef oPredY As Double) As Long
  Public Declare PtrSafe Sub VB_CheckTolerance Lib "KAVORATB1C.dll" (ByRef R As Double, ByVal p As Long, ByVal NbFactors As Long, ByRef FactActive As Long, ByRef FactType As Long, ByRef FactSubParents As Long, ByVal Tolerance As Double, ByVal FastRemoval As Boolean, ByVal iCheckall As Boolean, ByVal WithAnEq0 As Boolean, ByRef oNotToleratedVars As Long, ByRef oTolerances As Double, ByRef oVIF As Double)
  Public Declare PtrSafe Sub ComputeCosines Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oCosines As Double)
  Public Declare PtrSafe Sub VB_BiplotTransData Lib "KAVORATB1C.dll" (ByRef iScores As Double, ByRef iScoresSupp As Double, ByRef iLoadings As Double, ByVal n As Long, ByVal nSupp As Long, ByVal p As Long, ByVal iNbEigen As Long, ByRef iEigenValues As Double, ByVal iScale As Double, ByVal iExpo As Double, ByRef oNewScores As Double, ByRef oNewLoadings As Double)
  Public Declare PtrSafe Function NewtonRaphson Lib "KAVORATB1C.dll" (ByRef ioParamVect As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv1 As Double, ByRef iDeriv2 As Double, ByVal iConvergence As Double, ByRef oStdErrVect As Double, ByRef InvDeriv2 As Double, ByVal Checkchange As Boolean, ByVal Maxchange As Double) As Long
  Public Declare PtrSafe Function CleanConstraintsAndInvert Lib "KAVORATB1C.dll" (ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv As Double, ByRef oInvDeriv As Double) As Long
  Public Declare PtrSafe Function CleanConstraintsAndInvertTriang Lib "KAVORATB1C.dll" (ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv As Double, ByVal iIsLower As Boolean, ByRef oInvDeriv As Double) As Long
  Public Declare PtrSafe Function VB_MPE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double
  Public Declare PtrSafe Function VB_MAE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double

  Private Declare PtrSafe Function SysReAllocString Lib "oleaut32" (ByVal target As LongPtr, ByVal source As LongPtr) As Long
  Private Declare PtrSafe Sub SysFreeString Lib "oleaut32" (ByVal text As LongPtr)

  Public Function TakeString(ByVal result As LongPtr) As String
#Else
  Public Declare Function VB_V_Sum Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Sub VB_V_MinMax Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef VMin As Double, ByRef VMax As Double, ByRef iMissing As Boolean)
  Public Declare Function VB_V_Min Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean) As Double
  Public Declare Function VB_V_Max Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean) As Double
  Public Declare Function VB_V_MaxInt Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long, ByRef iMissing As Boolean) As Long
  Public Declare Sub VB_V_PlusVal Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal ival As Double, ByRef iMissing As Boolean)
  Public Declare Function VB_V_ProductTrV1V2 Lib "KAVORATB1C.dll" (ByRef iV1 As Double, ByVal n As Long, ByRef iV2 As Double) As Double
  Public Declare Function VB_V_Mean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Function VB_V_MeanAbs Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Function VB_V_Freq Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef w As Double, ByVal iValue As Double, ByVal iEpsilon As Double) As Double
  Public Declare Function VB_V_FreqLng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long, ByRef w As Double, ByVal iValue As Long) As Long
  Public Declare Function VB_V_FreqStr Lib "KAVORATB1C.dll" (ByVal iVector As Long, ByVal n As Long, ByRef w As Double, ByVal iValue As Long) As Double
  Public Declare Function VB_V_Var Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare Function VB_V_Stdev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare Sub VB_V_MeanVar Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Sub VB_V_MeanStdev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Function VB_V_Mode Lib "KAVORATB1C.dll" (ByVal iVector As Long, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Long
  Public Declare Sub VB_V_GetMissingStr Lib "KAVORATB1C.dll" (ByVal iVectMat As Long, ByVal n As Long, ByRef iMissing As Boolean, ByRef oMissing As Boolean)
  Public Declare Function VB_V_HarmonicMean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Sub VB_V_GetMissingDbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef oMissing As Boolean)
  Public Declare Function VB_V_IsPositive Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal n As Long, ByVal iStrictly As Boolean) As Boolean
  Public Declare Function VB_V_IsWeights Lib "KAVORATB1C.dll" (ByRef iW As Double, ByVal nW As Long) As Boolean
  Public Declare Function VB_V_IsCWeights Lib "KAVORATB1C.dll" (ByRef iW As Double, ByVal nW As Long) As Boolean
  Public Declare Function VB_V_IsIndicator Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal nV As Long) As Boolean
  Public Declare Function VB_V_Is01 Lib "KAVORATB1C.dll" (ByRef iV As Double, ByVal nV As Long) As Boolean
  Public Declare Function VB_V_NbMissing Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Long
  Public Declare Function VB_V_NbMissingStr Lib "KAVORATB1C.dll" (ByVal iVector As Long, ByVal n As Long) As Long
  Public Declare Function VB_V_NbNonMissing Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Long
  Public Declare Function VB_V_Sum2Dbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Double
  Public Declare Function VB_V_Sum2Lng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long) As Long
  Public Declare Function VB_V_Quantile Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByVal Prob As Double) As Double
  Public Declare Function VB_V_QuantileW Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef w As Double, ByVal Prob As Double) As Double
  Public Declare Function VB_V_QuantileM Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef missing As Boolean, ByVal Prob As Double) As Double
  Public Declare Function VB_V_QuantileMW Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByRef missing As Boolean, ByRef w As Double, ByVal Prob As Double) As Double
  Public Declare Sub VB_V_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare Sub VB_V_DuplicateLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByRef oVect As Long)
  Public Declare Sub VB_V_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iVect As Long, ByVal n As Long, ByVal oVect As Long)
  Public Declare Function VB_V_IsConstant Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Boolean
  Public Declare Function VB_V_IsConstantBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Boolean
  Public Declare Sub VB_V_RemoveVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ID As Long, ByRef oVect As Double)
  Public Declare Function VB_V_NbTrue Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Long
  Public Declare Function VB_V_SumFromTo Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iFrom As Long, ByVal iTo As Long) As Double
  Public Declare Function VB_V_SumFromToLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByVal iFrom As Long, ByVal iTo As Long) As Long
  Public Declare Sub VB_V_MeanVarSkewPKurtP Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef Mean As Double, ByRef Var As Double, ByRef SkewP As Double, ByRef KurtP As Double, ByRef SkewF As Double, ByRef KurtF As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Function VB_V_MedianAbsDev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iMedian As Double, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Function VB_V_MeanAbsDev Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iMean As Double, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Sub VB_V_GMeanGSD Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByRef oGMean As Double, ByRef oGSD As Double)
  Public Declare Sub VB_V_Standardize Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByRef oVector As Double)
  Public Declare Sub VB_V_Standardize2 Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_V_Rescale Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean, ByRef oVector As Double)
  Public Declare Sub VB_V_Rescale2 Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean)
  Public Declare Sub VB_V_ProductHorizV1V2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal p1 As Long, ByRef iVect2 As Double, ByVal p2 As Long, ByRef oVect As Double, ByVal p As Long)
  Public Declare Sub VB_V_ProductHorizV1V22 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Double, ByRef iop1 As Long, ByRef iVect2 As Double, ByVal p2 As Long)
  Public Declare Function VB_V_V1GreaterThanMatCols Lib "KAVORATB1C.dll" (ByRef w As Double, ByVal n As Long, ByRef Y As Double, ByVal p As Long) As Boolean
  Public Declare Function VB_V_SumSq Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Double
  Public Declare Function VB_V_SumSqW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef w As Double) As Double
  Public Declare Sub VB_V_Norm Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long)
  Public Declare Sub VB_V_NormToVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double)
  Public Declare Sub VB_V_NormW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef w As Double)
  Public Declare Sub VB_V_NormToValW Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double, ByRef w As Double)
  Public Declare Sub VB_V_Set1toNDbl Lib "KAVORATB1C.dll" (ByRef oVect As Double, ByVal n As Long)
  Public Declare Sub VB_V_Set1toNLng Lib "KAVORATB1C.dll" (ByRef oVect As Long, ByVal n As Long)
  Public Declare Sub VB_V_GetRanksLng Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oRanks As Long)
  Public Declare Sub VB_V_GetRanksDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oRanks As Double)
  Public Declare Sub VB_V_GetPositionInMatNNm1o2 Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare Sub VB_V_GetPositionInMatNNp1o2 Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare Sub VB_V_GetPositionInMatNN Lib "KAVORATB1C.dll" (ByVal iPos As Long, ByVal n As Long, ByRef oX As Long, ByRef oY As Long)
  Public Declare Function VB_V_SetToValue Lib "KAVORATB1C.dll" (ByRef oVector As Double, ByVal n As Long, ByVal iValue As Double) As Long
  Public Declare Function VB_V_SetToValueLng Lib "KAVORATB1C.dll" (ByRef oVector As Long, ByVal n As Long, ByVal iValue As Long) As Long
  Public Declare Sub VB_V_ReplaceDoubles Lib "KAVORATB1C.dll" (ByVal LabelX As Long, ByVal n As Long)
  Public Declare Sub VB_V_ReplaceVal Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iVal1 As Double, ByVal iVal2 As Double, ByRef oVect As Double)
  Public Declare Sub VB_V_ReplaceVal2 Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iVal1 As Double, ByVal iVal2 As Double)
  Public Declare Sub VB_V_GetRanksTiesDbl Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef w As Double, ByRef oRanks As Double, ByRef oNbTiedVal As Long, ByRef oNbTies As Double)
  Public Declare Sub VB_V_GetRanksTiesIntDbl Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef w As Double, ByRef oRanks As Double, ByRef oNbTiedVal As Long, ByRef oNbTies As Double)
  Public Declare Function VB_V_NbTrueFromTo Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByVal nStart As Long, ByVal nEnd As Long) As Long
  Public Declare Function VB_V_MaxAndMaxPos Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oMaxPos As Long) As Double
  Public Declare Function VB_V_MinAndMinPos Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oMinPos As Long) As Double
  Public Declare Function VB_V_DiffSq Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double) As Double
  Public Declare Sub VB_V_ProductV1V22 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Double, ByVal n As Long, ByRef iVect2 As Double)
  Public Declare Sub VB_V_ProductV1V2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double, ByRef oVect As Double)
  Public Declare Function VB_V_V1inferiorV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double) As Boolean
  Public Declare Sub VB_V_SetToValueStr Lib "KAVORATB1C.dll" (ByVal oVect As Long, ByVal n As Long, ByVal ival As Long)
  Public Declare Function VB_V_NbDistinct Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long) As Long
  Public Declare Sub VB_V_ExtractDistinct Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double, ByRef k As Long)
  Public Declare Function VB_V_TimeIntervalSize Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iDoSort As Boolean) As Double
  Public Declare Function VB_V_IsSorted Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iStrictly As Boolean) As Boolean
  Public Declare Sub VB_V_ProductV1TrV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iVect2 As Double, ByRef oMat As Double)
  Public Declare Sub VB_V_ReverseDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare Sub VB_V_ReverseBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByRef oVect As Boolean)
  Public Declare Function VB_V_Gauss Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByRef ioVect As Double) As Long
  Public Declare Function VB_V_IsInInterval Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal iLower As Double, ByVal iUpper As Double, ByVal iStrictly As Boolean, ByVal iIgnoreMissing As Boolean) As Boolean
  Public Declare Function VB_V_NbIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByVal ival As Double) As Double
  Public Declare Function VB_V_SumIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double) As Double
  Public Declare Function VB_V_MeanIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double) As Double
  Public Declare Function VB_V_VarIf Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iVect2 As Double, ByVal ival As Double, ByVal iBiased As Boolean) As Double
  Public Declare Function VB_M_Sweep Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal k As Long) As Long
  Public Declare Function VB_M_Transpose Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oTransMat As Double) As Long
  Public Declare Function VB_M_Transpose2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long) As Long
  Public Declare Function VB_M_Inverse1 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef oInvMat As Double, ByVal Eps As Double) As Long
  Public Declare Function VB_M_StandardizeKnownMeansStDev Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef oMat As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean) As Long
  Public Declare Function VB_M_ProductAB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double) As Long
  Public Declare Function VB_M_ProductABMissing Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double) As Long
  Public Declare Function VB_M_ProductBV Lib "KAVORATB1C.dll" (ByRef iBMat As Double, ByVal n As Long, ByVal p As Long, ByRef iAVec As Double, ByRef oCVec As Double) As Long
  Public Declare Function VB_M_Eigen Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByRef oEigenVal As Double, ByRef oEigenVect As Double, ByVal n As Long, ByVal iSort As Boolean) As Long
  Public Declare Function VB_M_MeanStDev Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean, ByVal MissingPerCol As Boolean) As Long
  Public Declare Function VB_M_Mean Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef iMissing As Boolean, ByRef w As Double) As Long
  Public Declare Function VB_M_MeanStDevVar Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Long
  Public Declare Function VB_M_CovCorrAndMeanStDevVar Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef CovCorr As Double, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByVal Correlations As Boolean, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean, ByVal ZeroMeaniMat As Boolean, ByVal StandardizeiMat As Boolean) As Long
  Public Declare Sub VB_M_CorrMatMat Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByRef CovCorr As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Correlations As Boolean, ByVal Determination As Boolean, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Sub VB_M_Normalize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef Norm As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Function VB_M_CovCorr Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef CovCorr As Double, ByVal Correlations As Boolean, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Long
  Public Declare Sub VB_M_NormalizeMatrix Lib "KAVORATB1C.dll" (ByRef ioM1 As Double, ByVal n1 As Long, ByVal p As Long, ByRef ioM2 As Double, ByVal n2 As Long, ByRef ioM3 As Double, ByVal n3 As Long)
  Public Declare Sub VB_M_Standardize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Sub VB_M_StandardizeMatrix Lib "KAVORATB1C.dll" (ByRef ioM1 As Double, ByVal n1 As Long, ByVal p As Long, ByRef ioM2 As Double, ByVal n2 As Long, ByRef ioM3 As Double, ByVal n3 As Long)
  Public Declare Sub VB_M_InfoQuali Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal Mode As Long, ByRef FreqMode As Double, ByRef NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As Long, ByRef FreqCat As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal DoSort As Boolean)
  Public Declare Sub VB_M_InfoQualiValid Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal nCat As Long, ByVal NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As Long, ByRef FreqCatValid As Double, ByRef Problem As Boolean, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare Sub VB_M_MeanStDevVarOneInMat Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal IDCol As Long, ByRef Mean As Double, ByRef StDev As Double, ByRef Var As Double, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean)
  Public Declare Function VB_M_IsLong Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long) As Boolean
  Public Declare Sub VB_M_ReplaceMissingByVal Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal ival As Double)
  Public Declare Sub VB_M_ReplaceMissingByStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal ival As Long)
  Public Declare Sub VB_M_RemoveCol Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iCol As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_RemoveRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iRow As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_MoveRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iRow As Long, ByVal iNewPos As Long)
  Public Declare Sub VB_M_MinMax Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef VMin As Double, ByRef VMax As Double, ByRef iMissing As Boolean, ByVal MissingPerCol As Boolean)
  Public Declare Sub VB_M_AllMissingRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef AllMissing As Boolean)
  Public Declare Sub VB_M_AllMissingRowsStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef AllMissing As Boolean)
  Public Declare Sub VB_M_NbMissing Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef NbMissing As Long)
  Public Declare Sub VB_M_NbMissingStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByRef NbMissing As Long)
  Public Declare Sub VB_M_NbNonMissing Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef NbNonMissing As Long)
  Public Declare Sub VB_M_Sums1As2B Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal s1 As Double, ByVal S2 As Double, ByRef oCMat As Double)
  Public Declare Sub VB_M_ProductVB Lib "KAVORATB1C.dll" (ByRef iAVec As Double, ByVal n As Long, ByRef iBMat As Double, ByVal p As Long, ByRef oCVec As Double)
  Public Declare Sub VB_M_ProductTrAB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double)
  Public Declare Sub VB_M_ProductATrB Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByVal m As Long, ByRef oCMat As Double)
  Public Declare Sub VB_M_ProductTrAA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oTrAAMat As Double)
  Public Declare Sub VB_M_ProductATrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oATrAMat As Double)
  Public Declare Sub VB_M_ProductADTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oADTrA As Double)
  Public Declare Sub VB_M_ProductTrADA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oTrADA As Double)
  Public Declare Sub VB_M_ProductADiag Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oADiagMat As Double)
  Public Declare Sub VB_M_ProductTrADiag Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagMat As Double, ByRef oTrADiagMat As Double)
  Public Declare Sub VB_M_ProductABTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare Sub VB_M_ProductTrABA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare Function VB_M_ProductTrVBV Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iBMat As Double) As Double
  Public Declare Sub VB_M_ProductTrAinvBA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare Function VB_M_ProductTrVinvBV Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef iBMat As Double) As Double
  Public Declare Sub VB_M_ProductAinvBTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iBMat As Double, ByRef oCMat As Double)
  Public Declare Sub VB_M_ScalarsA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef osAMat As Double)
  Public Declare Sub VB_M_ScalarsA2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double)
  Public Declare Sub VB_M_ScalarsTrA Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal s As Double, ByRef osTrAMat As Double)
  Public Declare Sub VB_M_APlusVal Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByVal ival As Double, ByRef oAPlusVal As Double)
  Public Declare Sub VB_M_Square Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare Function VB_M_Trace Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long) As Double
  Public Declare Function VB_M_DeterminantTriang Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef Problem As Boolean) As Double
  Public Declare Function VB_M_Determinant Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef Problem As Boolean) As Double
  Public Declare Sub VB_M_LUDecomp Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef indx As Long, ByRef d As Double, ByRef Problem As Boolean)
  Public Declare Function VB_M_CholDecomp Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByRef oMat As Double) As Long
  Public Declare Sub VB_M_EuclidDist2 Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oDistMat As Double, ByRef w As Double, ByVal iByRows As Boolean)
  Public Declare Function VB_M_IsPositive Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByVal iStrictly As Boolean) As Boolean
  Public Declare Sub VB_M_LogMatrix Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean)
  Public Declare Sub VB_M_SumByCols Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oSums As Double)
  Public Declare Sub VB_M_SumByRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oSums As Double)
  Public Declare Function VB_M_IsDisjTable Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef missing As Boolean, ByRef oNbVar As Long) As Boolean
  Public Declare Sub VB_M_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iAMat As Long, ByVal n As Long, ByVal p As Long, ByVal oMat As Long)
  Public Declare Sub VB_M_CopyResize Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal n2 As Long, ByVal p2 As Long)
  Public Declare Sub VB_M_ExtractMatToMatDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_ExtractMatToMatStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByVal oMat As Long)
  Public Declare Sub VB_M_CopyResizeStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal oMat As Long, ByVal n2 As Long, ByVal p2 As Long)
  Public Declare Function VB_M_IsColConstant Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long) As Long
  Public Declare Sub VB_M_StandardizeByVect Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByRef oMat As Double)
  Public Declare Sub VB_M_StandardizeByVect2 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_RescaleByVect Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean, ByRef oMat As Double)
  Public Declare Sub VB_M_RescaleByVect2 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal iLowerBound As Double, ByVal iUpperBound As Double, ByRef iMissing As Boolean)
  Public Declare Sub VB_M_ReplaceCatByCodes Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByRef NbCat As Long, ByVal Cat As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_ProductHorizAB Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByRef oMat As Double, ByVal p As Long)
  Public Declare Sub VB_M_ProductHorizAB2 Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByRef iop1 As Long, ByRef iMat2 As Double, ByVal p2 As Long)
  Public Declare Sub VB_M_ReplaceStrByCodes Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByRef NbCat As Long, ByVal Cat As Long, ByRef iMissing As Boolean, ByVal iCodeStart As Long, ByRef oMat As Double)
  Public Declare Function VB_M_IsSymmetric Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long) As Boolean
  Public Declare Function VB_M_IsDiagConstant Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long) As Boolean
  Public Declare Sub VB_M_Symmetrize Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iType As Long)
  Public Declare Function VB_M_IsTriangular Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iUpdateT As Boolean) As Long
  Public Declare Function VB_M_CheckIfSimOrDissim Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal iApriori As Long) As Long
  Public Declare Sub VB_M_TransformSimToDissim Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long)
  Public Declare Sub VB_M_SetWeightsToZeroForMissing Lib "KAVORATB1C.dll" (ByRef t As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal pW As Long)
  Public Declare Function VB_M_InverseTriang Lib "KAVORATB1C.dll" (ByRef iTriangMat As Double, ByVal n As Long, ByVal iIsLower As Boolean, ByRef oInvMat As Double, ByVal Eps As Double) As Long
  Public Declare Sub VB_M_SVDecomp Lib "KAVORATB1C.dll" (ByRef X As Double, ByVal n As Long, ByVal p As Long, ByRef s As Double, ByRef u As Double, ByVal ldu As Long, ByRef v As Double, ByVal ldv As Long, ByVal job As Long, ByRef info As Long)
  Public Declare Sub VB_M_Center Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_CenterW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef oMat As Double)
  Public Declare Sub VB_M_Center2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare Sub VB_M_CenterW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double)
  Public Declare Sub VB_M_Reduce Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_ReduceW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByRef oMat As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_Reduce2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_ReduceW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_Standardize2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_Standardize3 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMean As Double, ByRef oStdev As Double, ByVal Unbiased As Boolean)
  Public Declare Sub VB_M_StandardizeW2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean)
  Public Declare Function VB_M_FrobeniusNorm Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef iMat2 As Double) As Double
  Public Declare Sub VB_M_ProductByElement Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef iMat2 As Double, ByRef oMat As Double)
  Public Declare Sub VB_M_ProductADiagV Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare Sub VB_M_SquaredRows Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oVect As Double)
  Public Declare Sub VB_M_SquaredColumns Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oVect As Double)
  Public Declare Sub VB_M_CopyBlock Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long, ByVal pStart As Long, ByVal pEnd As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_RemoveCols2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal pStart As Long, ByVal pEnd As Long)
  Public Declare Sub VB_M_RemoveRows2 Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long, ByVal nStart As Long, ByVal nEnd As Long)
  Public Declare Sub VB_M_ExtractMatToMatByColDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal pStart As Long, ByVal pEnd As Long, ByRef oMat As Double)
  Public Declare Function VB_M_DeterminantCleaned Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef Problem As Boolean) As Double
  Public Declare Sub VB_M_Min Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMinVect As Double)
  Public Declare Sub VB_M_Max Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMaxVect As Double)
  Public Declare Function VB_M_CholDecompCleaned Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef oMat As Double) As Long
  Public Declare Sub VB_M_CorrMatFromCovMat Lib "KAVORATB1C.dll" (ByRef iCovMat As Double, ByVal p As Long, ByRef oCorrMat As Double)
  Public Declare Function VB_M_IsIn01 Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long) As Boolean
  Public Declare Sub VB_M_PasteBlock Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef ioMat As Double, ByVal n2 As Long, ByVal p2 As Long, ByVal nStart As Long, ByVal pStart As Long)
  Public Declare Function VB_M_ProductTrV1BV2 Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal n As Long, ByRef iBMat As Double, ByRef iVect2 As Double) As Double
  Public Declare Sub VB_M_CopyToBigger Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double, ByVal nOut As Long, ByVal pOut As Long)
  Public Declare Sub VB_M_SamplingRandomStratified Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As Long, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare Sub VB_M_SamplingSystematicCentered Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As Long, ByRef idx As Double)
  Public Declare Sub VB_M_SamplingSystematicRdStart Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As Long, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare Sub VB_M_SampleUserDefined Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal oMat As Long, ByRef idx As Double)
  Public Declare Sub VB_M_SamplingWithReplacement Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal SampleSize As Long, ByVal oMat As Long, ByRef idx As Double, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare Sub VB_M_ProductDesignAB2 Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByRef iop1 As Long, ByRef iMat2 As Double, ByVal p2 As Long, ByVal iConstraintType As Long, ByRef w As Double, ByRef oInterFreqCat As Double)
  Public Declare Sub VB_M_Log10Matrix Lib "KAVORATB1C.dll" (ByRef ioMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare Sub VB_M_ProductDiagVA Lib "KAVORATB1C.dll" (ByRef iDiagVect As Double, ByVal n As Long, ByRef iMat As Double, ByVal p As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_ProductDiagV1ADiagV2 Lib "KAVORATB1C.dll" (ByRef iDiagVect1 As Double, ByVal n As Long, ByRef iMat As Double, ByVal p As Long, ByRef iDiagVect2 As Double, ByRef oMat As Double)
  Public Declare Function VB_M_Gauss Lib "KAVORATB1C.dll" (ByRef ioMat1 As Double, ByVal n As Long, ByVal p As Long, ByRef ioMat2 As Double) As Long
  Public Declare Sub VB_M_StandardizeW Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef w As Double, ByVal Unbiased As Boolean, ByVal isBiasOne As Boolean, ByRef oMat As Double)
  Public Declare Function VB_M_InvGeneralized Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByRef oInvMat As Double, ByVal iEps As Double, ByRef oRank As Long) As Long
  Public Declare Sub VB_M_ProductTrADiagVA Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare Sub VB_M_ProductADiagVTrA Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iDiagVect As Double, ByRef oMat As Double)
  Public Declare Function VB_M_RemoveRowsInList Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iList As Long, ByVal nOut As Long, ByRef oMat As Double) As Long
  Public Declare Function VB_SortQVectorLng Lib "KAVORATB1C.dll" (ByRef ioVector As Long, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare Function VB_SortQVectorDbl Lib "KAVORATB1C.dll" (ByRef ioVector As Double, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare Function VB_SortQVectorStr Lib "KAVORATB1C.dll" (ByVal ioVector As Long, ByVal n As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare Function VB_SortQMatrixCol Lib "KAVORATB1C.dll" (ByRef ioMatrix As Double, ByVal n As Long, ByVal p As Long, ByVal iCol As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByVal iSortdown As Boolean) As Long
  Public Declare Sub VB_SortMatrixSeqQDbl Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long)
  Public Declare Sub VB_SortMatrixSeqQLng Lib "KAVORATB1C.dll" (ByRef iMat As Long, ByVal n As Long, ByVal p As Long)
  Public Declare Function VB_SortQDbl Lib "KAVORATB1C.dll" (ByRef ioSlave As Double, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare Function VB_SortQLng Lib "KAVORATB1C.dll" (ByRef ioSlave As Long, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Long, ByRef ioSlave2 As Long, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare Function VB_SortQStr Lib "KAVORATB1C.dll" (ByVal ioSlave As Long, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare Function VB_SortQBool Lib "KAVORATB1C.dll" (ByRef ioSlave As Boolean, ByVal n As Long, ByVal pSlave As Long, ByVal iLowerBound As Long, ByVal iUpperBound As Long, ByRef ioMaster As Double, ByRef ioSlave2 As Double, ByVal pSlave2 As Long, ByVal iSortdown As Boolean, ByVal updateMaster As Boolean) As Long
  Public Declare Function VB_SortDataBy01 Lib "KAVORATB1C.dll" (ByRef iSlave As Double, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare Function VB_SortDataBy01Str Lib "KAVORATB1C.dll" (ByVal iSlave As Long, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare Function VB_SortDataBy01Bool Lib "KAVORATB1C.dll" (ByRef iSlave As Boolean, ByVal n As Long, ByVal p As Long, ByRef iMaster As Double, ByVal nOut As Long, ByVal KeepInitialOrder As Boolean) As Long
  Public Declare Sub VB_SortApply Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef iSortVect As Double, ByRef oMat As Double)
  Public Declare Sub VB_SortApplyStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByRef iSortVect As Double, ByVal oMat As Long)
  Public Declare Sub VB_BuildDisjunctiveTable Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal p As Long, ByVal NbCatTotal As Long, ByRef NbCat As Long, ByVal Cat As Long, ByRef FreqCat As Double, ByVal pMaxCat As Long, ByRef oMat As Double, ByVal ConstraintType As Long, ByVal LeaveFirstCol As Long)
  Public Declare Sub VB_HMergeVectors Lib "KAVORATB1C.dll" (ByRef iVect1 As Double, ByVal NbRowVect1 As Long, ByRef iVect2 As Double, ByVal NbRowVect2 As Long, ByRef oMat As Double)
  Public Declare Sub VB_HMergeTableVect Lib "KAVORATB1C.dll" (ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef iVect As Double, ByVal NbRowVect As Long, ByRef oMat As Double)
  Public Declare Sub VB_HMergeTableVect2 Lib "KAVORATB1C.dll" (ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef iVect As Double, ByVal NbRowVect As Long)
  Public Declare Sub VB_HMergeVectTable Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal NbRowVect As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare Sub VB_HMergeVectColDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal NbRowVect As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal iCol As Long, ByRef oMat As Double)
  Public Declare Sub VB_VMergeVectorsDbl Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByVal p1 As Long, ByRef iVector2 As Double, ByVal p2 As Long, ByRef oVector As Double)
  Public Declare Sub VB_VMergeVectorsDbl2 Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByVal p1 As Long, ByRef iVector2 As Double, ByVal p2 As Long)
  Public Declare Sub VB_VMergeVectorsStr Lib "KAVORATB1C.dll" (ByVal iVector1 As Long, ByVal p1 As Long, ByVal iVector2 As Long, ByVal p2 As Long, ByVal oVector As Long)
  Public Declare Sub VB_VMergeVectorsStr2 Lib "KAVORATB1C.dll" (ByVal iVector1 As Long, ByVal p1 As Long, ByVal iVector2 As Long, ByVal p2 As Long)
  Public Declare Sub VB_HMergeTablesDbl Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare Sub VB_HMergeTablesDbl2 Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare Sub VB_HMergeTablesBool Lib "KAVORATB1C.dll" (ByRef iMat1 As Boolean, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Boolean, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Boolean)
  Public Declare Sub VB_HMergeTablesBool2 Lib "KAVORATB1C.dll" (ByRef iMat1 As Boolean, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Boolean, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare Sub VB_HMergeTablesStr Lib "KAVORATB1C.dll" (ByVal iMat1 As Long, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByVal iMat2 As Long, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByVal oMat As Long)
  Public Declare Sub VB_HMergeTablesStr2 Lib "KAVORATB1C.dll" (ByVal iMat1 As Long, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByVal iMat2 As Long, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long)
  Public Declare Sub VB_VMergeTablesDbl Lib "KAVORATB1C.dll" (ByRef iMat1 As Double, ByVal NbRowMat1 As Long, ByVal NbColMat1 As Long, ByRef iMat2 As Double, ByVal NbRowMat2 As Long, ByVal NbColMat2 As Long, ByRef oMat As Double)
  Public Declare Sub VB_CopyMatrixColToMatrixCol Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal col As Long, ByRef ioMat As Double, ByVal ColID As Long, ByVal iRedimMat As Boolean)
  Public Declare Sub VB_CopyMatrixColToVector Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal ColID As Long, ByRef oVector As Double)
  Public Declare Sub VB_CopyMatrixRowToMatrixRow Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByVal [Line] As Long, ByRef ioMat As Double, ByVal n2 As Long, ByVal RowID As Long, ByVal iRedimMat As Boolean)
  Public Declare Sub VB_CopyMatrixColToOneColMatStr Lib "KAVORATB1C.dll" (ByVal iMat As Long, ByVal n As Long, ByVal iCol As Long, ByVal oVectMat As Long)
  Public Declare Sub VB_GenerateIndicator Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal iStart As Long, ByVal iEnd As Long)
  Public Declare Sub VB_GenerateRandomIndicator Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByVal n1 As Long, ByRef ioSeed As Long, ByVal iSeedInit As Boolean, ByRef oSeed As Long)
  Public Declare Sub VB_VMergeVectorsBool2 Lib "KAVORATB1C.dll" (ByRef ioVect1 As Boolean, ByVal n1 As Long, ByRef iVect2 As Boolean, ByVal n2 As Long)
  Public Declare Sub VB_SummarizeAllMissing Lib "KAVORATB1C.dll" (ByVal n As Long, ByRef AllMissingX As Boolean, ByRef AllMissingQ As Boolean, ByRef NbAllMissing As Long, ByRef AllMissing As Boolean)
  Public Declare Function VB_InitVectorToFalse Lib "KAVORATB1C.dll" (ByRef oVector As Boolean, ByVal n As Long) As Long
  Public Declare Function VB_IsMissingValueDbl Lib "KAVORATB1C.dll" (ByVal iValue As Double) As Boolean
  Public Declare Function VB_IsMissingValueStr Lib "KAVORATB1C.dll" (ByVal iValue As Long) As Boolean
  Public Declare Sub VB_SummarizeMissing Lib "KAVORATB1C.dll" (ByVal n As Long, ByRef oNbMissing As Long, ByRef oMissing As Boolean, ByRef iMissing1 As Boolean, ByRef iMissing2 As Boolean, ByRef iMissing3 As Boolean)
  Public Declare Sub VB_RemoveRowsWithMissing Lib "KAVORATB1C.dll" (ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByVal NbMissing As Long, ByRef iMissing As Boolean, ByRef oTable As Double)
  Public Declare Sub VB_RemoveRowsWithMissingStr Lib "KAVORATB1C.dll" (ByVal ioTable As Long, ByVal n As Long, ByVal p As Long, ByVal NbMissing As Long, ByRef iMissing As Boolean, ByVal oTable As Long)
  Public Declare Sub VB_ReplaceMissingObsLabels Lib "KAVORATB1C.dll" (ByVal ioObsLabels As Long, ByVal n As Long, ByRef iMissingObs As Boolean, ByVal iPrefixe As Long)
  Public Declare Sub VB_EstimateRowsWithMissingMean Lib "KAVORATB1C.dll" (ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare Sub VB_EstimateRowsWithMissingMode Lib "KAVORATB1C.dll" (ByVal ioTable As Long, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare Sub VB_EstimateRowsWithMissingNN Lib "KAVORATB1C.dll" (ByRef iTable1Dbl As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMissing As Boolean, ByRef iTable2Dbl As Double, ByVal p2 As Long, ByVal iTable3Str As Long, ByVal p3 As Long, ByRef w As Double)
  Public Declare Sub VB_EstimateRowsWithMissingMeanPred Lib "KAVORATB1C.dll" (ByRef iTable As Double, ByVal nin As Long, ByRef ioTable As Double, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare Sub VB_EstimateRowsWithMissingModePred Lib "KAVORATB1C.dll" (ByVal iTable As Long, ByVal nin As Long, ByVal ioTable As Long, ByVal n As Long, ByVal p As Long, ByRef iMissing As Boolean, ByRef w As Double)
  Public Declare Sub VB_EstimateRowsWithMissingNNPred Lib "KAVORATB1C.dll" (ByRef iiTable1Dbl As Double, ByVal nin As Long, ByRef iTable1Dbl As Double, ByVal n As Long, ByVal p1 As Long, ByRef iMissing As Boolean, ByRef iiTable2Dbl As Double, ByRef iTable2Dbl As Double, ByVal p2 As Long, ByVal iiTable3Str As Long, ByVal iTable3Str As Long, ByVal p3 As Long, ByRef w As Double)
  Public Declare Function VB_CorrelPearson Lib "KAVORATB1C.dll" (ByRef iVector1 As Double, ByRef iVector2 As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double, ByVal Unbiased As Boolean, ByVal BiasIsOne As Boolean) As Double
  Public Declare Function VB_MAPE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double
  Public Declare Function VB_RMSE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByVal nY As Long, ByVal p As Long, ByRef PredY As Double, ByVal DF As Long) As Double
  Public Declare Sub VB_ComputeNewVar Lib "KAVORATB1C.dll" (ByRef LCombines As Double, ByVal n As Long, ByVal p As Long, ByRef VarCov As Double, ByRef NewVarVect As Double, ByRef NewVarCov As Double)
  Public Declare Sub VB_FilterEigen Lib "KAVORATB1C.dll" (ByRef iEigenValues As Double, ByVal p As Long, ByVal iDoFilter As Boolean, ByVal iFilter As Double, ByVal iMinPerc As Double, ByVal iMaxFact As Long, ByVal iMaxVal As Double, ByRef oNbEigen As Long, ByRef oDispEigen As Long, ByRef Percent As Double)
  Public Declare Function RunOLSBasic Lib "KAVORATB1C.dll" (ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef Y As Double, ByRef w As Double, ByVal iPolyDegree As Long, ByVal iInteract2 As Boolean, ByVal iFixedIntercept As Boolean, ByVal iTolerance As Double, ByRef oCoeffs As Double, ByRef oPredY As Double) As Long
  Public Declare Function RunOLSBasic2 Lib "KAVORATB1C.dll" (ByVal n As Long, ByVal p As Long, ByRef X As Double, ByRef Y As Double, ByRef w As Double, ByVal iPolyDegree As Long, ByVal iInteract2 As Boolean, ByVal iFixedIntercept As Boolean, ByVal iTolerance As Double, ByRef oCoeffs As Double, ByRef oStDevCoeffs As Double, ByRef oPredY As Double) As Long
  Public Declare Sub VB_CheckTolerance Lib "KAVORATB1C.dll" (ByRef R As Double, ByVal p As Long, ByVal NbFactors As Long, ByRef FactActive As Long, ByRef FactType As Long, ByRef FactSubParents As Long, ByVal Tolerance As Double, ByVal FastRemoval As Boolean, ByVal iCheckall As Boolean, ByVal WithAnEq0 As Boolean, ByRef oNotToleratedVars As Long, ByRef oTolerances As Double, ByRef oVIF As Double)
  Public Declare Sub ComputeCosines Lib "KAVORATB1C.dll" (ByRef iMat As Double, ByVal n As Long, ByVal p As Long, ByRef oCosines As Double)
  Public Declare Sub VB_BiplotTransData Lib "KAVORATB1C.dll" (ByRef iScores As Double, ByRef iScoresSupp As Double, ByRef iLoadings As Double, ByVal n As Long, ByVal nSupp As Long, ByVal p As Long, ByVal iNbEigen As Long, ByRef iEigenValues As Double, ByVal iScale As Double, ByVal iExpo As Double, ByRef oNewScores As Double, ByRef oNewLoadings As Double)
  Public Declare Function NewtonRaphson Lib "KAVORATB1C.dll" (ByRef ioParamVect As Double, ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv1 As Double, ByRef iDeriv2 As Double, ByVal iConvergence As Double, ByRef oStdErrVect As Double, ByRef InvDeriv2 As Double, ByVal Checkchange As Boolean, ByVal Maxchange As Double) As Long
  Public Declare Function CleanConstraintsAndInvert Lib "KAVORATB1C.dll" (ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv As Double, ByRef oInvDeriv As Double) As Long
  Public Declare Function CleanConstraintsAndInvertTriang Lib "KAVORATB1C.dll" (ByVal p As Long, ByRef iConstraints As Long, ByRef iDeriv As Double, ByVal iIsLower As Boolean, ByRef oInvDeriv As Double) As Long
  Public Declare Function VB_MPE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double
  Public Declare Function VB_MAE Lib "KAVORATB1C.dll" (ByRef Y As Double, ByRef YPred As Double, ByVal n As Long, ByRef w As Double, ByVal binf As Long) As Double

  Private Declare Function SysReAllocString Lib "oleaut32" (ByVal target As Long, ByVal source As Long) As Long
  Private Declare Sub SysFreeString Lib "oleaut32" (ByVal text As Long)

  Public Function TakeString(ByVal result As Long) As String
#End If
    If result <> 0 Then
      SysReAllocString VarPtr(TakeString), result
      SysFreeString result
    End If
  End Function
