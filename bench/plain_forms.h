// Workers as they are defined: plain loops on raw arrays, column after column, as one would write them first.
#pragma once

#include <string>

namespace plain {

/// Pairwise deletion with the weighted update, the denominator W - 1.
void covariances(const double* a, const bool* missing, const double* weights, int n, int p, double* c);

/// Crout's method with scaled partial pivoting, in place; index: the row exchanged with row j, 0-based.
bool luFactors(double* a, int n, int* index, double& parity);

/// The inverse and the determinant from these factors; a is overwritten.
bool invert(double* a, int n, double* inverse);
double determinant(double* a, int n);

bool cholesky(const double* a, int n, double* l);

/// Gauss-Jordan elimination with full pivoting: a becomes its inverse, b (n x m) the solutions.
bool eliminate(double* a, int n, double* b, int m);

/// The symmetric table z becomes its eigenvectors, d (n cells) the eigenvalues.
bool eigenvectors(double* z, int n, double* d);

/// x (n x p, n >= p >= 2, overwritten) = u . diag(s) . v', u n x p.
bool singularVectors(double* x, int n, int p, double* s, double* u, double* v);

/// Sweeps a packed table on variable k, 0-based.
void sweep(double* s, int q, int k);

/// Of each variable what a sweep on all others leaves of it. No variable is constant or given up.
void tolerances(const double* r, int p, double tolerance, double* left);

/// Least squares with an intercept by sweeps on correlations; nothing is left out. Fitted values (n cells).
void leastSquares(const double* x, const double* y, const double* weights, int n, int p, double* fitted);

/// Missing cells become the weighted mean of their column.
void fillWithMeans(double* a, bool* missing, const double* weights, int n, int p);

/// Missing cells become that of the row that has one and is nearest, by the distance of
/// missing/nearest_neighbours.h: all distances to their end. Labels are missing when they are empty.
void fillFromNearest(double* numbers, bool* missing, int n, int p, std::u16string* labels, int labelColumns);

}  // namespace plain
