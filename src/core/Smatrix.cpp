#include "kavoratb1c/Smatrix.h"

#include <cstdio>

#include "core/addressing.h"
#include "platform/ole_strings.h"

using namespace kav;

using addressing::isInside;
using addressing::linearIndex;
using addressing::linearIndexFrom1;

namespace {

const unsigned short* endOf(const unsigned short* text) {
  while (*text != 0) ++text;
  return text;
}

std::u16string read(const Smatrix& m, std::int64_t k) {
  return isInside(m, k) ? m.cells[k] : std::u16string();
}

double write(Smatrix& m, std::int64_t k, const std::u16string& s) {
  if (!isInside(m, k)) return -1.0;
  m.cells[k] = s;
  return 0.0;
}

}  // namespace

Smatrix::Smatrix(int rows, int columns)
    : nX(rows),
      pX(columns),
      cells(new std::u16string[addressing::elementsInMemory<std::u16string>(rows, columns)]) {}

Smatrix::Smatrix(int rows, int columns, const unsigned short* const* src, int srcRows, int srcCols)
    : Smatrix(rows, columns) {
  if (src == nullptr) return;
  const std::int64_t count = addressing::cellsSupplied(rows, columns, srcRows, srcCols);
  for (std::int64_t k = 0; k < count; ++k) {
    if (src[k] != nullptr) cells[k].assign(src[k], endOf(src[k]));
  }
}

Smatrix::~Smatrix() { delete[] cells; }

// Shallow on purpose, see the header.
Smatrix& Smatrix::operator=(const Smatrix& other) = default;

int Smatrix::getNbrLines() const { return nX; }

int Smatrix::getNbrCols() const { return pX; }

std::u16string Smatrix::getElement(int k) const { return read(*this, k); }

std::u16string Smatrix::getElement(int i, int j) const { return read(*this, linearIndex(i, j, nX)); }

std::u16string Smatrix::vbget(int i, int j) const { return read(*this, linearIndexFrom1(i, j, nX)); }

double Smatrix::setElement(int k, const std::u16string& s) { return write(*this, k, s); }

double Smatrix::setElement(int i, int j, const std::u16string& s) {
  return write(*this, linearIndex(i, j, nX), s);
}

double Smatrix::vbset(int i, int j, std::u16string s) { return write(*this, linearIndexFrom1(i, j, nX), s); }

void Smatrix::matCheck(Smatrix*& target, int nX, int pX) {
  if (addressing::designatesContainer(target) && target->nX == nX && target->pX == pX) return;
  target = new Smatrix(nX, pX);
}

void Smatrix::copyMatTo(unsigned short** out) const {
  if (out == nullptr) return;
  NewStrings strings;
  strings.make(cells, static_cast<std::size_t>(addressing::cellCount(*this)));
  strings.handOverTo(out);
}

void Smatrix::print() const {
  std::printf("******\n");
  std::printf("SMatrix  view: nX %i pX %i ", nX, pX);
  for (int i = 0; i < nX; ++i) {
    std::printf("\n line %i ", i);
    // The narrow %s on 16-bit characters is part of the dump's fixed form: it stops at the first zero byte.
    for (int j = 0; j < pX; ++j) {
      std::printf("\t %s", reinterpret_cast<const char*>(getElement(i, j).c_str()));
    }
  }
  std::printf("******\n");
}
