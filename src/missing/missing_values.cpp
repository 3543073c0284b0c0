#include "missing/missing_values.h"

#include <algorithm>

short IsMissingValueDbl(double v) { return asFlag(v <= kMissing); }

short IsMissingValueStr(const std::u16string& s) { return asFlag(s.empty()); }

int SetVectorToValue(matrix*& v, int n, double x) {
  matrix::matCheck(v, n, 1, x);
  return 0;
}

int InitVectorToFalse(matrix*& v, int n) { return SetVectorToValue(v, n, 0.0); }

int InitVARIANTBOOLToFalse(short* a, int n) {
  if (a != nullptr) std::fill_n(a, std::max(n, 0), kFalse);
  return 0;
}
