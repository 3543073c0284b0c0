// Entries that estimate missing cells.

#include "bridge/arguments.h"
#include "bridge/generated/entries.h"
#include "kavoratb1c/missing/estimates.h"
#include "kavoratb1c/missing/nearest_neighbours.h"

using namespace kav;

using namespace bridge;

void entries::VB_EstimateRowsWithMissingMean(double* ioTable, int n, int p, VARIANT_BOOL* iMissing,
                                             double* w) {
  InOutTable a(ioTable, n, p);
  const OptionalVector weights(w, n);
  EstimateRowsWithMissingMean(a, n, p, iMissing, weights);
  store(a);
}

void entries::VB_EstimateRowsWithMissingMeanPred(double* iTable, int nin, double* ioTable, int n, int p,
                                                 VARIANT_BOOL* iMissing, double* w) {
  const InTable learned(iTable, nin, p);
  InOutTable a(ioTable, n, p);
  const OptionalVector weights(w, nin);
  EstimateRowsWithMissingMeanPred(learned, nin, a, n, p, iMissing, weights);
  store(a);
}

void entries::VB_EstimateRowsWithMissingMode(BSTR* ioTable, int n, int p, VARIANT_BOOL* iMissing, double* w) {
  InOutText a(ioTable, n, p);
  const OptionalVector weights(w, n);
  EstimateRowsWithMissingMode(a, n, p, iMissing, weights);
  store(a);
}

void entries::VB_EstimateRowsWithMissingModePred(BSTR* iTable, int nin, BSTR* ioTable, int n, int p,
                                                 VARIANT_BOOL* iMissing, double* w) {
  const InText learned(iTable, nin, p);
  InOutText a(ioTable, n, p);
  const OptionalVector weights(w, nin);
  EstimateRowsWithMissingModePred(learned, nin, a, n, p, iMissing, weights);
  store(a);
}

void entries::VB_EstimateRowsWithMissingNN(double* iTable1Dbl, int n, int p1, VARIANT_BOOL* iMissing,
                                           double* iTable2Dbl, int p2, BSTR* iTable3Str, int p3, double* w) {
  InOutTable table1(iTable1Dbl, n, p1), table2(iTable2Dbl, n, p2);
  InOutText table3(iTable3Str, n, p3);
  const OptionalVector weights(w, n);
  EstimateRowsWithMissingNN(table1, n, p1, iMissing, table2, p2, table3, p3, weights);
  store(table1, table2, table3);
}

void entries::VB_EstimateRowsWithMissingNNPred(double* iiTable1Dbl, int nin, double* iTable1Dbl, int n,
                                               int p1, VARIANT_BOOL* iMissing, double* iiTable2Dbl,
                                               double* iTable2Dbl, int p2, BSTR* iiTable3Str,
                                               BSTR* iTable3Str, int p3, double* w) {
  const InTable learned1(iiTable1Dbl, nin, p1), learned2(iiTable2Dbl, nin, p2);
  const InText learned3(iiTable3Str, nin, p3);
  InOutTable table1(iTable1Dbl, n, p1), table2(iTable2Dbl, n, p2);
  InOutText table3(iTable3Str, n, p3);
  const OptionalVector weights(w, nin);
  EstimateRowsWithMissingNNPred(learned1, nin, table1, n, p1, iMissing, learned2, table2, p2, learned3,
                                table3, p3, weights);
  store(table1, table2, table3);
}
