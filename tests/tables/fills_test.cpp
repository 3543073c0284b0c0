#include "kavoratb1c/tables/fills.h"

#include <gtest/gtest.h>

TEST(Fills, VectorsAreMadeOrRefilled) {
  matrix* v = nullptr;
  EXPECT_EQ(SetVectorToValue(v, 3, 2.385), 0);
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v->getElement(2), 2.385);
  matrix* const made = v;
  EXPECT_EQ(InitVectorToFalse(v, 3), 0);
  EXPECT_EQ(v, made);
  EXPECT_EQ(v->getElement(2), 0.0);
  InitVectorToFalse(v, 4);
  EXPECT_NE(v, made);
  EXPECT_EQ(v->getNbrLines(), 4);
  EXPECT_EQ(v->getNbrCols(), 1);
  delete made;
  delete v;
}

TEST(Fills, FlagsAreClearedUpToTheEnd) {
  short flags[] = {-1, -1, -1};
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags, 2), 0);
  EXPECT_EQ(flags[1], 0);
  EXPECT_EQ(flags[2], -1);
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags, -1), 0);
  EXPECT_EQ(flags[2], -1);
  EXPECT_EQ(InitVARIANTBOOLToFalse(nullptr, 5), 0);
}
