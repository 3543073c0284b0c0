// Rows and columns of positions in packed and in full matrices.
#pragma once

#include "kavoratb1c/export.h"

/// Row and column, 1-based, of a position in a symmetric n x n matrix of which the lower triangle is packed row
/// by row; NNp1o2 with the diagonal, element (i, j), j <= i, at i (i - 1) / 2 + j; NNm1o2 without it, element
/// (i, j), j < i, at (i - 1)(i - 2) / 2 + j. NN: of a position in a full matrix, column-major.
///
/// @param row column  out, both 0 when there is no such position; each may be null
KAV_API void V_GetPositionInMatNNp1o2(int position, int n, int* row, int* column);
KAV_API void V_GetPositionInMatNNm1o2(int position, int n, int* row, int* column);
KAV_API void V_GetPositionInMatNN(int position, int n, int* row, int* column);
