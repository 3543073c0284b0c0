// Means and standard deviations of the columns of a table, and columns centred, reduced and standardized.
//
// A table is a leading block: the first n rows and p columns of a container, whatever its own size; a cell
// outside the container reads -1.0. Missing cells (flagged, or holding the marker) enter by their values
// unless said otherwise. Row flags: n, any non-zero leaves the row out; null leaves out none. Weights: n
// cells, null: 1.0 each; a weight of exactly 0.0 leaves its row out, too. A row is left out of the statistics
// only: it is transformed like any other, unless said otherwise.
//
// Statistics come from one pass with the weighted update of West (1979). The variance is the weighted sum of
// squares about the mean divided by one of three denominators, W being the sum of the weights and c the
// number of rows used:
//
//     W            not unbiased
//     W - 1        unbiased and frequencyWeights: weights are frequencies
//     W - W / c    unbiased alone: weights of any scale; c - 1 for weights of 1.0
//
// Options are on only when -1.
//
// Results:
//   refilled   a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later writes to
//              it are dropped); any other pointer receives a new container, which belongs to the caller
//   kept       a container of any shape, with at least n x p cells, is kept, cells outside the block
//              included; a null pointer receives a new one. Flagged cells keep what they hold.
// All statistics are refilled as p x 1; one that cannot be computed is flagged. Transformed cells go to
// `out`, which is kept unless said otherwise and may be the table itself, or replace the cells of the table.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted means and standard deviations of the columns.
///
/// @param stdevs       null on entry: not wanted
/// @param missingMode  0: row flags apply; -1: missing cells are left out instead, column by column, and row
///                     flags are ignored; any other value leaves out all rows
/// @return 0. A column without a used row has both statistics flagged; one whose denominator is not above 0
///         has only the standard deviation flagged.
KAV_API int M_MeanStDev(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, const short* rowFlags,
                        const matrix* weights, short unbiased, short frequencyWeights, short missingMode);

/// M_MeanStDev in mode 0, with variances; a null stdevs receives a new container here.
KAV_API int M_MeanStDevVar(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, matrix*& variances,
                           const short* rowFlags, const matrix* weights, short unbiased,
                           short frequencyWeights);

/// M_MeanStDevVar of a single column.
///
/// @param column               1-based
/// @param mean stdev variance  out, may be null; the marker where one cannot be computed
KAV_API void M_MeanStDevVarOneInMat(const matrix* a, int n, int column, double* mean, double* stdev,
                                    double* variance, const short* rowFlags, const matrix* weights,
                                    short unbiased, short frequencyWeights);

/// Weighted means of the columns; 0.0, not flagged, where no row is used.
/// @return 0
KAV_API int M_Mean(const matrix* a, int n, int p, matrix*& means, const short* rowFlags,
                   const matrix* weights);

/// Center: x - mean; Reduce: x / sd; Standardize: (x - mean) / sd, by each column's own statistics.
///
/// Forms with W take weights, the others weight every row 1.0; forms with 2 or 3 work in place;
/// M_Standardize3 returns the statistics too. Without an option frequencyWeights, weights are frequencies in
/// the Standardize forms and of any scale in the Reduce forms. A mean that cannot be computed is taken as
/// 0.0; where a standard deviation cannot be computed or is not above 0.0 the result is 0.0.
KAV_API void M_Center(const matrix* a, int n, int p, matrix*& out);
KAV_API void M_CenterW(const matrix* a, int n, int p, const matrix* weights, matrix*& out);
KAV_API void M_Center2(matrix*& a, int n, int p);
KAV_API void M_CenterW2(matrix*& a, int n, int p, const matrix* weights);
KAV_API void M_Reduce(const matrix* a, int n, int p, matrix*& out, short unbiased);
KAV_API void M_ReduceW(const matrix* a, int n, int p, const matrix* weights, matrix*& out, short unbiased);
KAV_API void M_Reduce2(matrix*& a, int n, int p, short unbiased);
KAV_API void M_ReduceW2(matrix*& a, int n, int p, const matrix* weights, short unbiased);
KAV_API void M_Standardize2(matrix*& a, int n, int p, short unbiased);
KAV_API void M_Standardize3(matrix*& a, int n, int p, matrix*& means, matrix*& stdevs, short unbiased);
KAV_API void M_StandardizeW2(matrix*& a, int n, int p, const matrix* weights, short unbiased);
KAV_API void M_StandardizeW(const matrix* a, int n, int p, const matrix* weights, short unbiased,
                            short frequencyWeights, matrix*& out);

/// (x - mean) / sd of every row, by the statistics of M_MeanStDevVar, which are returned too; 0.0 where sd
/// cannot be computed or is not above 0.0.
///
/// @param out  n x p, refilled; another container than a
KAV_API void M_Standardize(const matrix* a, int n, int p, matrix*& out, matrix*& means, matrix*& stdevs,
                           matrix*& variances, const short* rowFlags, const matrix* weights, short unbiased,
                           short frequencyWeights);

/// (x - mean) / sd by given statistics; 0.0 where sd is not above 0.0. Rows with a flag and missing cells
/// keep x; missing cells of every row come out flagged.
///
/// @param means stdevs  p cells each
/// @param variances     out: the squares of stdevs
/// @return 0
KAV_API int M_StandardizeKnownMeansStDev(const matrix* a, int n, int p, const matrix* means, matrix*& out,
                                         const matrix* stdevs, matrix*& variances, const short* rowFlags);

/// In place: divides each column, all rows of it, by the Euclidean norm of its cells that are not missing, in
/// the rows that are not left out. Weights only leave out rows. A norm of 0.0 leaves the column unchanged.
///
/// @param norms                      out, p x 1
/// @param unbiased frequencyWeights  ignored
KAV_API void M_Normalize(matrix*& a, int n, int p, matrix*& norms, const short* rowFlags,
                         const matrix* weights, short unbiased, short frequencyWeights);

/// Standardizes three tables of p columns in place by the means and unbiased standard deviations of the
/// first; M_NormalizeMatrix also multiplies by the root of n1 / (n1 - 1). 0.0 where sd is not above 0.0.
///
/// @param second third  n2 x p and n3 x p; may be null
KAV_API void M_StandardizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third,
                                 int n3);
KAV_API void M_NormalizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third,
                               int n3);

/// V_Standardize and V_Rescale (stats/vector_transforms.h) of each column: cells that are missing or excluded
/// become the marker. Forms with 2 work in place.
///
/// @param flags  n x p, column-major, any non-zero excludes the cell; null excludes none
KAV_API void M_StandardizeByVect(const matrix* a, int n, int p, const short* flags, const matrix* weights,
                                 short unbiased, matrix*& out);
KAV_API void M_StandardizeByVect2(matrix*& a, int n, int p, const short* flags, const matrix* weights,
                                  short unbiased);
KAV_API void M_RescaleByVect(const matrix* a, int n, int p, double lower, double upper, const short* flags,
                             matrix*& out);
KAV_API void M_RescaleByVect2(matrix*& a, int n, int p, double lower, double upper, const short* flags);
