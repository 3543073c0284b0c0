// Summaries of qualitative variables.
//
// A table of labels is a leading block: the first n rows and p columns of a container of strings; a cell
// outside the container reads as the empty string. An empty label is missing and is ignored. The categories
// of all columns are in one list: those of column 1, then those of column 2, and so on.
//
// Results are refilled: a container of just that shape is refilled with 0.0 (a flagged cell keeps 0.0: later
// writes to it are dropped); any other pointer receives a new container, which belongs to the caller. Of
// strings every cell is written.
//
// @param flags  n, any non-zero leaves the row out; null leaves out none
// @param w      n weights; null: 1.0 each
#pragma once

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/export.h"
#include "kavoratb1c/matrix.h"

/// Modes, categories and weighted frequencies of each column. The frequency of a label is the sum of the
/// weights of its rows; a label that occurs only in rows of weight 0.0 is a category with frequency 0.0.
///
/// @param modes            out, p x 1: the most frequent label, of several the first in string order; empty
///                         where the column has no label
/// @param modeFrequencies  out, p x 1: its frequency, 0.0 where there is no label
/// @param total            out: the number of categories in all; null: not wanted
/// @param counts           out, p x 1: the number of categories of each column
/// @param categories       out, total x 1: the list; within a column in string order when sorted is -1, else
///                         in the order of their first rows
/// @param frequencies      out, total x 1: the frequency of each category
KAV_API void M_InfoQuali(const Smatrix* labels, int n, int p, Smatrix*& modes, matrix*& modeFrequencies,
                         int* total, matrix*& counts, Smatrix*& categories, matrix*& frequencies,
                         const short* flags, const matrix* w, short sorted);

/// Weighted frequencies of given categories in a table (n x p).
///
/// @param columns      number of columns described by counts; further columns of the table have no category
/// @param total        length of both lists; later categories are unknown
/// @param counts       `columns` numbers of categories
/// @param categories   `total` strings
/// @param frequencies  out, total x 1: the sum of the weights of each category; of equal categories of a
///                     column the first receives it all
/// @param problem      out: -1 when a row that is not left out has a label that is not among its column's
///                     categories, else 0; null: not wanted
KAV_API void M_InfoQualiValid(const Smatrix* labels, int n, int p, int columns, int total, const int* counts,
                              const Smatrix* categories, matrix*& frequencies, short* problem,
                              const short* flags, const matrix* w);
