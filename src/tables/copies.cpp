#include "kavoratb1c/tables/copies.h"

#include <algorithm>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "core/addressing.h"

using namespace kav;

void V_Duplicate(const matrix* v, int n, matrix*& out) { M_Duplicate(v, n, 1, out); }

void V_Duplicate(const Smatrix* v, int n, Smatrix*& out) { M_Duplicate(v, n, 1, out); }

void M_Duplicate(const matrix* a, int n, int p, matrix*& out) {
  const block::Values source(a, n, p);
  results::refill(out, n, p);
  block::Target target(out, n, p);
  for (int j = 0; j < p; ++j) {
    std::copy_n(source.column(j), std::max(n, 0), target.column(j));
  }
  target.store();
}

void M_Duplicate(const Smatrix* a, int n, int p, Smatrix*& out) {
  Smatrix::matCheck(out, n, p);
  texts::fill(*out, [&](int i, int j) { return texts::cell(a, i, j); });
}

void V_Reverse(const matrix* v, int n, matrix*& out) {
  const block::Values source(v, n);
  results::refill(out, n, 1);
  block::Target target(out, n);
  std::reverse_copy(source.data(), source.data() + std::max(n, 0), target.data());
  target.store();
}

void V_RemoveVal(const matrix* v, int n, int position, matrix*& out) {
  const block::Values source(v, n);
  const int kept = std::max(n, 1) - 1;
  results::refill(out, kept, 1);
  block::Target target(out, kept);
  for (int i = 0; i < kept; ++i) target[i] = source[position >= 1 && i >= position - 1 ? i + 1 : i];
  target.store();
}
