// The bodies behind the macro entries. Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.
// A body is defined under its qualified name, so one that differs from the catalogue does not compile.
#pragma once

#include "platform/ole.h"

namespace entries {

/// Weighted sum of the cells whose flag is 0; a missing cell counts as 0.
double VB_V_Sum(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Weighted mean of the usable cells (flag 0, not missing, weight not 0); NaN when there is none.
double VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w);

/// Unweighted sum of all n cells; a missing cell counts as 0.
double VB_V_Sum2Dbl(double* iVector, int n);

/// Sum of all n integers.
int VB_V_Sum2Lng(int* iVector, int n);

/// Copies the n cells of iVect to oVect, missing cells included.
void VB_V_DuplicateDbl(double* iVect, int n, double* oVect);

/// Copies the n integers of iVect to oVect.
void VB_V_DuplicateLng(int* iVect, int n, int* oVect);

/// Copies the n strings of iVect to oVect as new strings; former strings of oVect are not freed.
void VB_V_DuplicateStr(BSTR* iVect, int n, BSTR* oVect);

/// -1 when all n flags are equal or n is below 2, else 0.
VARIANT_BOOL VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n);

/// Sets the n cells of oVector to iValue; returns 0.
int VB_V_SetToValue(double* oVector, int n, double iValue);

/// Sets the n integers of oVector to iValue; returns 0.
int VB_V_SetToValueLng(int* oVector, int n, int iValue);

/// Sets the n slots of oVect to new copies of ival; former strings are not freed.
void VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival);

/// Copies the flags of iVect in reverse order to oVect as 0 or -1.
void VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect);

/// Copies the table cell by cell into oMat (n x p); markers stay as they are.
void VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat);

/// Copies the string table into oMat (n x p) as new strings; what the slots of oMat held is not freed.
void VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat);

/// Sets the n flags of oVector to 0; returns 0.
int VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n);

/// -1 when iValue is the missing-value marker -1.79769313486231E+308 or lower, else 0; NaN gives 0.
VARIANT_BOOL VB_IsMissingValueDbl(double iValue);

/// -1 when iValue is the empty string, else 0; a string of blanks is not missing.
VARIANT_BOOL VB_IsMissingValueStr(BSTR iValue);

}  // namespace entries
