// Reflections and rotations of many columns at once. Compiled once for each instruction set, as product.cpp
// is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

constexpr Index kReflectLanes = kReflectVectors * kLanes;
constexpr Index kRotateLanes = kRotateVectors * kLanes;

/// Columns that go along side by side, so that what they share is loaded once.
constexpr Index kColumns = 4;

template <bool updated, bool summed>
void reflectRows(const Reflection& r) {
  Vector times[kReflectVectors] = {}, sums[kReflectVectors] = {};
  for (Index v = 0; v < kReflectVectors; ++v) {
    if constexpr (updated) times[v] = load(r.times + v * kLanes);
    if constexpr (summed) sums[v] = load(r.sums + v * kLanes);
  }
  for (Index k = 0; k < r.count; ++k) {
    double* row = r.rows + k * kReflectLanes;
    for (Index v = 0; v < kReflectVectors; ++v) {
      Vector cells = load(row + v * kLanes);
      if constexpr (updated) {
        cells += times[v] * r.along[k];
        store(row + v * kLanes, cells);
      }
      if constexpr (summed) sums[v] += cells * r.next[k];
    }
  }
  for (Index v = 0; v < kReflectVectors && summed; ++v) store(r.sums + v * kLanes, sums[v]);
}

void rotateRun(double* columns, const RotationRun& run) {
  const Index step = run.step * kRotateLanes;
  double* at = columns + run.first * kRotateLanes;
  const double* rotation = run.rotations;
  Vector carried[kRotateVectors];
  for (Index v = 0; v < kRotateVectors; ++v) carried[v] = load(at + v * kLanes);
  for (Index k = 0; k < run.count; ++k) {
    const double c = rotation[0], s = rotation[1];
    for (Index v = 0; v < kRotateVectors; ++v) {
      const Vector next = load(at + step + v * kLanes);
      store(at + v * kLanes, carried[v] * c + next * s);
      carried[v] = next * c - carried[v] * s;
    }
    at += step;
    rotation += 2;
  }
  for (Index v = 0; v < kRotateVectors; ++v) store(at + v * kLanes, carried[v]);
}

/// A few columns of a RankTwo, to the last row.
template <Index columns, bool updated>
void rankTwoColumns(const RankTwo& r, Index first) {
  double* a[columns];
  for (Index c = 0; c < columns; ++c) a[c] = r.a + r.stride * (first + c);
  Index i = 0;
  for (; r.size - i >= kLanes; i += kLanes) {
    Vector product = load(r.product + i);
    Vector u = {}, e = {};
    if constexpr (updated) {
      u = load(r.u + i);
      e = load(r.e + i);
    }
    for (Index c = 0; c < columns; ++c) {
      Vector cells = load(a[c] + i);
      if constexpr (updated) {
        cells -= u * r.e[first + c] + e * r.u[first + c];
        store(a[c] + i, cells);
      }
      product += cells * r.w[first + c];
    }
    store(r.product + i, product);
  }
  for (; i < r.size; ++i) {
    for (Index c = 0; c < columns; ++c) {
      if constexpr (updated) a[c][i] -= r.u[i] * r.e[first + c] + r.e[i] * r.u[first + c];
      r.product[i] += a[c][i] * r.w[first + c];
    }
  }
}

template <bool updated>
void rankTwoAll(const RankTwo& r) {
  Index column = 0;
  for (; r.size - column >= kColumns; column += kColumns) rankTwoColumns<kColumns, updated>(r, column);
  for (; column < r.size; ++column) rankTwoColumns<1, updated>(r, column);
}

/// Sums of a few columns, a lane each; beside the last one that one goes along once more.
template <Index vectors, bool pending>
void sumColumns(const ColumnSums& s, Index first) {
  constexpr Index kCount = vectors * kNarrowLanes;
  const double* x[kCount];
  double factors[kCount] = {};
  for (Index c = 0; c < kCount; ++c) {
    const Index column = first + c < s.columns ? first + c : s.columns - 1;
    x[c] = s.x + s.stride * column;
    if constexpr (pending) factors[c] = s.factors[column];
  }
  Narrow sums[vectors] = {};
  Index i = 0;
  for (; s.rows - i >= kNarrowLanes; i += kNarrowLanes) {
    const Narrow y = loadNarrow(s.y + i);
    Narrow before = {};
    if constexpr (pending) before = loadNarrow(s.work + i);
    for (Index v = 0; v < vectors; ++v) {
      Narrow products[kNarrowLanes], turned[kNarrowLanes];
      for (Index c = 0; c < kNarrowLanes; ++c) {
        Narrow cells = loadNarrow(x[v * kNarrowLanes + c] + i);
        if constexpr (pending) cells += before * factors[v * kNarrowLanes + c];
        products[c] = y * cells;
      }
      transposeLanes(products, turned);
      for (Index k = 0; k < kNarrowLanes; ++k) sums[v] += turned[k];
    }
  }
  double out[kCount];
  for (Index v = 0; v < vectors; ++v) storeNarrow(out + v * kNarrowLanes, sums[v]);
  for (Index c = 0; c < kCount && first + c < s.columns; ++c) {
    for (Index k = i; k < s.rows; ++k) {
      const double cell = pending ? x[c][k] + factors[c] * s.work[k] : x[c][k];
      out[c] += s.y[k] * cell;
    }
    s.sums[first + c] = out[c];
  }
}

template <bool pending>
void sumAllColumns(const ColumnSums& s) {
  constexpr Index kVectors = sizeof(void*) == 8 ? 3 : 2;
  Index column = 0;
  while (s.columns - column > kNarrowLanes) {
    sumColumns<kVectors, pending>(s, column);
    column += kVectors * kNarrowLanes;
  }
  if (column < s.columns) sumColumns<1, pending>(s, column);
}

/// A few columns of a ColumnUpdate, to the last row.
template <Index columns, bool pending, bool reflected, bool summed>
void updateColumns(const ColumnUpdate& u, Index first) {
  double* x[columns];
  for (Index c = 0; c < columns; ++c) x[c] = u.x + u.stride * (first + c);
  Index i = 0;
  for (; u.rows - i >= kLanes; i += kLanes) {
    Vector before = {}, y = {}, sums = {};
    if constexpr (pending) before = load(u.work + i);
    if constexpr (reflected) y = load(u.y + i);
    if constexpr (summed) sums = load(u.sums + i);
    for (Index c = 0; c < columns; ++c) {
      Vector cells = load(x[c] + i);
      if constexpr (pending) cells += before * u.factors[first + c];
      if constexpr (reflected) cells += y * u.times[first + c];
      store(x[c] + i, cells);
      if constexpr (summed) sums += cells * u.shares[first + c];
    }
    if constexpr (summed) store(u.sums + i, sums);
  }
  for (; i < u.rows; ++i) {
    for (Index c = 0; c < columns; ++c) {
      if constexpr (pending) x[c][i] += u.work[i] * u.factors[first + c];
      if constexpr (reflected) x[c][i] += u.y[i] * u.times[first + c];
      if constexpr (summed) u.sums[i] += x[c][i] * u.shares[first + c];
    }
  }
}

template <bool pending, bool reflected, bool summed>
void updateAllColumns(const ColumnUpdate& u) {
  Index column = 0;
  for (; u.columns - column >= kColumns; column += kColumns) {
    updateColumns<kColumns, pending, reflected, summed>(u, column);
  }
  for (; column < u.columns; ++column) updateColumns<1, pending, reflected, summed>(u, column);
}

template <bool pending, bool reflected>
void updateAllColumns(const ColumnUpdate& u) {
  if (u.shares != nullptr) {
    updateAllColumns<pending, reflected, true>(u);
  } else {
    updateAllColumns<pending, reflected, false>(u);
  }
}

}  // namespace

void reflect(const Reflection& r) {
  if (r.times == nullptr) {
    reflectRows<false, true>(r);
  } else if (r.next == nullptr) {
    reflectRows<true, false>(r);
  } else {
    reflectRows<true, true>(r);
  }
}

void rotate(double* columns, const RotationRun* runs, std::ptrdiff_t count) {
  for (Index k = 0; k < count; ++k) rotateRun(columns, runs[k]);
}

void rankTwo(const RankTwo& r) {
  if (r.u != nullptr) {
    rankTwoAll<true>(r);
  } else {
    rankTwoAll<false>(r);
  }
}

void columnSums(const ColumnSums& s) {
  if (s.factors != nullptr) {
    sumAllColumns<true>(s);
  } else {
    sumAllColumns<false>(s);
  }
}

void updateColumns(const ColumnUpdate& u) {
  if (u.factors != nullptr && u.times != nullptr) {
    updateAllColumns<true, true>(u);
  } else if (u.factors != nullptr) {
    updateAllColumns<true, false>(u);
  } else if (u.times != nullptr) {
    updateAllColumns<false, true>(u);
  } else {
    updateAllColumns<false, false>(u);
  }
}

}  // namespace kav::kernels::KAV_ISA
