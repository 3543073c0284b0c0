#include "peers.h"

#if defined(KAV_GSL)

#include <gsl/gsl_eigen.h>
#include <gsl/gsl_linalg.h>

#include <memory>

#include "ratios.h"

namespace {

using Table = std::unique_ptr<gsl_matrix, decltype(&gsl_matrix_free)>;
using Vector = std::unique_ptr<gsl_vector, decltype(&gsl_vector_free)>;

Table tableOf(int rows, int columns) {
  return {gsl_matrix_alloc(static_cast<std::size_t>(rows), static_cast<std::size_t>(columns)),
          gsl_matrix_free};
}

Vector vectorOf(int cells) { return {gsl_vector_alloc(static_cast<std::size_t>(cells)), gsl_vector_free}; }

/// The same table in its order, row after row.
Table rowsOf(const double* a, int n, int p) {
  Table table = tableOf(n, p);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < p; ++j) {
      gsl_matrix_set(table.get(), static_cast<std::size_t>(i), static_cast<std::size_t>(j),
                     a[i + std::ptrdiff_t{n} * j]);
    }
  }
  return table;
}

}  // namespace

void peers::enterGslEigenvectors(const std::string& work, const double* a, int n) {
  struct Room {
    Room(const double* cells, int size)
        : source(rowsOf(cells, size, size)),
          copy(tableOf(size, size)),
          vectors(tableOf(size, size)),
          values(vectorOf(size)),
          space(gsl_eigen_symmv_alloc(static_cast<std::size_t>(size)), gsl_eigen_symmv_free) {}
    Table source, copy, vectors;
    Vector values;
    std::unique_ptr<gsl_eigen_symmv_workspace, decltype(&gsl_eigen_symmv_free)> space;
  };
  contest(work, "GSL gsl_eigen_symmv", [r = std::make_shared<Room>(a, n)] {
    gsl_matrix_memcpy(r->copy.get(), r->source.get());
    gsl_eigen_symmv(r->copy.get(), r->values.get(), r->vectors.get(), r->space.get());
  });
}

void peers::enterGslSingularVectors(const std::string& work, const double* a, int n, int p) {
  struct Room {
    Room(const double* cells, int rows, int columns)
        : source(rowsOf(cells, rows, columns)),
          u(tableOf(rows, columns)),
          v(tableOf(columns, columns)),
          values(vectorOf(columns)),
          space(vectorOf(columns)) {}
    Table source, u, v;
    Vector values, space;
  };
  contest(work, "GSL gsl_linalg_SV_decomp", [r = std::make_shared<Room>(a, n, p)] {
    gsl_matrix_memcpy(r->u.get(), r->source.get());
    gsl_linalg_SV_decomp(r->u.get(), r->v.get(), r->values.get(), r->space.get());
  });
}

#else

void peers::enterGslEigenvectors(const std::string&, const double*, int) {}
void peers::enterGslSingularVectors(const std::string&, const double*, int, int) {}

#endif
