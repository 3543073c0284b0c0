#include "missing/missing_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(MissingValues, NumbersAtOrBelowTheMarker) {
  EXPECT_EQ(kMissing, -1.79769313486231E+308);
  EXPECT_EQ(IsMissingValueDbl(kMissing), -1);
  EXPECT_EQ(IsMissingValueDbl(-std::numeric_limits<double>::max()), -1);
  EXPECT_EQ(IsMissingValueDbl(-std::numeric_limits<double>::infinity()), -1);
  EXPECT_EQ(IsMissingValueDbl(std::nextafter(kMissing, 0.0)), 0);
  EXPECT_EQ(IsMissingValueDbl(-1.7E+306), 0);
  EXPECT_EQ(IsMissingValueDbl(NAN), 0);
}

TEST(MissingValues, EmptyTexts) {
  EXPECT_EQ(IsMissingValueStr(u""), -1);
  EXPECT_EQ(IsMissingValueStr(u" "), 0);
}

TEST(MissingValues, VectorsAreMadeOrRefilled) {
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

TEST(MissingValues, FlagsAreClearedUpToTheEnd) {
  short flags[] = {-1, -1, -1};
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags, 2), 0);
  EXPECT_EQ(flags[1], 0);
  EXPECT_EQ(flags[2], -1);
  EXPECT_EQ(InitVARIANTBOOLToFalse(flags, -1), 0);
  EXPECT_EQ(flags[2], -1);
  EXPECT_EQ(InitVARIANTBOOLToFalse(nullptr, 5), 0);
}
