#include "ratios.h"

void enterContainers();
void enterVectorSums();

int main(int argc, char** argv) {
  enterContainers();
  enterVectorSums();
  return runContests(argc, argv);
}
