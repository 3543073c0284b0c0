// Entries of the missing-data family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "missing/missing_values.h"

using namespace bridge;

VARIANT_BOOL entries::VB_IsMissingValueDbl(double iValue) { return IsMissingValueDbl(iValue); }

VARIANT_BOOL entries::VB_IsMissingValueStr(BSTR iValue) { return IsMissingValueStr(textOf(iValue)); }

int entries::VB_InitVectorToFalse(VARIANT_BOOL* oVector, int n) {
  OutFlags result(oVector, n, 1);
  const int status = InitVectorToFalse(result, n);
  store(result);
  return status;
}
