#include <velmora/platform/time/NumberFormatter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

namespace velmora {
namespace {

NumberFormatter in(const char* identifier, NumberFormatter::Style style = NumberFormatter::Style::none) {
  NumberFormatter formatter;
  formatter.setLocale(Locale(identifier));
  formatter.setStyle(style);
  return formatter;
}

constexpr auto decimal = NumberFormatter::Style::decimal;

TEST(NumberFormatter, StartsInTheCurrentLocaleWithoutAStyle) {
  const ScopedLocale egypt("ar_EG");
  EXPECT_EQ(NumberFormatter().locale(), Locale("ar_EG"));
  EXPECT_EQ(NumberFormatter().stringFromNumber(std::int64_t{2024}), "٢٠٢٤");
}

TEST(NumberFormatter, WritesIntegersWithTheLocalesDigitsAndWithoutGroups) {
  const std::pair<const char*, const char*> cases[] = {
      {"en_US", "1234567"}, {"de_DE", "1234567"}, {"ar_EG", "١٢٣٤٥٦٧"}, {"ara", "١٢٣٤٥٦٧"},
      {"fa_IR", "۱۲۳۴۵۶۷"}, {"he", "1234567"},    {"mr_IN", "१२३४५६७"}, {"th_TH", "1234567"},
      {"xx_YY", "1234567"}, {"", "1234567"},
  };
  for (const auto& [identifier, text] : cases) {
    EXPECT_EQ(in(identifier).stringFromNumber(std::int64_t{1234567}), text) << identifier;
  }
  EXPECT_EQ(in("en_US").stringFromNumber(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(NumberFormatter, WithoutAStyleADoubleIsRoundedToTheNearestEvenInteger) {
  EXPECT_EQ(in("en_US").stringFromNumber(2.5), "2");
  EXPECT_EQ(in("en_US").stringFromNumber(3.5), "4");
  EXPECT_EQ(in("en_US").stringFromNumber(1234.4), "1234");
}

TEST(NumberFormatter, DecimalsAreGroupedAndHaveThreeFractionDigitsAtMost) {
  EXPECT_EQ(in("en_US", decimal).stringFromNumber(1234.56789), "1,234.568");
  EXPECT_EQ(in("de_DE", decimal).stringFromNumber(1234.5), "1.234,5");
  EXPECT_EQ(in("ar_EG", decimal).stringFromNumber(1234.5), "١٬٢٣٤٫٥");
  EXPECT_EQ(in("en_US", decimal).stringFromNumber(std::int64_t{-1234}), "-1,234");
}

TEST(NumberFormatter, WritesNoMoreFractionDigitsThanAllowed) {
  NumberFormatter formatter = in("en_US", decimal);
  formatter.setMaximumFractionDigits(1);
  EXPECT_EQ(formatter.stringFromNumber(-12.34), "-12.3");
  EXPECT_EQ(formatter.stringFromNumber(12.0), "12");
  EXPECT_EQ(formatter.stringFromNumber(45.25), "45.2");
  formatter.setMaximumFractionDigits(-1);
  EXPECT_EQ(formatter.stringFromNumber(12.34), "12");
}

TEST(NumberFormatter, WhatIsNoNumberHasTheLocalesName) {
  EXPECT_EQ(in("en_US").stringFromNumber(std::nan("")), "NaN");
  EXPECT_EQ(in("de_DE", decimal).stringFromNumber(-std::nan("")), "NaN");
  EXPECT_EQ(in("fa_IR", decimal).stringFromNumber(std::nan("")), "ناعدد");
  EXPECT_EQ(in("en_US").stringFromNumber(std::numeric_limits<double>::infinity()), "∞");
}

TEST(NumberFormatter, AnUnknownLocaleDoesNotFollowTheEnvironment) {
  EXPECT_EQ(in("xx_YY", decimal).stringFromNumber(1234.5), "1,234.5");
}

TEST(NumberFormatter, WorksInEveryThread) {
  std::string text;
  std::thread([&text] { text = in("ar_EG").stringFromNumber(std::int64_t{7}); }).join();
  EXPECT_EQ(text, "٧");
}

}  // namespace
}  // namespace velmora
