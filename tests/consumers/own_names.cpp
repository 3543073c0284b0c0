// A program that calls things of its own by the names that the library uses inside.

#include <cstdio>

constexpr bool kTrue = true;
constexpr int kFalse = 7, kMissing = -9, kOutside = 3, kZero = 0;
struct Range {};
struct Scratch {};
enum class Cells { Some };
namespace block {}
namespace storage {}
bool isMarker(int x) { return x == kMissing; }
int asFlag(int x) { return x; }

#include <kavoratb1c/all.h>

int main() {
  const double prices[] = {12.5, kav::kMissing, 11.0, 14.25}, quantities[] = {3.0, 1.0, 2.0, 4.0};
  const short excluded[4] = {};
  const matrix x(4, 1, prices, false, 0, 0), w(4, 1, quantities, false, 0, 0);
  const bool own = kTrue && isMarker(kMissing) && asFlag(kFalse) == 7 && kOutside == 3 && kZero == 0;
  std::printf("mean %.4f, %s\n", V_Mean(&x, 4, excluded, &w), own ? "own names" : "others");
}
