// Rows of a table put into the order of ordering.h. Internal.
#pragma once

#include "core/Smatrix.h"
#include "core/matrix.h"
#include "sort/ordering.h"

namespace rows {

/// Rows first .. last-1 of a table, 0-based.
struct Span {
  /// From a 1-based inclusive range, cut to a table of the given rows.
  Span(int from, int to, int tableRows);

  int count() const { return last - first; }

  int first;
  int last;
};

// Row span.first + k receives row span.first + order[k]. Columns beyond the table are not moved.

/// By value and the element rule, also where the span reaches beyond the table.
void permute(matrix* table, int columns, const Span& span, const ordering::RowOrder& order);

/// One column (0-based) of a table that has the span and the column.
void permuteColumn(matrix& table, int column, const Span& span, const ordering::RowOrder& order);

/// A missing cell flags its destination, any other clears the flag. The table has the span.
void permuteWithMissing(matrix* table, int columns, const Span& span, const ordering::RowOrder& order);

/// The table has the span.
void permute(Smatrix* table, int columns, const Span& span, const ordering::RowOrder& order);

}  // namespace rows
