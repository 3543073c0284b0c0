// Eigen once more, under another name: its functions for one instruction set must not be taken for those of
// another.
#define Eigen EigenAvx2
#include "eigen_decompositions.h"
#include "peers.h"

namespace peers {

void productAvx2(const double* a, const double* b, int rows, int depth, int columns, double* c) {
  using Table = EigenAvx2::Map<const EigenAvx2::MatrixXd>;
  EigenAvx2::Map<EigenAvx2::MatrixXd>(c, rows, columns).noalias() =
      Table(a, rows, depth) * Table(b, depth, columns);
}

const Decompositions& decompositionsAvx2() { return by_eigen::kAll; }

}  // namespace peers
