// Rows of a table put into the order of ordering.h. Internal.
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/matrix.h"
#include "numerics/range.h"
#include "sort/ordering.h"

namespace kav::rows {

// Row span.begin + k receives row span.begin + order[k]. Columns beyond the table are not moved.

/// By value and the element rule, also where the span reaches beyond the table.
void permute(matrix* table, int columns, const Range& span, const ordering::RowOrder& order);

/// One column (0-based) of a table that has the span and the column.
void permuteColumn(matrix& table, int column, const Range& span, const ordering::RowOrder& order);

/// A missing cell flags its destination, any other clears the flag. The table has the span.
void permuteWithMissing(matrix* table, int columns, const Range& span, const ordering::RowOrder& order);

/// The table has the span.
void permute(Smatrix* table, int columns, const Range& span, const ordering::RowOrder& order);

}  // namespace kav::rows
