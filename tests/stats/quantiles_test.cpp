#include "kavoratb1c/stats/quantiles.h"

#include <algorithm>
#include <vector>

#include "support/bits.h"
#include "support/data.h"
#include "support/random.h"

using namespace kav;

namespace {

using Cells = std::vector<double>;

bool precedes(double a, double b) { return a < b || (std::isnan(b) && !std::isnan(a)); }

/// Sorts, NaN last, and interpolates.
double byDefinition(Cells s, double p) {
  if (s.empty()) return -1.0;
  std::stable_sort(s.begin(), s.end(), precedes);
  const double h = static_cast<double>(s.size() - 1) * p, f = h - std::floor(h);
  const auto j = static_cast<std::size_t>(h);
  return f == 0.0 || s[j] == s[j + 1] ? s[j] : (1.0 - f) * s[j] + f * s[j + 1];
}

/// Sorts values and weights together and accumulates weights until they pass their part of the total.
double byDefinition(const Cells& x, const Cells& w, double p) {
  std::vector<std::pair<double, double>> s;
  for (std::size_t i = 0; i < x.size(); ++i) s.emplace_back(x[i], w[i]);
  const auto counts = [](auto& cell) { return cell.second > 0.0 && cell.first != kMissing; };
  if (std::none_of(s.begin(), s.end(), counts)) return kMissing;
  if (std::count(w.begin(), w.end(), w[0]) == std::ssize(w)) return byDefinition(x, p);
  std::stable_sort(s.begin(), s.end(), [](auto& a, auto& b) { return a.first < b.first; });
  if (p == 0.0 || p == 1.0) return (p == 0.0 ? s.front() : s.back()).first;
  double total = 0.0, cumulative = s[0].second;
  for (const auto& cell : s) total += cell.second;
  for (std::size_t i = 1; i < s.size(); cumulative += s[i++].second) {
    if (cumulative == p * total) return (s[i - 1].first + s[i].first) / 2.0;
    if (cumulative > p * total) return s[i - 1].first;
  }
  return s.back().first;
}

matrix vectorOf(const Cells& x) { return matrix(static_cast<int>(x.size()), 1, x.data(), true, 0, 0); }

}  // namespace

TEST(Quantiles, EqualTheirDefinitions) {
  Random random(41);
  for (int round = 0; round < 12 * 6 * 4; ++round) {
    const int sizes[] = {0, 1, 2, 3, 10, 100, 399, 400, 8191, 8192, 8193, 20000};
    const int n = sizes[round % 12], kind = round / 12 % 6, weighting = round / 72;
    if (n > 400 && weighting > 0) continue;
    SCOPED_TRACE(testing::Message() << "n = " << n << ", kind " << kind << ", weights " << weighting);
    Cells x, w, used, usedWeights, deviations;
    std::vector<short> exclude;
    matrix table(n, 2, 77.0);
    for (int i = 0; i < n; ++i) {
      // Any cells, equal ones, zeros, some markers, some NaN, all close together.
      const double zeros[] = {-0.0, 0.0, -0.0, 0.0, 2.385, -7.25};
      const double any = random.uniform(-1e3, 1e3), tight = 1.0 + random.below(9999) * 0x1p-52;
      const double special = random.below(12) != 0 ? any : kind == 3 ? kMissing : std::nan("");
      const double kinds[] = {any, 2.385, zeros[random.below(6)], special, special, tight};
      x.push_back(kinds[kind]);
      const double all[] = {random.uniform(0.0, 3.0), random.below(4) * 1.0, random.below(4) - 1.0, 2.385};
      w.push_back(all[weighting]);
      exclude.push_back(static_cast<short>(random.below(4) - 1));
      table.missing[n + i] = random.below(5) == 0;
      table.values[n + i] = x.back();
      if (exclude.back() != 0 || table.getMissing(i, 1)) continue;
      used.push_back(x.back());
      usedWeights.push_back(w.back());
      deviations.push_back(std::fabs(x.back() - 2.385));
    }
    matrix m = vectorOf(x), weights = vectorOf(w);
    std::copy_n(table.missing + n, n, m.missing);
    const short* const flags = exclude.data();
    double last = -HUGE_VAL;
    for (const double p : {0.0, 5e-324, 1e-9, 0.25, 1.0 / 3.0, 0.5, 0.7612, 0.9, 1.0 - 0x1p-53, 1.0}) {
      EXPECT_TRUE(bits::equal(V_Quantile(&m, n, p), byDefinition(x, p))) << p;
      const double plain = used.empty() ? kMissing : byDefinition(used, p);
      EXPECT_TRUE(bits::equal(V_QuantileM(&m, n, flags, p), plain)) << p;
      if (kind == 4 || n > 400) continue;
      const double q = V_QuantileW(&m, n, &weights, p), wanted = byDefinition(used, usedWeights, p);
      EXPECT_TRUE(bits::equal(q, byDefinition(x, w, p))) << p;
      EXPECT_TRUE(last <= q || kind == 3 || weighting == 2) << p;
      EXPECT_TRUE(bits::equal(V_QuantileMW(&m, n, flags, &weights, p), wanted)) << p;
      EXPECT_TRUE(bits::equal(M_QuantileMW(&table, n, 2, flags, &weights, p), wanted)) << p;
      last = q;
    }
    if (kind == 4) continue;
    EXPECT_TRUE(bits::equal(V_MedianAbsDev(&m, n, 2.385, flags, &weights),
                            byDefinition(deviations, usedWeights, 0.5)));
  }
}

// Horsepower in data set mtcars, weighted by carburettors.
TEST(Quantiles, EqualReferenceValues) {
  const data::Table cars("reference/mtcars.csv");
  const matrix x(32, 1, cars.column(5), true, 0, 0), w(32, 1, cars.column(12), true, 0, 0);
  const double references[][3] = {
      {0.05, 63.65, 65}, {0.1, 66, 92}, {0.3, 106.2, 118}, {0.5, 123, 175}, {0.9, 243.5, 264}};
  for (const auto& [p, plain, weighted] : references) {
    EXPECT_NEAR(V_Quantile(&x, 32, p), plain, 1e-12 * plain);
    EXPECT_EQ(V_QuantileW(&x, 32, &w, p), weighted);
  }
}

TEST(Quantiles, FractionsOutsideAndNothingToTakeThemOf) {
  const matrix x = vectorOf({2.385, -4.5, kMissing, 7.25}), w = vectorOf({1, 2, 0.5, 0});
  const short none[4] = {}, all[] = {-1, 1, 2, -1};
  const Cells outside = {V_Quantile(&x, 4, -0.5), V_QuantileMW(&x, 4, none, &w, 1.5),
                         V_Quantile(&x, 4, std::nan("")), V_QuantileW(&x, 4, &w, std::nan(""))};
  EXPECT_TRUE(bits::equal(outside, {kMissing, 7.25, std::nan(""), std::nan("")}));
  const Cells nothing = {V_QuantileM(&x, 4, all, 0.5), V_QuantileMW(&x, 4, nullptr, &w, 0.5),
                         M_QuantileMW(&x, 4, 2, none, &w, 0.5)};
  EXPECT_TRUE(bits::equal(nothing, {kMissing, kMissing, -1.0}));
}
