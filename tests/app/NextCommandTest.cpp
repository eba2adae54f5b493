#include "AppTest.h"

namespace velmora::app {
namespace {

class NextCommandTest : public AppTest {
 protected:
  static Json next(const char* now, const char* zone = "UTC") {
    return json({"next", "--now", now, "--tz", zone, "--24h"});
  }

  static Json phasesAndInstants(const Json& events) {
    Json list = Json::array();
    for (const Json& event : events) list.push_back({event["phase"], event["localDate"]});
    return list;
  }
};

TEST_F(NextCommandTest, IsTheNextOfEachPhaseInOrderOfTime) {
  EXPECT_EQ(phasesAndInstants(next("2024-12-20T00:00:00Z")),
            Json::parse(R"([[2, "2024-12-22T22:18:00Z"], [3, "2024-12-30T22:27:00Z"],
                            [1, "2025-01-06T23:56:00Z"], [0, "2025-01-13T22:27:00Z"]])"));
}

TEST_F(NextCommandTest, AnEventIsOverAtItsOwnInstant) {
  EXPECT_EQ(next("2024-03-25T06:59:59Z")[0]["localDate"], "2024-03-25T07:00:00Z");
  EXPECT_EQ(next("2024-03-25T07:00:00Z")[0]["localDate"], "2024-04-02T03:15:00Z");
  EXPECT_EQ(next("2024-03-25T07:00:00Z").back()["phaseName"], "Full Moon");
}

TEST_F(NextCommandTest, InstantsAreThoseOfEveryZone) {
  for (const char* now : {"2024-12-31T23:00:00Z", "2025-01-01T00:30:00Z", "2009-12-31T19:12:00Z"}) {
    const Json universal = phasesAndInstants(next(now));
    for (const char* zone : {"Pacific/Pago_Pago", "Asia/Kathmandu", "Pacific/Kiritimati"})
      EXPECT_EQ(phasesAndInstants(next(now, zone)), universal) << now << " " << zone;
  }
}

TEST_F(NextCommandTest, AllFourPhasesComeWithinALunation) {
  for (int year = 2000; year <= 2040; ++year) {
    const std::string now = std::to_string(year) + "-11-20T12:00:00Z";
    EXPECT_EQ(next(now.c_str()).size(), 4U) << year;
  }
}

TEST_F(NextCommandTest, EndsWithTheTables) {
  EXPECT_EQ(phasesAndInstants(next("2040-12-20T00:00:00Z")), Json::parse(R"([[2, "2040-12-26T17:02:00Z"]])"));
  EXPECT_EQ(next("2040-12-31T00:00:00Z"), Json::array());
  const std::string text = answer({"next", "--now", "2040-12-20T00:00:00Z"});
  EXPECT_TRUE(text.ends_with("\nThe tables end with 2040.\n")) << text;
  EXPECT_TRUE(answer({"next", "--now", "2040-12-31T00:00:00Z"}).ends_with("\n\nThe tables end with 2040.\n"));
}

TEST_F(NextCommandTest, SaysHowManyDaysAway) {
  const auto lines = linesOf(answer({"next", "--now", "2024-06-20T23:30:00Z", "--city", "London", "--24h"}));
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[4], "🌕  Sat 2024-06-22 02:08  tomorrow    Full Moon");
  EXPECT_EQ(lines[5], "🌗  Fri 2024-06-28 22:53  in 7 days   Last Quarter");
  EXPECT_EQ(lines[6], "🌑  Fri 2024-07-05 23:57  in 14 days  New Moon");
  const auto today = linesOf(answer({"next", "--now", "2024-06-22T00:30:00Z", "--city", "London", "--24h"}));
  EXPECT_EQ(today[4], "🌕  Sat 2024-06-22 02:08  today       Full Moon");
}

}  // namespace
}  // namespace velmora::app
