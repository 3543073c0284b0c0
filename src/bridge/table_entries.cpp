// Entries of the table family.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "tables/copies.h"

using namespace bridge;

void entries::VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable copy(oMat, n, p);
  M_Duplicate(a, n, p, copy);
  store(copy);
}

void entries::VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat) {
  const InText a(iAMat, n, p);
  OutText copy(oMat);
  M_Duplicate(a, n, p, copy);
  store(copy);
}
