// Entries of table assembly: copies, blocks, rows and columns, positions, labels turned into codes.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/tables/blocks.h"
#include "kavoratb1c/tables/categories.h"
#include "kavoratb1c/tables/copies.h"
#include "kavoratb1c/tables/positions.h"
#include "kavoratb1c/tables/single_columns.h"
#include "numerics/range.h"

using namespace kav;

using namespace bridge;

namespace {

std::int64_t totalOf(const int* counts, int p) {
  std::int64_t total = 0;
  for (int j = 0; j < p; ++j) total += std::max(counts[j], 0);
  return total;
}

/// As many categories as their numbers add up to. Throws std::bad_alloc where a container cannot have them.
int categoriesOf(const int* counts, int p) {
  const std::int64_t total = totalOf(required(counts, p, 1), p);
  if (total > std::numeric_limits<int>::max()) throw std::bad_alloc();
  return static_cast<int>(total);
}

}  // namespace

void entries::VB_M_DuplicateDbl(double* iAMat, int n, int p, double* oMat) {
  const InTable a(iAMat, n, p, Cells::KeepAll);
  OutTable copy(oMat, n, p);
  M_Duplicate(a, n, p, copy);
  store(copy);
}

void entries::VB_M_DuplicateStr(BSTR* iAMat, int n, int p, BSTR* oMat) {
  const InText a(iAMat, n, p);
  OutText copy(oMat);
  M_Duplicate(a, n, p, copy);
  store(copy);
}

void entries::VB_M_CopyBlock(double* iMat, int n, int p, int nStart, int nEnd, int pStart, int pEnd,
                             double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable block(oMat, Range(n, nStart, nEnd).count(), Range(p, pStart, pEnd).count(), InPlaceUnlessRead(a));
  M_CopyBlock(a, n, p, nStart, nEnd, pStart, pEnd, block);
  store(block);
}

void entries::VB_M_PasteBlock(double* iMat, int n, int p, double* ioMat, int n2, int p2, int nStart,
                              int pStart) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  InOutTable table(ioMat, n2, p2, InPlaceUnlessRead(a));
  M_PasteBlock(a, n, p, table, n2, p2, nStart, pStart);
  store(table);
}

void entries::VB_M_CopyToBigger(double* iMat, int n, int p, double* oMat, int nOut, int pOut) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  InOutTable table(oMat, nOut, pOut, InPlaceUnlessRead(a));
  M_CopyToBigger(a, n, p, table, nOut, pOut);
  store(table);
}

void entries::VB_M_CopyResize(double* iMat, int n, int p, double* oMat, int n2, int p2) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable resized(oMat, n2, p2, InPlaceUnlessRead(a));
  M_CopyResize(a, n, p, resized, n2, p2);
  store(resized);
}

void entries::VB_M_CopyResizeStr(BSTR* iMat, int n, int p, BSTR* oMat, int n2, int p2) {
  const InText a(iMat, n, p);
  OutText resized(oMat);
  M_CopyResize(a, n, p, resized, n2, p2);
  store(resized);
}

void entries::VB_M_ExtractMatToMatDbl(double* iMat, int n, int p, int nStart, int nEnd, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable rows(oMat, Range(n, nStart, nEnd).count(), p, InPlaceUnlessRead(a));
  M_ExtractMatToMat(a, n, p, nStart, nEnd, rows);
  store(rows);
}

void entries::VB_M_ExtractMatToMatByColDbl(double* iMat, int n, int p, int pStart, int pEnd, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable columns(oMat, n, Range(p, pStart, pEnd).count(), InPlaceUnlessRead(a));
  M_ExtractMatToMatByCol(a, n, p, pStart, pEnd, columns);
  store(columns);
}

void entries::VB_M_ExtractMatToMatStr(BSTR* iMat, int n, int p, int nStart, int nEnd, BSTR* oMat) {
  const InText a(iMat, n, p);
  OutText rows(oMat);
  M_ExtractMatToMat(a, n, p, nStart, nEnd, rows);
  store(rows);
}

void entries::VB_M_RemoveRow(double* iMat, int n, int p, int iRow, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable rest(oMat, n < 1 ? 0 : n - 1, p, InPlaceUnlessRead(a));
  M_RemoveRow(a, n, p, iRow, rest);
  store(rest);
}

void entries::VB_M_RemoveCol(double* iMat, int n, int p, int iCol, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable rest(oMat, n, p < 1 ? 0 : p - 1, InPlaceUnlessRead(a));
  M_RemoveCol(a, n, p, iCol, rest);
  store(rest);
}

void entries::VB_M_RemoveRows2(double* ioMat, int n, int p, int nStart, int nEnd) {
  InOutTable a(ioMat, n, p, Cells::KeepAll);
  M_RemoveRows2(a, n, p, nStart, nEnd);
  store(a);
}

void entries::VB_M_RemoveCols2(double* ioMat, int n, int p, int pStart, int pEnd) {
  InOutTable a(ioMat, n, p, Cells::KeepAll);
  M_RemoveCols2(a, n, p, pStart, pEnd);
  store(a);
}

int entries::VB_M_RemoveRowsInList(double* iMat, int n, int p, int* iList, int nOut, double* oMat) {
  const InTable a(iMat, n, p, Cells::KeepAll);
  OutTable rest(oMat);
  const int rows = M_RemoveRowsInList(a, n, p, required(iList, nOut, 1), nOut, rest);
  store(rest);
  return rows;
}

void entries::VB_M_MoveRow(double* iMat, int n, int p, int iRow, int iNewPos) {
  InOutTable a(iMat, n, p, InPlaceUnlessRead());
  M_MoveRow(a, n, p, iRow, iNewPos);
  store(a);
}

void entries::VB_CopyMatrixColToMatrixCol(double* iMat, int n, int col, double* ioMat, int ColID,
                                          VARIANT_BOOL) {
  if (col < 1 || ColID < 1) return;
  // No other column is looked at.
  const InVector from(columnOf(iMat, n, col), n, Cells::KeepAll);
  OutTable to(columnOf(ioMat, n, ColID), n, 1, InPlaceUnlessRead(from));
  CopyMatrixColToMatrixCol(from, n, 1, to, 1);
  store(to);
}

void entries::VB_CopyMatrixColToVector(double* iMat, int n, int ColID, double* oVector) {
  if (ColID < 1) return;
  const InVector from(columnOf(iMat, n, ColID), n, Cells::KeepAll);
  OutTable to(oVector, n, 1, InPlaceUnlessRead(from));
  CopyMatrixColToVector(from, n, 1, to);
  store(to);
}

void entries::VB_CopyMatrixColToOneColMatStr(BSTR* iMat, int n, int iCol, BSTR* oVectMat) {
  if (iCol < 1) return;
  const InText from(columnOf(iMat, n, iCol), n);
  OutText to(oVectMat);
  CopyMatrixColToOneColMat(from, n, 1, to);
  store(to);
}

void entries::VB_CopyMatrixRowToMatrixRow(double* iMat, int n, int p, int Line, double* ioMat, int n2,
                                          int RowID, VARIANT_BOOL) {
  const InTable from(iMat, n, p, Cells::KeepAll);
  InOutTable to(ioMat, n2, p, InPlaceUnlessRead(from));
  CopyMatrixRowToMatrixRow(from, n, p, Line, to, n2, RowID);
  store(to);
}

void entries::VB_V_GetPositionInMatNNp1o2(int iPos, int n, int* oX, int* oY) {
  OutInt row(oX), column(oY);
  V_GetPositionInMatNNp1o2(iPos, n, row, column);
  store(row, column);
}

void entries::VB_V_GetPositionInMatNNm1o2(int iPos, int n, int* oX, int* oY) {
  OutInt row(oX), column(oY);
  V_GetPositionInMatNNm1o2(iPos, n, row, column);
  store(row, column);
}

void entries::VB_V_GetPositionInMatNN(int iPos, int n, int* oX, int* oY) {
  OutInt row(oX), column(oY);
  V_GetPositionInMatNN(iPos, n, row, column);
  store(row, column);
}

void entries::VB_M_ReplaceCatByCodes(BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, double* oMat) {
  const InText labels(iMat, n, p), categories(Cat, categoriesOf(NbCat, p));
  OutTable codes(oMat, n, p);
  M_ReplaceCatByCodes(labels, n, p, NbCat, categories, codes);
  store(codes);
}

void entries::VB_M_ReplaceStrByCodes(BSTR* iMat, int n, int p, int* NbCat, BSTR* Cat, VARIANT_BOOL* iMissing,
                                     int iCodeStart, double* oMat) {
  const InText labels(iMat, n, p), categories(Cat, categoriesOf(NbCat, p));
  OutTable codes(oMat, n, p);
  M_ReplaceStrByCodes(labels, n, p, NbCat, categories, iMissing, iCodeStart, codes);
  store(codes);
}

void entries::VB_BuildDisjunctiveTable(BSTR* iMat, int n, int p, int NbCatTotal, int* NbCat, BSTR* Cat,
                                       double*, int pMaxCat, double* oMat, int ConstraintType,
                                       int LeaveFirstCol) {
  const InText labels(iMat, n, p), categories(Cat, NbCatTotal);
  OutTable table(oMat, n, pMaxCat);
  BuildDisjunctiveTable(labels, n, p, required(NbCat, p, 1), categories, pMaxCat, table, ConstraintType,
                        LeaveFirstCol);
  store(table);
}
