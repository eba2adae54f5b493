#include <velmora/platform/time/NumberText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>

namespace velmora {
namespace {

TEST(NumberText, WritesExactlyTheFractionDigitsAskedFor) {
  EXPECT_EQ(decimalText(37.78549082, 4), "37.7855");
  EXPECT_EQ(decimalText(0.25, 1), "0.2");
  EXPECT_EQ(decimalText(0.75, 1), "0.8");
  EXPECT_EQ(decimalText(-0.04, 1), "-0.0");
  EXPECT_EQ(decimalText(1234567.0, 0), "1234567");
}

TEST(NumberText, WhatIsNoNumberReadsNanWithoutASign) {
  EXPECT_EQ(decimalText(std::nan(""), 1), "nan");
  EXPECT_EQ(decimalText(-std::nan(""), 1), "nan");
  EXPECT_EQ(decimalText(-std::numeric_limits<double>::infinity(), 1), "-inf");
}

class CommaAndGroups : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, IsTheSameWhateverLocaleTheProgramIsIn) {
  const std::locale former = std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
  EXPECT_EQ(decimalText(1234.5, 1), "1234.5");
  EXPECT_EQ(integerText(1234), "1234");
  std::locale::global(former);
}

TEST(NumberText, PutsZerosBetweenTheSignAndTheDigits) {
  EXPECT_EQ(integerText(0, 2), "00");
  EXPECT_EQ(integerText(5, 2), "05");
  EXPECT_EQ(integerText(-5, 2), "-05");
  EXPECT_EQ(integerText(-12, 2), "-12");
  EXPECT_EQ(integerText(1440, 2), "1440");
  EXPECT_EQ(integerText(-7), "-7");
}

}  // namespace
}  // namespace velmora
