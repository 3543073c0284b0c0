// What it costs to make a container from a macro's array.

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "kavoratb1c/matrix.h"
#include "ratios.h"

namespace {

std::shared_ptr<const std::vector<double>> ramp(std::size_t count) {
  auto cells = std::make_shared<std::vector<double>>(count);
  for (std::size_t k = 0; k < count; ++k) (*cells)[k] = 2.385 + static_cast<double>(k);
  return cells;
}

void enterConstruction(const std::string& work, int rows, int columns) {
  const auto source = ramp(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
  const std::size_t bytes = source->size() * sizeof(double);
  contest(work, "library", [=] {
    const matrix table(rows, columns, source->data(), false, 0, 0);
    benchmark::DoNotOptimize(table.values);
  });
  contest(work, "copy of the same bytes into new memory", [=] {
    void* const block = std::malloc(bytes);
    std::memcpy(block, source->data(), bytes);
    benchmark::DoNotOptimize(block);
    std::free(block);
  });
  // The row weights are as many doubles again when there is one column.
  const std::size_t written =
      bytes + static_cast<std::size_t>(rows) * (sizeof(double) + static_cast<std::size_t>(columns));
  contest(work, "as many bytes as a container has, written to new memory", [=] {
    void* const block = std::malloc(written);
    std::memset(block, 1, written);
    benchmark::DoNotOptimize(block);
    std::free(block);
  });
}

}  // namespace

void enterContainers() {
  openTable("Containers");
  enterConstruction("container of 10 x 1", 10, 1);
  enterConstruction("container of 1,000 x 1", 1000, 1);
  enterConstruction("container of 1,000,000 x 1", 1000000, 1);
  enterConstruction("container of 100,000 x 10", 100000, 10);
}
