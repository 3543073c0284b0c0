// Goodness of fit: measures of error of predictions (pred) against observations (obs).
//
// Vectors are the first n cells of a container in linear order. A cell outside the container reads -1.0; a
// null container has no cells. An n beyond the container may throw std::bad_alloc. A cell is missing when its
// flag is set or its value is the marker.
//
// Positions first .. n, 1-based, are used; a first below 1 counts as 1. W is the sum of the weights w of the
// positions used. The measures differ in the positions that they leave out and in the result when W is 0.0;
// this is deliberate.
#pragma once

#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Mean absolute percentage error, 100 / W * sum(abs(1 - pred / obs) * w).
///
/// Left out: positions where obs is 0.0 or either cell is missing.
///
/// @param w  n weights; null stands for weights of 1.0
/// @return percent; when W is 0.0 the sum alone, hence 0.0 when no position is used
KAV_API double MAPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Mean percentage error, 100 / W * sum((obs - pred) / obs * w).
///
/// Left out: positions where obs is 0.0 or either cell holds the marker. Flags are ignored.
///
/// @return percent; the marker when W is 0.0 or w is null
KAV_API double MPE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Mean absolute error, sum(abs(obs - pred) * w) / W.
///
/// Left out: positions where either cell holds the marker. Flags are ignored.
///
/// @return in the units of obs; the marker when W is 0.0 or w is null
KAV_API double MAE(const matrix* obs, const matrix* pred, int n, const matrix* w, int first);

/// Root mean squared error, sqrt(sum((obs - pred)^2) / dof), over one column of two tables.
///
/// Left out: rows where obs is at or below the marker. Flags are ignored, and a missing pred
/// enters by its value.
///
/// @param rows    rows 1 .. rows are used; cells of each table are addressed by its own number of rows
/// @param column  1-based
/// @return in the units of obs; sqrt(0 / dof) when no row is used, as when rows or column is below 1
KAV_API double RMSE(const matrix* obs, int rows, int column, const matrix* pred, int dof);
