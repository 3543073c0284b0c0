#include "kavoratb1c/checks/structure.h"

#include <climits>
#include <cmath>
#include <optional>

#include "support/tables.h"

using namespace kav;

namespace {

/// A cell by its linear index; none where it is missing.
std::optional<double> at(const matrix& m, int k) {
  return m.missing[k] || m.values[k] == kMissing ? std::nullopt : std::optional(m.values[k]);
}

}  // namespace

TEST(Structure, SquareTablesAreAsDefined) {
  Random random(1);
  for (int round = 0; round < 600; ++round) {
    // Symmetric, lower, upper, diagonal, with a constant diagonal; but for one cell, or without exception.
    const int sizes[] = {0, 1, 2, 3, 33, 65}, n = sizes[round % 6], kind = round / 6 % 5;
    const int exception = random.below(2) == 0 ? -1 : random.below(n * n + 1), update = round / 30 % 3 - 1;
    matrix m(n, n, 0.0);
    const double any[] = {1.0, 2.0, 0.0, -0.0, kMissing}, same = any[random.below(5)];
    const auto mirrored = [n](int k) { return k / n + n * (k % n); };
    for (int k = 0; k < n * n; ++k) {
      const int below = k == exception ? 0 : k % n - k / n;
      const bool isEmpty = (kind % 2 == 1 && below < 0) || (kind / 2 == 1 && below > 0);
      m.missing[k] = random.below(5) == 0 && kind != 4;
      m.values[k] = any[isEmpty && !m.missing[k] ? 2 + random.below(3) : random.below(5)];
      if (kind == 4 && k % (n + 1) == 0 && k != exception) m.values[k] = same;
      if (kind == 0 && below < 0) {
        m.values[k] = at(m, mirrored(k)).value_or(kMissing);
        m.missing[k] = false;
      }
    }
    bool symmetric = true, constant = true, lower = true, upper = true;
    for (int k = 0; k < n * n; ++k) {
      const bool isFilled = at(m, k).value_or(0.0) != 0.0;
      symmetric = symmetric && at(m, k) == at(m, mirrored(k));
      constant = constant && (k % (n + 1) > 0 || at(m, k) == at(m, 0));
      lower = lower && !(isFilled && k % n < k / n);
      upper = upper && !(isFilled && k % n > k / n);
    }
    const auto expected = copyOf(m);
    for (int k = 0; k < n * n && update == -1 && lower != upper; ++k) {
      const int from = (lower ? k % n < k / n : k % n > k / n) ? mirrored(k) : k;
      expected->values[k] = m.values[from];
      expected->missing[k] = m.missing[from];
    }
    EXPECT_EQ(M_IsSymmetric(&m, n), symmetric ? -1 : 0) << round;
    EXPECT_EQ(M_IsDiagConstant(&m, n), constant ? -1 : 0) << round;
    EXPECT_EQ(M_IsTriangular(&m, n, short(update)), lower + 2 * upper) << round;
    EXPECT_TRUE(holds(m, n, n, cellsOf(*expected)) && flagsOf(m) == flagsOf(*expected)) << round;
  }
}

TEST(Structure, DisjunctiveTablesAreAsDefined) {
  Random random(2);
  for (int round = 0; round < 30000; ++round) {
    const int n = random.below(5), p = 1 + random.below(7), spoilt = random.below(3 * n * p + 1);
    const double others[] = {2.0, 0.5, -0.0, -1.0, kMissing, 1.0 + 0x1p-52, 1.0};
    matrix m(n, p, 0.0);
    for (int k = 0; k < n * p; ++k) {
      m.values[k] = k == spoilt ? others[random.below(7)] : double(random.below(5) < 2);
      m.missing[k] = k == spoilt && random.below(7) == 0;
    }
    const auto flags = randomFlags(random, n);
    const short* const exclude = round % 4 == 0 ? nullptr : flags.data();
    std::vector<int> rows, ones;
    for (int i = 0; i < n; ++i) {
      if (exclude == nullptr || exclude[i] == 0) {
        rows.push_back(i);
        ones.push_back(0);
      }
    }
    bool valid = !rows.empty();
    for (int j = 0; j < p && valid; ++j) {
      // In no row does a group begin before the last one has its 1 in all.
      const int most = 1 + *std::min_element(ones.begin(), ones.end());
      for (std::size_t k = 0; k < rows.size(); ++k) {
        const auto x = at(m, rows[k] + n * j);
        ones[k] += x == 1.0;
        valid = valid && (x == 0.0 || x == 1.0) && ones[k] <= most;
      }
    }
    valid = valid && std::count(ones.begin(), ones.end(), ones[0]) == int(ones.size());
    int variables = valid ? ones[0] : 0, found = 77;
    EXPECT_EQ(M_IsDisjTable(&m, n, p, exclude, &found), variables > 0 ? -1 : 0) << round;
    EXPECT_TRUE(found == variables && M_IsDisjTable(&m, n, p, exclude, nullptr) == (found > 0 ? -1 : 0));
  }
}

TEST(Structure, BoundsOfFractionsAndWholeNumbers) {
  const std::vector<double> answers[] = {
      {1.0 + 0x1p-52, -0x1p-1074, NAN, 0x1p53, -0x1p53, HUGE_VAL, kMissing, 0x1p51 + 0.5},
      {0.5, 0x1p-1074},
      {2.0, 0x1p53 - 1.0, -7.0},
      {0.0, -0.0, 1.0}};
  for (int k = 0; k < 4 * 4; ++k) {
    const int places[] = {0, 1, 3, 4}, place = places[k % 4];
    for (const double x : answers[k / 4]) {
      matrix m(3, 3, -7.5);
      for (const int inside : places) m.values[inside] = inside == place ? x : 1.0;
      EXPECT_EQ(-M_IsIn01(&m, 2, 2) - 2 * M_IsLong(&m, 2, 2), k / 4) << bits::text(x);
      m.missing[place] = true;
      EXPECT_TRUE(M_IsIn01(&m, 2, 2) == 0 && M_IsLong(&m, 2, 2) == 0);
      EXPECT_TRUE(M_IsIn01(&m, 0, 2) == -1 && M_IsLong(&m, 2, -1) == -1);
    }
  }
}

TEST(Structure, ConstantColumns) {
  matrix a(2, 2, 4.75);
  for (const auto& [x, y, first] :
       {std::tuple(1.5, 1.0, 2), {NAN, NAN, 2}, {kMissing, kMissing, 1}, {0.0, -0.0, 1}}) {
    a.values[0] = x;
    a.values[1] = y;
    EXPECT_EQ(M_IsColConstant(&a, 2, 2), first);
    EXPECT_EQ(M_IsColConstant(&a, 2, 1), first % 2);
  }
  EXPECT_EQ(M_IsColConstant(&a, INT_MAX, 0) + M_IsColConstant(&a, 0, INT_MAX), 0);
}

TEST(Structure, PositiveCellsOfTheRowsThatTakePart) {
  const double cells[] = {0, -1, 1, kMissing, 100, 0.01};
  const short none[] = {0, 0}, second[] = {0, 7};
  const matrix a(2, 3, cells, true, 0, 0);
  EXPECT_EQ(M_IsPositive(&a, 2, 3, second, 0), -1);
  EXPECT_EQ(M_IsPositive(&a, 2, 3, none, 0), 0);
  EXPECT_EQ(M_IsPositive(&a, 1, 3, none, 1), -1);
  EXPECT_EQ(M_IsPositive(&a, 1, 3, none, -1), 0);
  EXPECT_EQ(M_IsPositive(&a, 0, 3, nullptr, -1), -1);
}
