#include "AppTest.h"

namespace velmora::app {
namespace {

class IcsCommandTest : public AppTest {
 protected:
  /// To the minute.
  static std::string uidsOf(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "ics");
    std::string uids;
    for (const std::string& line : linesOf(answer(arguments))) {
      if (line.starts_with("UID:")) uids += line.substr(4, line.find('Z') - 6) + "\n";
    }
    return uids;
  }
};

TEST_F(IcsCommandTest, HoldsPhasesAndVisibleEclipsesInOrderOfTime) {
  const std::vector<std::string> april = {"--from", "2024-04-01", "--to", "2024-04-30"};
  auto chicago = april, sydney = april;
  chicago.insert(chicago.end(), {"--city", "Chicago"});
  sydney.insert(sydney.end(), {"--city", "Sydney"});
  EXPECT_EQ(uidsOf(chicago),
            "LQ-20240402T0314\nNM-20240408T1820\nTSE-20240408T1907\nFQ-20240415T1913\n"
            "FM-20240423T2348\n");
  EXPECT_EQ(uidsOf(sydney), "LQ-20240402T0314\nNM-20240408T1820\nFQ-20240415T1913\nFM-20240423T2348\n");
}

TEST_F(IcsCommandTest, AnEclipseIsDescribedAsItIsSeenFromThePlace) {
  std::string calendar =
      answer({"ics", "--from", "2024-04-08", "--to", "2024-04-08", "--city", "Chicago", "--24h"});
  for (std::size_t fold = calendar.find("\r\n "); fold != std::string::npos; fold = calendar.find("\r\n "))
    calendar.erase(fold, 3);
  EXPECT_NE(calendar.find("\nDESCRIPTION:Seen from here: partial\\, magnitude 0.942\\, 94% of the Sun "
                          "covered.\\nFrom 2024-04-08 12:51 to 2024-04-08 15:22\\, most at 2024-04-08 "
                          "14:08.\r\n"),
            std::string::npos)
      << calendar;
}

TEST_F(IcsCommandTest, IsNamedAfterThePlace) {
  const std::string calendar =
      answer({"ics", "--from", "2024-04-08", "--to", "2024-04-08", "--city", "Chicago"});
  EXPECT_NE(calendar.find("\nNAME:Velmora\\, Chicago\r\nX-WR-CALNAME:Velmora\\, Chicago\r\n"),
            std::string::npos);
}

TEST_F(IcsCommandTest, TheUidOfAnEclipseIsThatOfThePlaceToo) {
  const auto uidsAt = [](const char* latitude) {
    std::vector<std::string> uids;
    for (const std::string& line :
         linesOf(answer({"ics", "--from", "2024-04-08", "--to", "2024-04-08", "--lat", latitude, "--lon",
                         "-97", "--tz", "America/Chicago"})))
      if (line.starts_with("UID:")) uids.push_back(line);
    return uids;
  };
  const auto one = uidsAt("32.7"), other = uidsAt("32.8");
  ASSERT_EQ(one.size(), 2U);
  EXPECT_EQ(one[0], other[0]) << "a new moon is the same everywhere";
  EXPECT_NE(one[1], other[1]);
  EXPECT_TRUE(one[1].ends_with("Z-32.7000_-97.0000@velmora\r")) << one[1];
}

TEST_F(IcsCommandTest, EventsMayBeDaysOfThePlace) {
  const std::string tokyo =
      answer({"ics", "--from", "2024-04-24", "--to", "2024-04-24", "--city", "Tokyo", "--all-day", "--24h"});
  EXPECT_NE(tokyo.find("\nDTSTART;VALUE=DATE:20240424\r\n"), std::string::npos) << tokyo;
  EXPECT_NE(tokyo.find("\nDESCRIPTION:2024-04-24 08:49\r\n"), std::string::npos) << tokyo;
}

TEST_F(IcsCommandTest, TheRangeIsOfDaysAtThePlace) {
  EXPECT_EQ(uidsOf({"--from", "2024-04-24", "--to", "2024-04-24", "--city", "Tokyo"}), "FM-20240423T2348\n");
  EXPECT_EQ(uidsOf({"--from", "2024-04-23", "--to", "2024-04-23", "--city", "Tokyo"}), "");
}

TEST_F(IcsCommandTest, ARangeThatThePlaceSkippedIsEmpty) {
  EXPECT_EQ(uidsOf({"--from", "2011-12-30", "--to", "2011-12-30", "--city", "Apia"}), "");
}

TEST_F(IcsCommandTest, TextsAreInTheLanguageOfTheUser) {
  const std::string calendar = answer(
      {"ics", "--from", "2025-03-14", "--to", "2025-03-14", "--city", "New York", "--locale", "de_DE"});
  EXPECT_NE(calendar.find("SUMMARY:Totale Mondfinsternis\r\nLOCATION:New York City\r\n"), std::string::npos);
  EXPECT_NE(calendar.find("SUMMARY:Vollmond\r\n"), std::string::npos);
}

TEST_F(IcsCommandTest, AnUnnamedPlaceIsCalledByItsCoordinates) {
  EXPECT_NE(answer({"ics", "--from", "2025-03-14", "--to", "2025-03-14", "--lat", "40.7", "--lon", "-74"})
                .find("LOCATION:40.7000° N\\, 74.0000° W\r\n"),
            std::string::npos);
}

TEST_F(IcsCommandTest, IsStampedWithThePresent) {
  EXPECT_NE(
      answer({"ics", "--from", "2024-04-08", "--to", "2024-04-08"}).find("DTSTAMP:20240620T120000Z\r\n"),
      std::string::npos);
}

TEST_F(IcsCommandTest, InJsonItIsTheWholeCalendarAsOneText) {
  const std::vector<std::string> arguments = {"ics", "--from", "2024-04-01", "--to", "2024-04-30"};
  EXPECT_EQ(json(arguments), Json({{"calendar", answer(arguments)}}));
}

TEST_F(IcsCommandTest, BadRangesAreBadInput) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"ics"}, "from and to are missing"},
      {{"ics", "--from", "2024-01-01"}, "from and to come together"},
      {{"ics", "--from", "2024-01-02", "--to", "2024-01-01"}, "runs backwards"},
      {{"ics", "--from", "1899-12-31", "--to", "1900-01-01"}, "out of range"},
      {{"ics", "--from", "2100-12-30", "--to", "2100-12-31"}, "the day 2100-12-31 is not wholly known"},
  };
  for (const auto& [arguments, message] : cases) {
    const Outcome outcome = runProgram(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
  }
}

}  // namespace
}  // namespace velmora::app
