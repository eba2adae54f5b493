#include <app/text/ICalendar.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

const Instant stamp = instantFromText("2024-01-02T03:04:05Z").value();
const Instant greatest = instantFromText("2024-04-08T18:17:00Z").value();

/// The logical lines of a calendar: without their ends and unfolded.
std::vector<std::string> unfolded(const std::string& calendar) {
  std::vector<std::string> lines;
  for (std::string line : linesOf(calendar)) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    line.pop_back();
    EXPECT_LE(line.size(), 75U) << line;
    if (line.starts_with(' ')) {
      lines.back() += line.substr(1);
    } else {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST(ICalendar, AnEventIsAnInstantInUniversalTime) {
  EXPECT_EQ(iCalendar("Moon", {{"TSE", greatest, "Total Solar Eclipse", "Dallas"}}, stamp),
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Velmora//velmora 0.1.0//EN\r\n"
            "NAME:Moon\r\nX-WR-CALNAME:Moon\r\n"
            "BEGIN:VEVENT\r\nUID:TSE-20240408T181700Z@velmora\r\nDTSTAMP:20240102T030405Z\r\n"
            "DTSTART:20240408T181700Z\r\nSUMMARY:Total Solar Eclipse\r\nLOCATION:Dallas\r\n"
            "TRANSP:TRANSPARENT\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
}

TEST(ICalendar, TheUidIsThatOfKindAndInstantAlone) {
  const auto before = unfolded(iCalendar("Moon", {{"FM", greatest, "Full Moon", std::nullopt}}, stamp));
  const auto after = unfolded(iCalendar("Moon", {{"FM", greatest, "Vollmond", "x"}}, stamp + Seconds(60)));
  EXPECT_EQ(before.at(6), "UID:FM-20240408T181700Z@velmora");
  EXPECT_EQ(before.at(6), after.at(6));
}

TEST(ICalendar, AnEventMayBeADayAndBelongToAPlace) {
  const auto lines = unfolded(iCalendar("Moon",
                                        {{.kind = "FM",
                                          .instant = greatest,
                                          .summary = "Full Moon",
                                          .place = "1.5_-2.5",
                                          .day = dateFromText("2024-04-09")}},
                                        stamp));
  EXPECT_EQ(lines.at(6), "UID:FM-20240408T181700Z-1.5_-2.5@velmora");
  EXPECT_EQ(lines.at(8), "DTSTART;VALUE=DATE:20240409");
}

TEST(ICalendar, TextIsEscaped) {
  const auto lines =
      unfolded(iCalendar("Moon", {{"FM", greatest, "a\\b;c,d:e\"f\nnext\tline\x7f", ""}}, stamp));
  EXPECT_EQ(lines.at(9), "SUMMARY:a\\\\b\\;c\\,d:e\"f\\nnextline");
  EXPECT_EQ(lines.at(10), "LOCATION:");
}

TEST(ICalendar, LongLinesAreFoldedBetweenCharacters) {
  for (const std::string letter : {"x", "é", "満", "🌕"}) {
    for (std::size_t shift = 0; shift < 4; ++shift) {
      std::string summary(shift, '-');
      for (int i = 0; i < 120; ++i) summary += letter;
      const std::string calendar = iCalendar("Moon", {{"FM", greatest, summary, std::nullopt}}, stamp);
      EXPECT_EQ(unfolded(calendar).at(9), "SUMMARY:" + summary);
      for (const std::string& line : linesOf(calendar))
        EXPECT_NO_THROW(Json(line.substr(0, line.size() - 1)).dump()) << "a cut character in " << line;
    }
  }
}

TEST(ICalendar, ALineOf75BytesIsNotFolded) {
  const std::string fits(75 - std::string("SUMMARY:").size(), 'x');
  EXPECT_NE(iCalendar("Moon", {{"FM", greatest, fits, std::nullopt}}, stamp).find(":" + fits + "\r\n"),
            std::string::npos);
  EXPECT_NE(iCalendar("Moon", {{"FM", greatest, fits + "y", std::nullopt}}, stamp).find("x\r\n y\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace velmora::app
