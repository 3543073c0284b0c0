#include "kavoratb1c/sampling/samples.h"

#include <array>
#include <cmath>
#include <map>

#include "kavoratb1c/sampling/indicators.h"
#include "support/tables.h"

using namespace kav;

namespace {

using Cells = std::vector<double>;
using Scheme = void (*)(const Smatrix*, int, int, int, Smatrix*&, matrix*&, int*, short, int*);

const Scheme kAny = M_SamplingWithReplacement, kStratified = M_SamplingRandomStratified;
const Scheme kSystematic = M_SamplingSystematicRdStart;
// Without a seed; and an indicator instead of positions.
const Scheme kCentred = [](auto a, int n, int p, int size, auto& out, auto& idx, int*, short, int*) {
  M_SamplingSystematicCentered(a, n, p, size, out, idx);
};
const Scheme kOnes = [](auto, int n, int, int ones, auto&, auto& x, int* seed, short given, int* next) {
  GenerateRandomIndicator(x, n, ones, seed, given, next);
};

Cells draw(Scheme scheme, int n, int size, int* seed, short isGiven = kTrue, int* next = nullptr) {
  Smatrix none(std::max(size, 0), 0), *rows = &none;
  matrix* idx = nullptr;
  scheme(nullptr, n, 0, size, rows, idx, seed, isGiven, next);
  return cellsOf(*std::unique_ptr<matrix>(idx));
}

/// Whether many seeds give each sample as often as it stands in `law`: more than that chi-square comes once
/// in 1e6 (Laurent and Massart 2000, lemma 1).
void expectLaw(Scheme scheme, int n, int size, const std::vector<Cells>& law) {
  std::map<Cells, double> expected;
  for (const Cells& cells : law) expected[cells] += 4000.0 / double(law.size());
  auto left = expected;
  for (int seed = -2000; seed < 2000; ++seed) left[draw(scheme, n, size, &seed)] -= 1.0;
  ASSERT_EQ(left.size(), expected.size()) << "samples that must not be";
  double sum = 0.0, freedom = double(left.size()) - 1.0, t = std::log(1e6);
  for (const auto& [cells, count] : expected) sum += left[cells] * left[cells] / count;
  EXPECT_LT(sum, freedom + 2.0 * std::sqrt(freedom * t) + 2.0 * t);
}

}  // namespace

TEST(Samples, FollowTheirSchemes) {
  for (int round = 0; round < 4 * 8 * 12 * 3; ++round) {
    const int which = round % 4, n = round / 4 % 8, size = round / 32 % 12 - 1, p = round / 384;
    SCOPED_TRACE(testing::Message() << "scheme " << which << ", " << n << " x " << p << ", size " << size);
    const Scheme scheme = std::array{kAny, kCentred, kSystematic, kStratified}[std::size_t(which)];
    const Cells idx = draw(scheme, n, size, &round);
    Smatrix table(n, p), own(std::max(size, 0), p), *rows = &own;
    for (int k = 0; k < n * p; ++k) table.cells[k] = std::u16string(std::size_t(k % 11), char16_t(u'a' + k));
    std::fill_n(own.cells, own.nX * p, u"?");
    const auto position = [&](int k, int) { return idx[std::size_t(k - 1)]; };
    expectMakes(size, 1, position,
                [&](matrix*& made) { scheme(&table, n, p, size, rows, made, &round, kTrue, nullptr); });
    EXPECT_EQ(rows, &own);
    const int count = which == 0 ? (n > 0) * size : std::min(n, size);
    unsigned int starts = (1u << n) - 1;
    for (int k = 0; k < size; ++k) {
      const int row = k < count ? int(idx[std::size_t(k)]) - 1 : -1;
      EXPECT_EQ(idx[std::size_t(k)], k < count ? row + 1 : kMissing);
      for (int j = 0; j < p; ++j) EXPECT_EQ(rows->getElement(k, j), row < 0 ? u"" : table.getElement(row, j));
      if (k >= count) continue;
      const int before = row - k * n / count, after = (k + 1) * n / count - 1 - row;
      EXPECT_TRUE(row >= 0 && row < n && (which != 1 || before == after || before + 1 == after));
      EXPECT_TRUE(which != 3 || (before >= 0 && after >= 0));
      for (int r = 0; r < n; ++r) starts &= row == (k * n + r) / count ? ~0u : ~(1u << r);
    }
    EXPECT_TRUE(which != 2 || n == 0 || starts != 0);
  }
}

TEST(Samples, ComeAsOftenAsTheirSchemesSay) {
  std::vector<Cells> any, systematic, stratified, ones;
  for (int k = 0; k < 9; ++k) any.push_back({k / 3 + 1.0, k % 3 + 1.0});
  // Of seven rows each is in three of the seven samples.
  for (int r = 0; r < 7; ++r) systematic.push_back({r / 3 + 1.0, (7 + r) / 3 + 1.0, (14 + r) / 3 + 1.0});
  for (int k = 0; k < 12; ++k) stratified.push_back({1.0 + k % 2, 3.0 + k / 2 % 2, 5.0 + k / 4});
  for (Cells x = {0, 0, 1, 1, 1, 1, 1}; ones.size() < 21; std::ranges::next_permutation(x)) ones.push_back(x);
  expectLaw(kAny, 3, 2, any);
  expectLaw(kSystematic, 7, 3, systematic);
  expectLaw(kStratified, 7, 3, stratified);
  expectLaw(kOnes, 7, 5, ones);
  for (int k = 0; k < 9 * 14; ++k) {
    const int n = k % 9 - 1, wanted = k / 9 - 2, right = std::max(0, std::min(n, wanted));
    Cells x = draw(kOnes, n, wanted, &k), sorted(std::size_t(std::max(n, 0)), 0.0);
    std::fill_n(sorted.rbegin(), right, 1.0);
    std::sort(x.begin(), x.end());
    EXPECT_EQ(x, sorted) << n << ", " << wanted;
  }
}

TEST(Samples, CentredOnesByHand) {
  EXPECT_EQ(draw(kCentred, 10, 5, nullptr), (Cells{1, 3, 5, 7, 9}));
  EXPECT_EQ(draw(kCentred, 7, 3, nullptr), (Cells{1, 3, 6}));
  EXPECT_EQ(draw(kCentred, 2, 3, nullptr), (Cells{1, 2, kMissing}));
  EXPECT_EQ(draw(kCentred, 2000000000, 3, nullptr), (Cells{333333333, 1000000000, 1666666667}));
}

TEST(Samples, SeedsGoInAndOut) {
  for (const Scheme scheme : {kAny, kSystematic, kStratified, kOnes}) {
    int seed = 7, next = 7, again = 7;
    const Cells drawn = draw(scheme, 100000, 100, &seed, kFalse, &next);
    const int used = seed;
    EXPECT_TRUE(draw(scheme, 100000, 100, &seed, kTrue, &again) == drawn && next == again && seed == used);
    EXPECT_TRUE(draw(scheme, 100000, 100, &next) != drawn && draw(scheme, 100000, 100, nullptr) != drawn);
    EXPECT_TRUE(draw(scheme, 100000, 100, &seed, 1) != drawn && seed != used && used != 7);
  }
}

TEST(Samples, RowsOfTheUsersChoice) {
  const int chosen[] = {3, 3, 12, 0, 0, 0, 0, 0, 3, 0, 0, 0};
  Cells cells = {3, 3.999, 12, 0.999, -1, 13, NAN, kMissing, 3, HUGE_VAL, -1e300, 4294967297.0};
  Smatrix table(12, 2), *rows = nullptr;
  for (int k = 0; k < 24; ++k) table.cells[k] = std::u16string(std::size_t(k == 14 ? 0 : k + 1), u'r');
  const matrix idx(12, 1, cells.data(), true, 0, 0);
  M_SampleUserDefined(&table, 12, 2, rows, &idx);
  const std::unique_ptr<Smatrix> own(rows);
  for (int k = 0; k < 24; ++k) {
    EXPECT_EQ(rows->cells[k], chosen[k % 12] == 0 ? u"" : table.getElement(chosen[k % 12] - 1, k / 12)) << k;
  }
}
