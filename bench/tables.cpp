// Tables put together and taken apart, labels turned into columns.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "data.h"
#include "kavoratb1c/tables/blocks.h"
#include "kavoratb1c/tables/categories.h"
#include "kavoratb1c/tables/merges.h"
#include "peers.h"
#include "ratios.h"

using namespace kav;

namespace {

void copyTable(Data& d) { std::copy_n(d.a->values, d.cells(), d.b->values); }

/// The container that a worker made, used again by the next call.
struct Result {
  ~Result() { delete made; }

  matrix* made = nullptr;
};

/// A worker that moves cells, once(data, result), beside a copy of as many.
template <class Once>
void enterBesideCopy(const std::string& work, const std::shared_ptr<Data>& data, Once once) {
  const auto result = std::make_shared<Result>();
  contest(work, "library", keeping(data, [=](Data& d) { once(d, result->made); }));
  contest(work, "a copy of the table", keeping(data, copyTable));
}

void enterMoves() {
  const auto data = std::make_shared<Data>(1000000, 10);
  const std::string size = " of 1,000,000 x 10";
  enterBesideCopy("HMergeTables" + size + " in halves", data,
                  [](Data& d, matrix*& c) { HMergeTables(d.a, d.n, 5, d.b, d.n, 5, c); });
  enterBesideCopy("VMergeTables" + size + " in halves", data,
                  [](Data& d, matrix*& c) { VMergeTables(d.a, d.n / 2, d.p, d.b, d.n / 2, d.p, c); });
  enterBesideCopy("M_CopyBlock" + size, data,
                  [](Data& d, matrix*& c) { M_CopyBlock(d.a, d.n, d.p, 1, d.n, 1, d.p, c); });
  enterBesideCopy("M_RemoveRow" + size, data,
                  [](Data& d, matrix*& c) { M_RemoveRow(d.a, d.n, d.p, d.n / 3, c); });
  const auto list = std::make_shared<std::vector<int>>();
  for (int i = 5; i < data->n; i += 10) list->push_back(i);
  enterBesideCopy("M_RemoveRowsInList" + size + ", a tenth", data, [list](Data& d, matrix*& c) {
    M_RemoveRowsInList(d.a, d.n, d.p, list->data(), static_cast<int>(list->size()), c);
  });
}

/// Labels of a few lengths, `kinds` different ones.
std::shared_ptr<Smatrix> labels(int n, int p, int kinds) {
  auto table = std::make_shared<Smatrix>(n, p);
  for (int k = 0; k < n * p; ++k) {
    const std::string text = "category " + std::to_string(std::int64_t{k} * 7919 % kinds);
    table->setElement(k, std::u16string(text.begin(), text.end()));
  }
  return table;
}

void enterTexts() {
  const auto left = labels(100000, 5, 1000), right = labels(100000, 5, 1000);
  const auto merged = std::make_shared<Smatrix>(100000, 10);
  const std::string work = "HMergeTables of strings, 100,000 x 10 in halves";
  contest(work, "library", [=] {
    Smatrix* c = merged.get();
    HMergeTables(left.get(), 100000, 5, right.get(), 100000, 5, c);
  });
  contest(work, "strings assigned one by one", [=] {
    for (int k = 0; k < 500000; ++k) {
      merged->cells[k] = left->cells[k];
      merged->cells[500000 + k] = right->cells[k];
    }
  });
}

/// Indicator columns of 1,000 categories, each row's share of the time.
void enterIndicators() {
  const auto categories = labels(1000, 1, 1000);
  for (int n : {100, 1000, 10000}) {
    const auto column = labels(n, 1, 1000);
    const auto table = std::make_shared<matrix>(n, 1000);
    contest(
        "BuildDisjunctiveTable, each of " + withThousands(n) + " rows, 1,000 categories", "library",
        [=] {
          const int counts[] = {1000};
          matrix* c = table.get();
          BuildDisjunctiveTable(column.get(), n, 1, counts, categories.get(), 1000, c, 0, 0);
        },
        n);
  }
}

}  // namespace

void enterTables() {
  openTable("Tables put together");
  enterMoves();
  enterTexts();
  enterIndicators();
}
