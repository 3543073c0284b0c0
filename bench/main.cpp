#include "ratios.h"

void enterAlgebra();
void enterContainers();
void enterDecompositions();
void enterMissing();
void enterProducts();
void enterSorting();
void enterRegressions();
void enterTables();
void enterVectorStatistics();
void enterVectorSums();

int main(int argc, char** argv) {
  enterContainers();
  enterVectorSums();
  enterVectorStatistics();
  enterSorting();
  enterProducts();
  enterDecompositions();
  enterAlgebra();
  enterTables();
  enterRegressions();
  enterMissing();
  return runContests(argc, argv);
}
