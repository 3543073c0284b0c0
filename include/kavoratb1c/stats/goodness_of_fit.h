// How well predictions fit observations. Vectors as in vector_sums.h.
//
// Positions run from first to n, 1-based; a first below 1 is taken as 1. With weights w and their sum W over
// the positions that take part. What takes part and what an empty sum gives differs from measure to measure,
// on purpose.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Mean absolute percentage error, 100 / W * sum(abs(1 - pred / obs) * w).
///
/// Left out: obs of 0.0, and positions where either cell is flagged or holds the marker.
///
/// @param w  null stands for weights of 1.0
/// @return the sum itself, so 0.0 when nothing takes part, where W is 0.0
KAV_API double MAPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Mean percentage error, 100 / W * sum((obs - pred) / obs * w).
///
/// Left out: obs of 0.0, and positions where either cell holds the marker; flags are not looked at.
///
/// @return the marker when W is 0.0, or w is null
KAV_API double MPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Mean absolute error, sum(abs(obs - pred) * w) / W.
///
/// Left out: positions where either cell holds the marker; flags are not looked at.
///
/// @return the marker when W is 0.0, or w is null
KAV_API double MAE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Root of the mean squared error, sqrt(sum((obs - pred)^2) / dof), over one column of two tables.
///
/// Left out: rows where obs is at or below the marker.
///
/// @param rows    1 .. rows are walked; each table is addressed with its own number of rows
/// @param column  1-based
/// @return sqrt(0 / dof) when rows or column is below 1
KAV_API double RMSE(const matrix* obs, int rows, int column, const matrix* pred, int dof);
