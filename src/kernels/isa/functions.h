// What the sources for one instruction set define for its table.
#pragma once

#include "kernels/isa/vectors.h"
#include "kernels/kernels.h"

namespace kav::kernels::KAV_ISA {

void product(const Product& p, double* scratch);
void transpose(const Transposition& t);
void columnMoments(const ColumnRows& rows);
void pairMoments(const PairRows& rows, std::ptrdiff_t a, std::ptrdiff_t b, const PairSums& sums);
void subtractRows(const RowTerms& terms);
void backSubstitute(const double* u, std::ptrdiff_t n, double* x);
void eliminate(const Elimination& e);
void reflect(const Reflection& r);
void rotate(double* columns, const RotationRun* runs, std::ptrdiff_t count);
void rankTwo(const RankTwo& r);
void columnSums(const ColumnSums& s);
void updateColumns(const ColumnUpdate& u);
void sweep(const Sweep& s);
bool distances(const Distances& d);

namespace {

/// Two vectors hide each other's divisions; eight registers have room for one.
constexpr Index kPairVectors = sizeof(void*) == 8 ? 2 : 1;

/// Enough sums beside each other to hide the latency of a subtraction.
constexpr Index kSideVectors = sizeof(void*) != 8 ? 4 : KAV_VECTOR_BYTES == 16 ? 8 : 6;

/// Their rows of a table stay in the first-level cache.
constexpr Index kReflectVectors = sizeof(void*) == 8 && KAV_VECTOR_BYTES == 16 ? 4 : 2;
constexpr Index kRotateVectors = 4;

/// Enough to hide the latency of a division.
constexpr Index kDistanceVectors = KAV_VECTOR_BYTES == 64 ? 2 : 4;

}  // namespace

}  // namespace kav::kernels::KAV_ISA
