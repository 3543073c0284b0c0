// The string container: a table of wide strings, column after column, and nothing else.
#pragma once

#include <string>

#include "platform/export.h"

/// A table of nX rows and pX columns of strings of 16-bit characters, addressed as `matrix` is: a read
/// outside gives the empty string, a write there changes nothing and returns -1.0. A missing text cell is the
/// empty string. A size below 1 means no cells. Members that build or copy strings throw std::bad_alloc when
/// memory is out.
class KAV_API Smatrix {
 public:
  int nX;                 ///< rows
  int pX;                 ///< columns
  std::u16string* cells;  ///< nX*pX strings, column after column

  /// Empty strings.
  Smatrix(int rows, int columns);

  /// From zero-terminated strings: the way in for every string array of a macro.
  ///
  /// @param src      srcRows * srcCols pointers in linear order; a null pointer is the empty string; null
  /// reads
  ///                 nothing; never more than rows * columns are read
  /// @param srcRows  0 stands for rows
  /// @param srcCols  0 stands for columns
  Smatrix(int rows, int columns, const unsigned short* const* src, int srcRows, int srcCols);

  Smatrix(const Smatrix&) = delete;
  ~Smatrix();

  /// Copies sizes and the cells pointer: both objects then share their strings and only one of them may be
  /// destroyed. Deliberate; what this object held is not released.
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

  /// Gives target the shape nX x pX. Unlike matrix::matCheck a target of that shape keeps its strings.
  /// Otherwise (also when it is null or the pattern of an uninitialized pointer) it is re-pointed to a new
  /// container of empty strings, which belongs to the caller. What it pointed to before is not released.
  static void matCheck(Smatrix*& target, int nX, int pX);

  /// A new OLE string for every cell, in linear order; what out[k] held is overwritten without being freed.
  /// Either every slot is written or, when it throws std::bad_alloc, none. A null out writes nothing.
  void copyMatTo(unsigned short** out) const;

  /// Debug dump to standard output. Shows a cell's bytes up to the first zero byte, so one character of plain
  /// text.
  void print() const;
};
