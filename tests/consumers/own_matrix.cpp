// A program with a class of its own named matrix, which calls the library's entries. Neither takes the
// other's members.

#include <cstdio>

extern "C" {
#if defined(_WIN32) && defined(__i386__)
__attribute__((stdcall))
#endif
double
VB_V_Mean(double* iVector, int n, short* iMissing, double* w);
}

class matrix {
 public:
  matrix(int rows, int columns);
  ~matrix();

 private:
  int rows_, columns_;
};

namespace {
int made = 0, destroyed = 0;
}

// Not inline: these have the mangled names of the library's members.
matrix::matrix(int rows, int columns) : rows_(rows), columns_(columns) { ++made; }
matrix::~matrix() { ++destroyed; }

int main() {
  double prices[] = {12.5, -1.79769313486231E+308, 11.0, 14.25}, quantities[] = {3.0, 1.0, 2.0, 4.0};
  short excluded[4] = {};
  { const matrix own(3, 4); }
  const double mean = VB_V_Mean(prices, 4, excluded, quantities);
  std::printf("mean %.4f, %d made, %d destroyed\n", mean, made, destroyed);
}
