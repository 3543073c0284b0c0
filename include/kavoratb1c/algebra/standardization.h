// Means and deviations of the columns of a table, and columns centred, reduced and standardized by them.
//
// Tables are leading n x p blocks, read as in products.h. Statistics come from one pass with the weighted
// update, divided by one of the three denominators of stats/vector_moments.h; options count at -1 only.
// Weights are n x 1, null stands for weights of 1.0; rows of weight exactly 0.0 take no part. Row flags are
// n, null excludes nothing. Statistics are prepared as p x 1 (matCheck, 0.0); where one cannot be computed
// its cell is flagged.
//
// What is transformed goes to `out`, a container with at least n x p cells (a null pointer receives a new
// one), or stays in the first operand; all cells are read before one is written. Flagged cells of the target
// keep what they hold. A column whose deviation is not above 0.0, or missing, becomes 0.0 wherever it would
// be divided by it.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Weighted means and standard deviations.
///
/// @param stdevs       null on entry: not wanted
/// @param rowFlags     a row with a flag takes no part
/// @param missingMode  0 as said; -1 leaves out missing cells instead, column by column; any other value
///                     leaves out all rows
/// @return 0; a column without a used row has both flagged, one with a denominator not above 0 its deviation
KAV_API int M_MeanStDev(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, const short* rowFlags,
                        const matrix* weights, short unbiased, short frequencyWeights, short missingMode);

/// The same with variances, row flags alone deciding.
KAV_API int M_MeanStDevVar(const matrix* a, int n, int p, matrix*& means, matrix*& stdevs, matrix*& variances,
                           const short* rowFlags, const matrix* weights, short unbiased,
                           short frequencyWeights);

/// The same for one column (1-based); the marker where one cannot be computed.
KAV_API void M_MeanStDevVarOneInMat(const matrix* a, int n, int column, double* mean, double* stdev,
                                    double* variance, const short* rowFlags, const matrix* weights,
                                    short unbiased, short frequencyWeights);

/// Weighted means; 0.0 where no row is used.
/// @return 0
KAV_API int M_Mean(const matrix* a, int n, int p, matrix*& means, const short* rowFlags,
                   const matrix* weights);

/// x - mean; x / sd; (x - mean) / sd. Every row takes part, whatever its flags. W forms with weights, 2 and 3
/// in place; M_Standardize3 hands the statistics out. Standardization counts weights as frequencies.
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

/// (x - mean) / sd of every row, by statistics from which rows with a flag are left out; these come out too.
KAV_API void M_Standardize(const matrix* a, int n, int p, matrix*& out, matrix*& means, matrix*& stdevs,
                           matrix*& variances, const short* rowFlags, const matrix* weights, short unbiased,
                           short frequencyWeights);

/// (x - mean) / sd by given vectors of p cells; a deviation not above 0.0 gives 0.0. Rows with a flag and
/// missing cells keep x, the latter come out flagged.
///
/// @param variances  the squares of the deviations
/// @return 0
KAV_API int M_StandardizeKnownMeansStDev(const matrix* a, int n, int p, const matrix* means, matrix*& out,
                                         const matrix* stdevs, matrix*& variances, const short* rowFlags);

/// In place: divides each column by the Euclidean norm of its cells that are present, in a row without flag
/// and of weight other than 0.0; a norm of 0.0 leaves it. Neither option counts.
KAV_API void M_Normalize(matrix*& a, int n, int p, matrix*& norms, const short* rowFlags,
                         const matrix* weights, short unbiased, short frequencyWeights);

/// Three tables of p columns in place, by the means and unbiased deviations of the first; M_NormalizeMatrix
/// also times the root of n1 / (n1 - 1).
KAV_API void M_StandardizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third,
                                 int n3);
KAV_API void M_NormalizeMatrix(matrix*& first, int n1, int p, matrix*& second, int n2, matrix*& third,
                               int n3);

/// V_Standardize and V_Rescale of each column, with n x p flags, column after column.
KAV_API void M_StandardizeByVect(const matrix* a, int n, int p, const short* flags, const matrix* weights,
                                 short unbiased, matrix*& out);
KAV_API void M_StandardizeByVect2(matrix*& a, int n, int p, const short* flags, const matrix* weights,
                                  short unbiased);
KAV_API void M_RescaleByVect(const matrix* a, int n, int p, double lower, double upper, const short* flags,
                             matrix*& out);
KAV_API void M_RescaleByVect2(matrix*& a, int n, int p, double lower, double upper, const short* flags);
