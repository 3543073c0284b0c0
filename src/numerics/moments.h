// The weighted one-pass update of means and sums of squares (West 1979, Communications of the ACM 22,
// 532-535), the denominators of variances, and the one-pass update of the third and fourth central sums: once
// for everybody, since their order of operations decides the bits of every statistic. What works on several
// columns at a time repeats the update and is held to it by tests. Internal.
#pragma once

#include "kavoratb1c/marker.h"

namespace kav::moments {

/// What a row of weight w counts beside the rows before it, the total including w.
struct Share {
  Share(double w, double total)
      : ofMean(w / total), ofSquare(total == w && w != 0.0 ? 0.0 : w - w * w / total) {}

  double ofMean;

  /// Of the square of a deviation from the mean so far. In the first row, where total equals w, exactly 0.0,
  /// which rounding would miss: so a constant column has a variance of exactly 0.0 whatever its weights.
  double ofSquare;
};

/// The running mean alone.
class Mean {
 public:
  void add(double x, double w) {
    total_ += w;
    value_ += w / total_ * (x - value_);
  }

  double value() const { return value_; }

 private:
  double total_ = 0.0;
  double value_ = 0.0;
};

/// Sum of weights, number of rows, running mean and sum of squares about it.
class Moments {
 public:
  void add(double x, double w) {
    total_ += w;
    count_ += 1.0;
    const Share share(w, total_);
    const double deviation = x - mean_;
    squares_ += share.ofSquare * (deviation * deviation);
    mean_ += share.ofMean * deviation;
  }

  double total() const { return total_; }
  double count() const { return count_; }
  double mean() const { return mean_; }
  double squares() const { return squares_; }

 private:
  double total_ = 0.0;
  double count_ = 0.0;
  double mean_ = 0.0;
  double squares_ = 0.0;
};

/// The same for two variables side by side, with the sum of their products.
class PairMoments {
 public:
  void add(double x, double y, double w) {
    total_ += w;
    count_ += 1.0;
    const Share share(w, total_);
    const double dx = x - meanX_;
    const double dy = y - meanY_;
    products_ += share.ofSquare * dy * dx;
    squaresX_ += share.ofSquare * dx * dx;
    squaresY_ += share.ofSquare * dy * dy;
    meanX_ += share.ofMean * dx;
    meanY_ += share.ofMean * dy;
  }

  double total() const { return total_; }
  double count() const { return count_; }
  double products() const { return products_; }
  double squaresX() const { return squaresX_; }
  double squaresY() const { return squaresY_; }

 private:
  double total_ = 0.0;
  double count_ = 0.0;
  double meanX_ = 0.0;
  double meanY_ = 0.0;
  double products_ = 0.0;
  double squaresX_ = 0.0;
  double squaresY_ = 0.0;
};

/// Central sums up to the fourth order.
class ShapeMoments {
 public:
  void add(double x, double w) {
    total_ += w;
    count_ += 1.0;
    const double r = w / total_;
    const double d = x - mean_;
    const double d2 = d * d;
    const double r2 = r * r;
    fourth_ += w * (d2 * d2) * (1.0 - 4.0 * r + 6.0 * r2 - 3.0 * (r2 * r)) + 6.0 * r2 * d2 * second_ -
               4.0 * r * d * third_;
    third_ += w * (d2 * d) * (1.0 - 3.0 * r + 2.0 * r2) - 3.0 * r * d * second_;
    second_ += (1.0 - r) * w * d2;
    mean_ += r * d;
  }

  double total() const { return total_; }
  double count() const { return count_; }
  double mean() const { return mean_; }
  double second() const { return second_; }
  double third() const { return third_; }
  double fourth() const { return fourth_; }

 private:
  double total_ = 0.0;
  double count_ = 0.0;
  double mean_ = 0.0;
  double second_ = 0.0;
  double third_ = 0.0;
  double fourth_ = 0.0;
};

/// Which of the three denominators a variance has. Options are on only when -1: a 1 is off.
struct Denominator {
  bool unbiased;
  bool biasIsOne;

  Denominator(short unbiasedOption, short biasIsOneOption)
      : unbiased(unbiasedOption == kTrue), biasIsOne(biasIsOneOption == kTrue) {}

  /// What is taken off the sum of weights when unbiased: 1, or the mean weight.
  double bias(double total, double count) const { return biasIsOne ? 1.0 : total / count; }

  /// W, W - 1 or W - W / count.
  double of(double total, double count) const { return unbiased ? total - bias(total, count) : total; }
};

}  // namespace kav::moments
