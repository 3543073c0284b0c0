// The debug dump of a matrix. Its text is fixed, trailing blanks included: callers compare dumps.

#include <cstdio>

#include "core/storage.h"
#include "kavoratb1c/matrix.h"

using namespace kav;

namespace {

void printCells(const matrix& m) {
  for (int i = 0; i < m.nX; ++i) {
    std::printf("\n line %i ", i);
    for (int j = 0; j < m.pX; ++j) {
      if (m.getMissing(i, j)) {
        std::printf("\t miss.Val");
      } else {
        std::printf("\t %f", m.getElement(i, j));
      }
    }
  }
}

}  // namespace

void matrix::print() const {
  const int columns = storage::describedColumns(*this);
  std::printf("******\n");
  std::printf("Matrix  view: nX %i pX %i ", nX, pX);
  printCells(*this);
  std::printf(" sumOfWeights = %f  \n", sumOfWeights);
  for (int j = 0; j < columns; ++j) std::printf("\t i = %d weightcorr = %f ", j, weightcorr[j]);
  std::printf("******\n");
  if (normalized == 1) {
    for (int j = 0; j < columns; ++j) {
      std::printf("\n var n %i normu = %f norsigma = %f ", j, normu[j], norsigma[j]);
    }
  }
  if (descValid == 1) {
    for (int j = 0; j < columns; ++j) {
      std::printf("\n var n %i descmu = %f descsigma = %f ", j, descmu[j], descsigma[j]);
    }
  }
  std::printf("******\n");
}
