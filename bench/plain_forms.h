// Works that no test defines in this form: plain loops on raw arrays, column after column, as one would write
// them first.
#pragma once

namespace plain {

/// Pairwise deletion with the weighted update, the denominator W - 1.
void covariances(const double* a, const bool* missing, const double* weights, int n, int p, double* c);

/// From the factors, that overwrite the table.
double determinant(double* a, int n);

/// Least squares with an intercept by sweeps on correlations; nothing is left out. Fitted values (n cells).
void leastSquares(const double* x, const double* y, const double* weights, int n, int p, double* fitted);

/// Missing cells become the weighted mean of their column.
void fillWithMeans(double* a, bool* missing, const double* weights, int n, int p);

}  // namespace plain
