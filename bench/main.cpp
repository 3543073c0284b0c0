#include "ratios.h"

void enterAlgebra();
void enterContainers();
void enterSorting();
void enterVectorStatistics();
void enterVectorSums();

int main(int argc, char** argv) {
  enterContainers();
  enterVectorSums();
  enterVectorStatistics();
  enterSorting();
  enterAlgebra();
  return runContests(argc, argv);
}
