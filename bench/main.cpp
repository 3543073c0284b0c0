#include "ratios.h"

void enterContainers();
void enterSorting();
void enterVectorStatistics();
void enterVectorSums();

int main(int argc, char** argv) {
  enterContainers();
  enterVectorSums();
  enterVectorStatistics();
  enterSorting();
  return runContests(argc, argv);
}
