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

}  // namespace
}  // namespace velmora::app
