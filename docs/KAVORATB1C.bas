Attribute VB_Name = "KAVORATB1C"
' Declarations for hosts that do not read the DLL's type library.
' Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.
'
' Arrays: pass the first element, iVector(1). Tables are column after column.
' Strings: Declare statements would convert them, so they go as pointers: StrPtr(s) for one string,
' VarPtr(labels(1)) for an array. A string result is turned into a string by TakeString.
' String arrays that receive results must be fresh: what a slot held is not freed.
' Flags and weights that an entry lets be null cannot be left out here; pass flags of False and weights of 1.
Option Explicit

#If VBA7 Then
  Public Declare PtrSafe Function VB_V_Sum Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Function VB_V_Mean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare PtrSafe Function VB_V_Sum2Dbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Double
  Public Declare PtrSafe Function VB_V_Sum2Lng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long) As Long
  Public Declare PtrSafe Sub VB_V_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare PtrSafe Sub VB_V_DuplicateLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByRef oVect As Long)
  Public Declare PtrSafe Sub VB_V_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iVect As LongPtr, ByVal n As Long, ByVal oVect As LongPtr)
  Public Declare PtrSafe Function VB_V_IsConstantBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Boolean
  Public Declare PtrSafe Function VB_V_SetToValue Lib "KAVORATB1C.dll" (ByRef oVector As Double, ByVal n As Long, ByVal iValue As Double) As Long
  Public Declare PtrSafe Function VB_V_SetToValueLng Lib "KAVORATB1C.dll" (ByRef oVector As Long, ByVal n As Long, ByVal iValue As Long) As Long
  Public Declare PtrSafe Sub VB_V_SetToValueStr Lib "KAVORATB1C.dll" (ByVal oVect As LongPtr, ByVal n As Long, ByVal ival As LongPtr)
  Public Declare PtrSafe Sub VB_V_ReverseBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByRef oVect As Boolean)
  Public Declare PtrSafe Sub VB_M_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare PtrSafe Sub VB_M_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iAMat As LongPtr, ByVal n As Long, ByVal p As Long, ByVal oMat As LongPtr)
  Public Declare PtrSafe Function VB_InitVectorToFalse Lib "KAVORATB1C.dll" (ByRef oVector As Boolean, ByVal n As Long) As Long
  Public Declare PtrSafe Function VB_IsMissingValueDbl Lib "KAVORATB1C.dll" (ByVal iValue As Double) As Boolean
  Public Declare PtrSafe Function VB_IsMissingValueStr Lib "KAVORATB1C.dll" (ByVal iValue As LongPtr) As Boolean

  Private Declare PtrSafe Function SysReAllocString Lib "oleaut32" (ByVal target As LongPtr, ByVal source As LongPtr) As Long
  Private Declare PtrSafe Sub SysFreeString Lib "oleaut32" (ByVal text As LongPtr)

  Public Function TakeString(ByVal result As LongPtr) As String
#Else
  Public Declare Function VB_V_Sum Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Function VB_V_Mean Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long, ByRef iMissing As Boolean, ByRef w As Double) As Double
  Public Declare Function VB_V_Sum2Dbl Lib "KAVORATB1C.dll" (ByRef iVector As Double, ByVal n As Long) As Double
  Public Declare Function VB_V_Sum2Lng Lib "KAVORATB1C.dll" (ByRef iVector As Long, ByVal n As Long) As Long
  Public Declare Sub VB_V_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iVect As Double, ByVal n As Long, ByRef oVect As Double)
  Public Declare Sub VB_V_DuplicateLng Lib "KAVORATB1C.dll" (ByRef iVect As Long, ByVal n As Long, ByRef oVect As Long)
  Public Declare Sub VB_V_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iVect As Long, ByVal n As Long, ByVal oVect As Long)
  Public Declare Function VB_V_IsConstantBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long) As Boolean
  Public Declare Function VB_V_SetToValue Lib "KAVORATB1C.dll" (ByRef oVector As Double, ByVal n As Long, ByVal iValue As Double) As Long
  Public Declare Function VB_V_SetToValueLng Lib "KAVORATB1C.dll" (ByRef oVector As Long, ByVal n As Long, ByVal iValue As Long) As Long
  Public Declare Sub VB_V_SetToValueStr Lib "KAVORATB1C.dll" (ByVal oVect As Long, ByVal n As Long, ByVal ival As Long)
  Public Declare Sub VB_V_ReverseBool Lib "KAVORATB1C.dll" (ByRef iVect As Boolean, ByVal n As Long, ByRef oVect As Boolean)
  Public Declare Sub VB_M_DuplicateDbl Lib "KAVORATB1C.dll" (ByRef iAMat As Double, ByVal n As Long, ByVal p As Long, ByRef oMat As Double)
  Public Declare Sub VB_M_DuplicateStr Lib "KAVORATB1C.dll" (ByVal iAMat As Long, ByVal n As Long, ByVal p As Long, ByVal oMat As Long)
  Public Declare Function VB_InitVectorToFalse Lib "KAVORATB1C.dll" (ByRef oVector As Boolean, ByVal n As Long) As Long
  Public Declare Function VB_IsMissingValueDbl Lib "KAVORATB1C.dll" (ByVal iValue As Double) As Boolean
  Public Declare Function VB_IsMissingValueStr Lib "KAVORATB1C.dll" (ByVal iValue As Long) As Boolean

  Private Declare Function SysReAllocString Lib "oleaut32" (ByVal target As Long, ByVal source As Long) As Long
  Private Declare Sub SysFreeString Lib "oleaut32" (ByVal text As Long)

  Public Function TakeString(ByVal result As Long) As String
#End If
    If result <> 0 Then
      SysReAllocString VarPtr(TakeString), result
      SysFreeString result
    End If
  End Function
