#include "ratios.h"

void enterAssembly();
void enterContainers();
void enterDecompositions();
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
  return runContests(argc, argv);
}
