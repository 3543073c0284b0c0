// Rows and columns that belong to positions in packed and in full matrices.
#pragma once

#include "kavoratb1c/export.h"

/// Row and column of a linear position in an n x n matrix, all 1-based.
///
/// NNp1o2: symmetric matrix, lower triangle packed row by row with the diagonal: (i,j), j <= i, is at
/// position i (i - 1) / 2 + j. NNm1o2: without the diagonal: (i,j), j < i, is at (i - 1)(i - 2) / 2 + j. NN:
/// full matrix, column-major.
///
/// @param row column  out, both 0 when there is no such position; each may be null
KAV_API void V_GetPositionInMatNNp1o2(int position, int n, int* row, int* column);
KAV_API void V_GetPositionInMatNNm1o2(int position, int n, int* row, int* column);
KAV_API void V_GetPositionInMatNN(int position, int n, int* row, int* column);
