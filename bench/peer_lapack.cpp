#include "peers.h"

#if defined(KAV_LAPACK)

#include <algorithm>
#include <memory>
#include <vector>

#include "ratios.h"

extern "C" {
using Length = std::size_t;  // of a text, handed over behind the other arguments
void dsyev_(const char* job, const char* triangle, const int* n, double* a, const int* lda, double* values,
            double* work, const int* size, int* info, Length, Length);
void dsyevd_(const char* job, const char* triangle, const int* n, double* a, const int* lda, double* values,
             double* work, const int* size, int* integers, const int* integerSize, int* info, Length, Length);
void dgesvd_(const char* left, const char* right, const int* n, const int* p, double* a, const int* lda,
             double* values, double* u, const int* ldu, double* v, const int* ldv, double* work,
             const int* size, int* info, Length, Length);
void dgesdd_(const char* job, const int* n, const int* p, double* a, const int* lda, double* values,
             double* u, const int* ldu, double* v, const int* ldv, double* work, const int* size,
             int* integers, int* info, Length);
void dpotrf_(const char* triangle, const int* n, double* a, const int* lda, int* info, Length);
void dgetrf_(const int* n, const int* p, double* a, const int* lda, int* pivots, int* info);
void dgetri_(const int* n, double* a, const int* lda, const int* pivots, double* work, const int* size,
             int* info);
void dgels_(const char* transposed, const int* n, const int* p, const int* sides, double* a, const int* lda,
            double* b, const int* ldb, double* work, const int* size, int* info, Length);
void dpptrf_(const char* triangle, const int* n, double* packed, int* info, Length);
void dpptri_(const char* triangle, const int* n, double* packed, int* info, Length);

/// Of the library that Debian links as LAPACK; other builds know their threads by themselves.
__attribute__((weak)) void openblas_set_num_threads(int threads);
}

namespace {

std::size_t sizeOf(int rows, int columns) {
  return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
}

/// A table, the copy that a routine overwrites, and its results and work space.
struct Room {
  Room(const double* source, std::size_t cells) : a(source), copy(cells) {
    if (openblas_set_num_threads != nullptr) openblas_set_num_threads(1);
  }

  double* copied() {
    std::copy_n(a, copy.size(), copy.data());
    return copy.data();
  }

  const double* a;
  std::vector<double> copy, values, u, v, work;
  std::vector<int> integers;
  int info = 0;
};

template <class F>
void enter(const std::string& work, const std::string& contestant, const std::shared_ptr<Room>& room, F f) {
  contest(work, contestant, [room, f] { f(*room); });
}

/// A contestant with a room like this one, and the work space that routine(room, space, size) asks for.
template <class Routine>
void enterWithSpace(const std::string& work, const std::string& contestant, const Room& like,
                    Routine routine) {
  const auto room = std::make_shared<Room>(like);
  const int asked = -1;
  double wanted = 0.0;
  routine(*room, &wanted, &asked);
  room->work.resize(static_cast<std::size_t>(wanted));
  enter(work, contestant, room, [routine](Room& r) {
    const auto size = static_cast<int>(r.work.size());
    routine(r, r.work.data(), &size);
  });
}

}  // namespace

void peers::enterLapackEigenvectors(const std::string& work, const double* a, int n) {
  Room room(a, sizeOf(n, n));
  room.values.resize(sizeOf(n, 1));
  room.integers.resize(sizeOf(n, 5) + 3);
  const auto dsyev = [n](Room& r, double* space, const int* size) {
    dsyev_("V", "L", &n, r.copied(), &n, r.values.data(), space, size, &r.info, 1, 1);
  };
  const auto dsyevd = [n](Room& r, double* space, const int* size) {
    const auto integers = static_cast<int>(r.integers.size());
    dsyevd_("V", "L", &n, r.copied(), &n, r.values.data(), space, size, r.integers.data(), &integers, &r.info,
            1, 1);
  };
  enterWithSpace(work, "LAPACK dsyev", room, dsyev);
  enterWithSpace(work, "LAPACK dsyevd, divide and conquer", room, dsyevd);
}

void peers::enterLapackSingularVectors(const std::string& work, const double* a, int n, int p) {
  const int order = std::min(n, p);
  Room room(a, sizeOf(n, p));
  room.values.resize(sizeOf(order, 1));
  room.u.resize(sizeOf(n, order));
  room.v.resize(sizeOf(order, p));
  room.integers.resize(sizeOf(order, 8));
  const auto dgesvd = [n, p, order](Room& r, double* space, const int* size) {
    dgesvd_("S", "S", &n, &p, r.copied(), &n, r.values.data(), r.u.data(), &n, r.v.data(), &order, space,
            size, &r.info, 1, 1);
  };
  const auto dgesdd = [n, p, order](Room& r, double* space, const int* size) {
    dgesdd_("S", &n, &p, r.copied(), &n, r.values.data(), r.u.data(), &n, r.v.data(), &order, space, size,
            r.integers.data(), &r.info, 1);
  };
  enterWithSpace(work, "LAPACK dgesvd", room, dgesvd);
  enterWithSpace(work, "LAPACK dgesdd, divide and conquer", room, dgesdd);
}

void peers::enterLapackCholesky(const std::string& work, const double* a, int n) {
  enter(work, "LAPACK dpotrf", std::make_shared<Room>(a, sizeOf(n, n)),
        [n](Room& r) { dpotrf_("L", &n, r.copied(), &n, &r.info, 1); });
}

void peers::enterLapackLuFactors(const std::string& work, const double* a, int n) {
  const auto room = std::make_shared<Room>(a, sizeOf(n, n));
  room->integers.resize(sizeOf(n, 1));
  enter(work, "LAPACK dgetrf", room,
        [n](Room& r) { dgetrf_(&n, &n, r.copied(), &n, r.integers.data(), &r.info); });
}

void peers::enterLapackInverse(const std::string& work, const double* a, int n) {
  const auto room = std::make_shared<Room>(a, sizeOf(n, n));
  room->integers.resize(sizeOf(n, 1));
  room->work.resize(sizeOf(n, 64));
  enter(work, "LAPACK dgetrf and dgetri", room, [n](Room& r) {
    const auto size = static_cast<int>(r.work.size());
    dgetrf_(&n, &n, r.copied(), &n, r.integers.data(), &r.info);
    dgetri_(&n, r.copy.data(), &n, r.integers.data(), r.work.data(), &size, &r.info);
  });
}

void peers::enterLapackPackedInverse(const std::string& work, const double* packed, int n) {
  // The lower triangle row after row is the upper one column after column.
  enter(work, "LAPACK dpptrf and dpptri", std::make_shared<Room>(packed, sizeOf(n, n + 1) / 2), [n](Room& r) {
    dpptrf_("U", &n, r.copied(), &r.info, 1);
    dpptri_("U", &n, r.copy.data(), &r.info, 1);
  });
}

void peers::enterLapackLeastSquares(const std::string& work, const double* x, const double* y, int n, int p) {
  enter(work, "LAPACK dgels", std::make_shared<Room>(x, sizeOf(n, p)), [n, p, y](Room& r) {
    const int columns = p + 1, sides = 1, size = 64 * (columns + n);
    r.u.resize(sizeOf(n, columns));
    std::copy_n(r.a, sizeOf(n, p), r.u.data());
    std::fill_n(r.u.data() + sizeOf(n, p), n, 1.0);
    r.v.assign(y, y + n);
    r.work.resize(static_cast<std::size_t>(size));
    dgels_("N", &n, &columns, &sides, r.u.data(), &n, r.v.data(), &n, r.work.data(), &size, &r.info, 1);
  });
}

#else

void peers::enterLapackEigenvectors(const std::string&, const double*, int) {}
void peers::enterLapackSingularVectors(const std::string&, const double*, int, int) {}
void peers::enterLapackCholesky(const std::string&, const double*, int) {}
void peers::enterLapackLuFactors(const std::string&, const double*, int) {}
void peers::enterLapackInverse(const std::string&, const double*, int) {}
void peers::enterLapackLeastSquares(const std::string&, const double*, const double*, int, int) {}
void peers::enterLapackPackedInverse(const std::string&, const double*, int) {}

#endif
