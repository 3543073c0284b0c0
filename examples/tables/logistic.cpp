#include "logistic.h"

#include <cmath>

LogisticModel::LogisticModel(const CsvTable& file, const std::string& responseName,
                             const std::vector<std::string>& names)
    : design(static_cast<std::size_t>(file.rows()), 1.0),
      response(file.numbers(responseName)),
      rows(file.rows()),
      columns(static_cast<int>(names.size()) + 1) {
  const std::vector<double> others = file.numbers(names);
  design.insert(design.end(), others.begin(), others.end());
}

std::vector<double> LogisticModel::probabilities(const std::vector<double>& parameters) const {
  std::vector<double> all;
  for (int i = 0; i < rows; ++i) {
    double sum = 0.0;
    for (int j = 0; j < columns; ++j) {
      sum += parameters[static_cast<std::size_t>(j)] * design[static_cast<std::size_t>(i + rows * j)];
    }
    all.push_back(1.0 / (1.0 + std::exp(-sum)));
  }
  return all;
}

std::vector<double> LogisticModel::gradient(const std::vector<double>& parameters) const {
  const std::vector<double> p = probabilities(parameters);
  std::vector<double> g(static_cast<std::size_t>(columns));
  for (int j = 0; j < columns; ++j) {
    for (int i = 0; i < rows; ++i) {
      const auto row = static_cast<std::size_t>(i);
      g[static_cast<std::size_t>(j)] +=
          (response[row] - p[row]) * design[static_cast<std::size_t>(i + rows * j)];
    }
  }
  return g;
}

std::vector<double> LogisticModel::hessian(const std::vector<double>& parameters) const {
  const std::vector<double> p = probabilities(parameters);
  std::vector<double> h(static_cast<std::size_t>(columns * columns));
  for (int a = 0; a < columns; ++a) {
    for (int b = 0; b < columns; ++b) {
      for (int i = 0; i < rows; ++i) {
        const double weight = p[static_cast<std::size_t>(i)] * (1.0 - p[static_cast<std::size_t>(i)]);
        h[static_cast<std::size_t>(a + columns * b)] -= weight *
                                                        design[static_cast<std::size_t>(i + rows * a)] *
                                                        design[static_cast<std::size_t>(i + rows * b)];
      }
    }
  }
  return h;
}
