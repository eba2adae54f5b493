#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>

#include <tests/support/Tables.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberFormatter.h>

namespace velmora {
namespace {

using Style = DateFormatter::Style;

/// What CLDR has changed in one version and another: which space stands between, and marks of direction.
/// Digits are made European ones.
std::string plain(std::string text) {
  const auto replaceAll = [&text](std::string_view from, std::string_view to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size())
      text.replace(at, from.size(), to);
  };
  for (const char* wide : {"\u00a0", "\u202f", "\u2009"}) replaceAll(wide, " ");
  replaceAll("\u2212", "-");
  for (const char* mark : {"\u200e", "\u200f", "\u061c"}) replaceAll(mark, "");
  constexpr std::array digits = {"٠", "١", "٢", "٣", "٤", "٥", "٦", "٧", "٨", "٩"};
  for (std::size_t digit = 0; digit < digits.size(); ++digit)
    replaceAll(digits[digit], std::to_string(digit));
  return text;
}

/// A row of locale_texts.txt: what is asked of a locale, and the texts that versions of CLDR have for it.
struct Row {
  std::string where, locale, asked, argument;
  std::vector<std::string> texts;

  void expect(const std::string& text) const {
    EXPECT_NE(std::find(texts.begin(), texts.end(), plain(text)), texts.end())
        << where << ": " << locale << ", " << argument << ": \"" << plain(text) << "\", not \""
        << texts.front() << '"';
  }
};

std::vector<Row> rows() {
  std::vector<Row> rows;
  for (auto& line : testing::tableRows("locale_texts.txt")) {
    Row row = {.where = line.where, .locale = line.kind, .asked = "", .argument = "", .texts = {}};
    line.fields >> std::ws;
    std::getline(line.fields, row.asked, '\t');
    std::getline(line.fields, row.argument, '\t');
    for (std::string text; std::getline(line.fields, text, '\t');) row.texts.push_back(text);
    rows.push_back(std::move(row));
  }
  return rows;
}

Instant instantOf(const std::string& text) {
  DateFormatter iso;
  iso.setLocale(Locale("en_US"));
  iso.setTimeZone(TimeZone::fixed(0));
  iso.setDateFormat("yyyy-MM-dd HH:mm");
  return iso.dateFromString(text).value();
}

DateFormatter formatterFor(const Row& row) {
  DateFormatter formatter;
  formatter.setLocale(Locale(row.locale));
  formatter.setTimeZone(TimeZone::fixed(0));
  if (row.argument == "short time") {
    formatter.setTimeStyle(Style::shortStyle);
  } else if (row.argument == "medium date") {
    formatter.setDateStyle(Style::mediumStyle);
  } else if (row.argument == "MMMd") {
    formatter.setDateFormat(DateFormatter::dateFormatFromTemplate(row.argument, formatter.locale()));
  } else {
    formatter.setDateFormat(row.argument);
  }
  return formatter;
}

TEST(ConformanceOfTexts, DatesReadAsEachLanguageWritesThem) {
  for (const Row& row : rows()) {
    if (row.asked != "number") row.expect(formatterFor(row).stringFromDate(instantOf(row.asked)));
  }
}

TEST(ConformanceOfTexts, NumbersReadAsEachLanguageWritesThem) {
  for (const Row& row : rows()) {
    if (row.asked != "number") continue;
    NumberFormatter formatter;
    formatter.setLocale(Locale(row.locale));
    formatter.setStyle(NumberFormatter::Style::decimal);
    row.expect(formatter.stringFromNumber(std::stod(row.argument)));
  }
}

TEST(ConformanceOfTexts, EveryLanguageReadsTheDatesItWrites) {
  for (const Row& row : rows()) {
    if (row.argument != "EEE d MMMM yyyy" && row.argument != "yyyy-MM-dd HH:mm") continue;
    const DateFormatter formatter = formatterFor(row);
    const std::string text = formatter.stringFromDate(instantOf(row.asked));
    const auto read = formatter.dateFromString(text);
    ASSERT_TRUE(read) << row.where << ": " << text;
    EXPECT_EQ(formatter.stringFromDate(*read), text) << row.where;
  }
}

TEST(ConformanceOfTexts, NamesOfWeekdaysAndMonthsAreThoseWithinDates) {
  const std::vector<std::string> days = DateFormatter::shortWeekdaySymbols(Locale("de_DE"));
  EXPECT_EQ(days, (std::vector<std::string>{"So.", "Mo.", "Di.", "Mi.", "Do.", "Fr.", "Sa."}));
  const std::vector<std::string> months = DateFormatter::shortMonthSymbols(Locale("ja_JP"));
  ASSERT_EQ(months.size(), 12U);
  EXPECT_EQ(months.front(), "1月");
  EXPECT_EQ(months.back(), "12月");
}

}  // namespace
}  // namespace velmora
