#include <algorithm>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

using CalendarCommandTest = PictureTest;

constexpr const char* page = "/Type /Page ";

std::size_t pagesOf(const std::string& pdf) {
  std::size_t count = 0;
  for (auto at = pdf.find(page); at != std::string::npos; at = pdf.find(page, at + 1)) ++count;
  return count;
}

TEST_F(CalendarCommandTest, IsAPdfOfTwelvePagesOrOfAMonth) {
  EXPECT_EQ(pagesOf(bytesOf(draw({"calendar", "--date", "2026-05-10"}, "year.pdf"))), 12U);
  EXPECT_EQ(pagesOf(bytesOf(draw({"calendar", "--month", "2026-05"}, "may.pdf"))), 1U);
}

TEST_F(CalendarCommandTest, IsAPictureOfOneMonth) {
  const std::string may = bytesOf(draw({"calendar", "--month", "2026-05"}, "a.png"));
  EXPECT_EQ(bytesOf(draw({"calendar", "--date", "2026-05-10"}, "b.png")), may);
  EXPECT_NE(bytesOf(draw({"calendar", "--month", "2026-06"}, "c.png")), may);
}

TEST_F(CalendarCommandTest, KnowsTheMonthsOfTheAlmanac) {
  EXPECT_EQ(statedSize(draw({"calendar", "--month", "1901-07"}, "a.svg")), (Size{595, 842}));
  EXPECT_EQ(
      runProgram({"draw", "calendar", "--month", "2100-12", "--city", "Honolulu", "-o", path("b.png")}).err,
      "velmora: part of the poster lies outside the years 1900 to 2100\n");
}

TEST_F(CalendarCommandTest, NamesTheDaysOfAFile) {
  folder().write("days.ics",
                 "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nDTSTART;VALUE=DATE:20200501\r\nRRULE:FREQ=YEARLY\r\n"
                 "SUMMARY:May Day\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
  const auto isTheSameIn = [&](const std::string& month) {
    const std::string plain = bytesOf(draw({"calendar", "--month", month}, "a.png"));
    return bytesOf(draw({"calendar", "--month", month, "--ics", path("days.ics")}, "b.png")) == plain;
  };
  EXPECT_FALSE(isTheSameIn("2026-05"));
  EXPECT_TRUE(isTheSameIn("2026-06"));
}

TEST_F(CalendarCommandTest, RefusesADamagedFileInOneLine) {
  folder().write("days.ics", "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\n");
  const Outcome outcome = runProgram({"draw", "calendar", "-o", path("a.png"), "--ics", path("days.ics")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.err.find("is no calendar, or not a whole one"), std::string::npos) << outcome.err;
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
  EXPECT_FALSE(std::filesystem::exists(path("a.png")));
}

TEST_F(CalendarCommandTest, OfABatchReadsNoFile) {
  const std::string line =
      jsonLine({{"op", "draw"}, {"view", "calendar"}, {"output", "a.png"}, {"ics", "/etc/passwd"}}) + "\n";
  const Outcome outcome = runProgram({"batch", "--pictures", folder().path().string()}, line);
  EXPECT_TRUE(jsonFromText(outcome.out).contains("error"));
}

}  // namespace
}  // namespace velmora::app
