#include <velmora/platform/time/NumberText.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>

#include "tests/support/PlainNumbers.h"

namespace velmora {
namespace {

TEST(NumberText, WritesExactlyTheFractionDigitsAskedFor) {
  EXPECT_EQ(decimalText(37.78549082, 4), "37.7855");
  EXPECT_EQ(decimalText(0.25, 1), "0.2");
  EXPECT_EQ(decimalText(0.75, 1), "0.8");
  EXPECT_EQ(decimalText(-0.04, 1), "-0.0");
  EXPECT_EQ(decimalText(1234567.0, 0), "1234567");
}

/// As the C library writes it, which rounds the exact decimal expansion, ties to the even digit.
std::string printed(double number, int fractionDigits) {
  const testing::PlainNumbers plain;
  std::array<char, 512> text{};
  std::snprintf(text.data(), text.size(), "%.*f", fractionDigits, number);
  return text.data();
}

void expectAsPrinted(double number, int fractionDigits) {
  ASSERT_EQ(decimalText(number, fractionDigits), printed(number, fractionDigits)) << std::hexfloat << number;
  ASSERT_EQ(decimalText(-number, fractionDigits), printed(-number, fractionDigits))
      << std::hexfloat << -number;
}

TEST(NumberText, OneDecimalIsAsPrintedForEveryHundredthAndItsNeighbours) {
  for (int hundredths = 0; hundredths <= 40000; ++hundredths) {
    const double number = hundredths / 100.0;
    expectAsPrinted(number, 1);
    expectAsPrinted(std::nextafter(number, 1000.0), 1);
    if (number > 0) expectAsPrinted(std::nextafter(number, 0.0), 1);
  }
}

TEST(NumberText, TiesGoToTheEvenDigit) {
  for (int digits = 0; digits <= 8; ++digits) {
    for (int quarters = 0; quarters < 4000; ++quarters) expectAsPrinted(quarters / 4.0 + 1e6, digits);
    for (int k = 1; k < 2000; ++k) expectAsPrinted(std::ldexp(k, -1 - digits), digits);
  }
}

TEST(NumberText, IsAsPrintedForAMillionNumbersOfEverySize) {
  std::mt19937_64 generator(42);
  for (int i = 0; i < 1000000; ++i) {
    const std::uint64_t bits = generator();
    const int exponent = static_cast<int>(bits % 70) - 15;  // 2⁻¹⁵ to beyond 2⁵³
    expectAsPrinted(std::ldexp(static_cast<double>(bits >> 11) * 0x1p-53, exponent), i % 8);
  }
  for (const double number : {0.0, 5e-324, 1e-300, 9e14, 899999999999999.95, 1e22, 1e300}) {
    for (int digits = 0; digits < 8; ++digits) expectAsPrinted(number, digits);
  }
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
