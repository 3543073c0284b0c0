#include "ratios.h"

void enterAssembly();
void enterContainers();
void enterDecompositions();
void enterMissing();
void enterProducts();
void enterSorting();
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
  enterTables();
  enterAssembly();
  enterMissing();
  return runContests(argc, argv);
}
