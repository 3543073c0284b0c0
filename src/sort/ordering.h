// The order of rows by key, sorted vectors, order statistics: what all sorts are made of. Internal.
//
// Which order rows come out in is defined by an ordered multimap that is filled with (key, row): a new entry
// goes behind all entries of equal key. Descending fills it from the last row and walks it backward, so ties
// keep their input order both ways. Any stable sort gives the same order, and a quick one is used, unless a
// key is NaN, for which a sort has no defined result; then the multimap itself is used.
#pragma once

#include "numerics/scratch.h"

namespace kav::ordering {

/// The rows 0 .. count-1 in the order of their keys.
class RowOrder {
 public:
  RowOrder(const double* keys, int count, bool descending);

  /// Whether every row is in its place already.
  bool isInPlace() const { return inPlace_; }

  /// The row that comes out at place k.
  int operator[](int k) const { return inPlace_ ? k : rows_[k]; }

  /// The same for all places; not to be asked for when every row is in its place.
  const int* rows() const { return rows_.data(); }

 private:
  bool inPlace_;
  Scratch<int> rows_;
};

/// Sorts in place, ascending and stably (which shows in the signs of zeros), NaN last. Leaves x as it was
/// when memory is out.
void sortAscending(double* x, int count);
void sortAscending(int* x, int count);

/// Two neighbours of an ascending vector.
struct Neighbours {
  double at;    ///< the cell asked for
  double next;  ///< the one after it; the same when there is none
};

/// Cells k and k + 1 (0-based) of what sortAscending would make of x, without sorting it.
Neighbours neighboursAt(const double* x, int count, int k);

}  // namespace kav::ordering
