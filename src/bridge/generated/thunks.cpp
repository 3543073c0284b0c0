// What the DLL exports to macros: each body behind its calling convention and its guard.
// Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit.

#include "bridge/generated/entries.h"
#include "bridge/guard.h"
#include "platform/calling.h"

extern "C" {

KAV_ENTRY double KAV_CALL VB_V_Sum(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_Sum(iVector, n, iMissing, w); });
}

KAV_ENTRY double KAV_CALL VB_V_Mean(double* iVector, int n, VARIANT_BOOL* iMissing, double* w) noexcept {
  return guarded<double>([&] { return entries::VB_V_Mean(iVector, n, iMissing, w); });
}

KAV_ENTRY double KAV_CALL VB_V_Sum2Dbl(double* iVector, int n) noexcept {
  return guarded<double>([&] { return entries::VB_V_Sum2Dbl(iVector, n); });
}

KAV_ENTRY int KAV_CALL VB_V_Sum2Lng(int* iVector, int n) noexcept {
  return guarded<int>([&] { return entries::VB_V_Sum2Lng(iVector, n); });
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

KAV_ENTRY VARIANT_BOOL KAV_CALL VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n) noexcept {
  return guarded<VARIANT_BOOL>([&] { return entries::VB_V_IsConstantBool(iVect, n); });
}

KAV_ENTRY int KAV_CALL VB_V_SetToValue(double* oVector, int n, double iValue) noexcept {
  return guarded<int>([&] { return entries::VB_V_SetToValue(oVector, n, iValue); });
}

KAV_ENTRY int KAV_CALL VB_V_SetToValueLng(int* oVector, int n, int iValue) noexcept {
  return guarded<int>([&] { return entries::VB_V_SetToValueLng(oVector, n, iValue); });
}

KAV_ENTRY void KAV_CALL VB_V_SetToValueStr(BSTR* oVect, int n, BSTR ival) noexcept {
  return guarded<void>([&] { return entries::VB_V_SetToValueStr(oVect, n, ival); });
}

KAV_ENTRY void KAV_CALL VB_V_ReverseBool(VARIANT_BOOL* iVect, int n, VARIANT_BOOL* oVect) noexcept {
  return guarded<void>([&] { return entries::VB_V_ReverseBool(iVect, n, oVect); });
}

KAV_ENTRY void KAV_CALL VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateDbl(iAMat, n, p, oMat); });
}

KAV_ENTRY void KAV_CALL VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat) noexcept {
  return guarded<void>([&] { return entries::VB_M_DuplicateStr(iAMat, n, p, oMat); });
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

}  // extern "C"
