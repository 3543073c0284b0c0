// The debug dumps, character by character.

#include <gtest/gtest.h>

#include <string>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/matrix.h"

using namespace kav;

namespace {

template <class Container>
std::string dumpOf(const Container& container) {
  testing::internal::CaptureStdout();
  container.print();
  std::string text = testing::internal::GetCapturedStdout();
  std::erase(text, '\r');  // ends of lines where standard output is a text stream
  return text;
}

TEST(MatrixPrint, ShowsCellsMissingCellsWeightsAndDenominators) {
  const double a[] = {2.385, kMissing, -0.0, 1e15, kMissing, -31.4159265};
  const std::string start =
      "******\nMatrix  view: nX 2 pX 3 "
      "\n line 0 \t 2.385000\t -0.000000\t miss.Val"
      "\n line 1 \t miss.Val\t 1000000000000000.000000\t -31.415927"
      " sumOfWeights = 2.000000  \n";
  EXPECT_EQ(dumpOf(matrix(2, 3, a, false, 0, 0)),
            start +
                "\t i = 0 weightcorr = 0.000000 \t i = 1 weightcorr = 1.000000 "
                "\t i = 2 weightcorr = 0.000000 ******\n******\n");
  EXPECT_EQ(dumpOf(matrix(2, 3, a, true, 0, 0)),
            start +
                "\t i = 0 weightcorr = 1.000000 \t i = 1 weightcorr = 1.000000 "
                "\t i = 2 weightcorr = 1.000000 ******\n******\n");
}

TEST(MatrixPrint, ShowsStatisticsWhileTheyAreValid) {
  matrix m(1, 2, 7.25);
  for (int j = 0; j < 2; ++j) {
    m.normu[j] = 2.385 + j;
    m.norsigma[j] = 0.61 + j;
    m.descmu[j] = -4.75 - j;
    m.descsigma[j] = 12.5 + j;
  }
  const std::string start =
      "******\nMatrix  view: nX 1 pX 2 \n line 0 \t 7.250000\t 7.250000 sumOfWeights = 1.000000  \n"
      "\t i = 0 weightcorr = 0.000000 \t i = 1 weightcorr = 0.000000 ******\n";
  const std::string norm =
      "\n var n 0 normu = 2.385000 norsigma = 0.610000 \n var n 1 normu = 3.385000 norsigma = 1.610000 ";
  const std::string desc =
      "\n var n 0 descmu = -4.750000 descsigma = 12.500000 \n var n 1 descmu = -5.750000 descsigma = "
      "13.500000 ";
  EXPECT_EQ(dumpOf(m), start + "******\n");
  m.normalized = 1;
  EXPECT_EQ(dumpOf(m), start + norm + "******\n");
  m.descValid = 1;
  EXPECT_EQ(dumpOf(m), start + norm + desc + "******\n");
  m.normalized = 0;
  EXPECT_EQ(dumpOf(m), start + desc + "******\n");
}

TEST(MatrixPrint, ShowsATableWithoutCells) {
  EXPECT_EQ(dumpOf(matrix(0, 1, 2.385)),
            "******\nMatrix  view: nX 0 pX 1  sumOfWeights = 0.000000  \n\t i = 0 weightcorr = -1.000000 "
            "******\n******\n");
  EXPECT_EQ(
      dumpOf(matrix(2, -3, 2.385)),
      "******\nMatrix  view: nX 2 pX -3 \n line 0 \n line 1  sumOfWeights = 2.000000  \n******\n******\n");
}

TEST(MatrixPrint, ShowsNoStatisticsForColumnsThatWereNotBuilt) {
  matrix m(2, 1, 7.25);
  m.transposeTo(&m);
  m.normalized = m.descValid = 1;
  EXPECT_EQ(dumpOf(m),
            "******\nMatrix  view: nX 1 pX 2 \n line 0 \t 7.250000\t 7.250000 sumOfWeights = 2.000000  \n"
            "\t i = 0 weightcorr = 1.000000 ******\n\n var n 0 normu = 0.000000 norsigma = 0.000000 "
            "\n var n 0 descmu = 0.000000 descsigma = 0.000000 ******\n");
}

TEST(SmatrixPrint, ShowsTheBytesOfACellUpToTheFirstZero) {
  Smatrix m(2, 2);
  m.setElement(0, u"left");
  m.setElement(2, u"%d");
  m.setElement(3, u"\x4142\x0043x");
  EXPECT_EQ(dumpOf(m), "******\nSMatrix  view: nX 2 pX 2 \n line 0 \t l\t %\n line 1 \t \t BAC******\n");
  EXPECT_EQ(dumpOf(Smatrix(0, 2)), "******\nSMatrix  view: nX 0 pX 2 ******\n");
  EXPECT_EQ(dumpOf(Smatrix(1, -3)), "******\nSMatrix  view: nX 1 pX -3 \n line 0 ******\n");
}

}  // namespace
