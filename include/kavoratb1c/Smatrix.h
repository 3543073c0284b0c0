// The string container: a column-major table of wide strings, without flags, weights or statistics.
#pragma once

#include <string>

#include "kavoratb1c/export.h"

/// A table of nX rows and pX columns of strings of 16-bit characters. Cell (i, j), both 0-based, lies at
/// linear index i + nX * j, and i and j are not checked separately: a read outside 0 .. nX*pX-1 returns the
/// empty string, a write there changes nothing and returns -1.0. A missing cell is the empty string. A size
/// below 1 means no cells. Members that build or copy strings throw std::bad_alloc when memory is exhausted.
class KAV_API Smatrix {
 public:
  int nX;                 ///< rows
  int pX;                 ///< columns
  std::u16string* cells;  ///< nX*pX strings, column-major

  /// Every cell the empty string.
  Smatrix(int rows, int columns);

  /// From zero-terminated strings; every array of strings that a macro passes arrives this way. Cells beyond
  /// the array are empty strings.
  ///
  /// @param src      srcRows * srcCols pointers in linear order, of which at most rows * columns are read; a
  ///                 null pointer is the empty string; a null src leaves every cell the empty string
  /// @param srcRows  0 stands for rows
  /// @param srcCols  0 stands for columns
  Smatrix(int rows, int columns, const unsigned short* const* src, int srcRows, int srcCols);

  Smatrix(const Smatrix&) = delete;
  ~Smatrix();

  /// Copies the sizes and the pointer to the cells: both objects then share their strings, and only one of
  /// them may be destroyed. The strings that this object had are not released. This is deliberate.
  Smatrix& operator=(const Smatrix& other);

  int getNbrLines() const;
  int getNbrCols() const;

  std::u16string getElement(int k) const;
  std::u16string getElement(int i, int j) const;

  /// 1-based row and column.
  std::u16string vbget(int i, int j) const;

  /// @return 0.0, or -1.0 outside
  double setElement(int k, const std::u16string& s);
  double setElement(int i, int j, const std::u16string& s);

  /// 1-based row and column.
  double vbset(int i, int j, std::u16string s);

  /// Gives target the shape nX x pX. A container of that shape keeps its strings, where matrix::matCheck
  /// refills its cells. Any other pointer (null, or the fill pattern 0xCC.. of an uninitialized one, among
  /// them) receives a new container of empty strings, which belongs to the caller; the container it pointed
  /// to is not released.
  static void matCheck(Smatrix*& target, int nX, int pX);

  /// Writes a new OLE string to out for every cell, in linear order. The strings belong to the caller; those
  /// that out[k] held are overwritten without being freed. When it throws std::bad_alloc no slot is written.
  /// A null out is not written to.
  void copyMatTo(unsigned short** out) const;

  /// Debug dump to standard output. It shows a cell's bytes up to the first zero byte: of plain text only the
  /// first character.
  void print() const;
};
