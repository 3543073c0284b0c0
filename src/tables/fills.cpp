#include "kavoratb1c/tables/fills.h"

#include <algorithm>

#include "access/block.h"
#include "access/results.h"
#include "core/addressing.h"

using namespace kav;

int SetVectorToValue(matrix*& v, int n, double x) {
  matrix::matCheck(v, n, 1, x);
  return 0;
}

int InitVectorToFalse(matrix*& v, int n) { return SetVectorToValue(v, n, 0.0); }

int InitVARIANTBOOLToFalse(short* a, int n) {
  if (a != nullptr) std::fill_n(a, std::max(n, 0), kFalse);
  return 0;
}

int V_SetToValue(matrix*& v, int n, double x) { return SetVectorToValue(v, n, x); }

int V_Set1toN(matrix*& v, int n) {
  results::refill(v, n, 1);
  block::Target target(v, n);
  for (int i = 0; i < n; ++i) target[i] = i + 1.0;
  target.store();
  return 0;
}

void V_SetToValueStr(Smatrix*& v, int n, const std::u16string& s) {
  Smatrix::matCheck(v, n, 1);
  std::fill_n(v->cells, addressing::cellCount(*v), s);
}
