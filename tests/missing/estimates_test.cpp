#include "kavoratb1c/missing/estimates.h"

#include <cmath>

#include "kavoratb1c/stats/frequencies.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "support/tables.h"

// Containers of other sizes than the blocks, flags and weights that are null, too few or of no use, columns
// that teach nothing; from the table itself in every other round.
TEST(Estimates, AreTheMeanAndTheModeOfEachColumn) {
  Random random(931);
  for (int round = 0; round < 2000; ++round) {
    const int n = random.below(9) - 1, p = random.below(5) - 1, m = round % 2 == 0 ? n : random.below(9) - 1;
    const int rows = p == 1 ? 5 : 8, columns = 1 + random.below(4), cells = rows * columns;
    const int oneIn = 6 << random.below(5);
    SCOPED_TRACE(testing::Message() << round << ": " << m << " for " << n << " x " << p);
    const auto a = randomTable(random, rows, columns, oneIn), x = copyOf(*a), means = copyOf(*a);
    const auto learned = round % 2 == 0 ? copyOf(*a) : randomTable(random, rows, columns, oneIn);
    Smatrix texts(rows, columns), modes(rows, columns), taught(rows, columns), column(8, 1);
    for (int k = 0; k < cells; ++k) {
      texts.cells[k] = modes.cells[k] = a->getMissing(k) ? u"" : a->values[k] < 0.0 ? u"b" : u"a";
      taught.cells[k] = learned->getMissing(k) ? u"" : learned->values[k] < 0.0 ? u"b" : u"a";
    }
    const std::vector<short> none(8, 0), some = randomFlags(random, 8);
    const short* flags = random.below(3) == 0 ? nullptr : some.data();
    const auto w = randomWeights(random, random.below(4) == 0 ? 3 : 8);
    const matrix ones(8, 1, 1.0), *weights = w ? w.get() : &ones;
    for (int j = 0; j < p; ++j) {
      matrix values(8, 1, 0.0);
      for (int i = 0; i < m; ++i) {
        values.setElement(i, learned->getElement(i, j));
        values.setMissing(i, learned->getMissing(i, j));
        column.setElement(i, weights->getElement(i) == 0.0 ? u"" : taught.getElement(i, j));
      }
      const double mean = V_Mean(&values, m, flags ? flags : none.data(), weights);
      const std::u16string mode = V_Mode(&column, m, flags, weights);
      for (int i = 0; i < n; ++i) {
        if (!a->getMissing(i, j)) continue;
        modes.setElement(i, j, mode);
        if (std::isfinite(mean)) {
          means->setMissing(i, j, false);
          means->setElement(i, j, mean);
        }
      }
    }
    if (round % 2 == 0) {
      EstimateRowsWithMissingMean(x.get(), n, p, flags, w.get());
      EstimateRowsWithMissingMode(&texts, n, p, flags, w.get());
    } else {
      EstimateRowsWithMissingMeanPred(learned.get(), m, x.get(), n, p, flags, w.get());
      EstimateRowsWithMissingModePred(&taught, m, &texts, n, p, flags, w.get());
    }
    EXPECT_TRUE(holds(*x, rows, columns, cellsOf(*means)) && flagsOf(*x) == flagsOf(*means));
    EXPECT_EQ(firstOf(texts.cells, cells), firstOf(modes.cells, cells));
  }
}
