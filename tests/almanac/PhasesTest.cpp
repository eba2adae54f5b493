#include <velmora/almanac/Phases.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <string>

#include <tests/almanac/AlmanacTesting.h>
#include <tests/almanac/EclipseTesting.h>
#include <tests/support/ErrorSummary.h>
#include <tests/support/NotFinite.h>
#include <tests/support/Tables.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

/// The rows of the table with one of the kinds, in time order.
std::vector<TableRow> rowsOf(std::initializer_list<std::string> kinds) {
  std::vector<TableRow> rows;
  for (TableRow& row : tableRows("moon_phases.txt")) {
    if (std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end()) rows.push_back(std::move(row));
  }
  return rows;
}

double number(TableRow& row) {
  double value = NAN;
  EXPECT_TRUE(row.fields >> value) << row.where;
  return value;
}

TEST(Phases, OfTwoCenturiesAreThoseOfThePreciseEphemeris) {
  auto rows = rowsOf({"new", "first", "full", "last"});
  const std::map<std::string, PrincipalPhase> phaseOf{{"new", PrincipalPhase::newMoon},
                                                      {"first", PrincipalPhase::firstQuarter},
                                                      {"full", PrincipalPhase::fullMoon},
                                                      {"last", PrincipalPhase::lastQuarter}};
  const auto found = phases(firstServed, endServed);
  ErrorSummary errors("phases of 1900 to 2100", " s", 4.0);
  ASSERT_EQ(found.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(found[i].phase, phaseOf.at(rows[i].kind)) << rows[i].where;
    errors.add(terrestrialSeconds(found[i].at) - number(rows[i]), rows[i].where);
  }
  errors.print();
  EXPECT_GE(errors.count(), 9900);
  EXPECT_LE(errors.rms(), 0.8);
}

TEST(Phases, FallInTheMinutesThatWerePublished) {
  // United States Naval Observatory, Phases of the Moon, universal time to the minute.
  const std::array published{utc(2000, 1, 6, 18, 14), utc(2000, 1, 21, 4, 40), utc(2024, 4, 8, 18, 21),
                             utc(2024, 3, 25, 7, 0), utc(2017, 8, 21, 18, 30)};
  for (const Instant minute : published) {
    EXPECT_EQ(phases(minute - Seconds(35), minute + Seconds(35)).size(), 1U) << unixSeconds(minute);
  }
}

TEST(Phases, BelongToTheIntervalThatBeginsWithThem) {
  const Instant newMoon = phases(utc(2024, 4, 8), utc(2024, 4, 9)).at(0).at;
  EXPECT_EQ(phases(newMoon, newMoon + Seconds(1)).size(), 1U);
  EXPECT_TRUE(phases(newMoon - Seconds(1), newMoon).empty());
}

TEST(Phases, DoNotDependOnTheIntervalAskedFor) {
  const auto all = phases(utc(1995, 1, 1), utc(2005, 1, 1));
  std::vector<PhaseEvent> joined;
  for (Instant from = utc(1995, 1, 1); from < utc(2005, 1, 1); from += Seconds(7.5 * 3600)) {
    const Instant to = std::min(from + Seconds(7.5 * 3600), utc(2005, 1, 1));
    for (const PhaseEvent& event : phases(from, to)) joined.push_back(event);
  }
  EXPECT_EQ(joined, all);
}

TEST(Apsides, OfTwoCenturiesAreThoseOfThePreciseEphemeris) {
  auto rows = rowsOf({"perigee", "apogee"});
  const auto found = apsides(firstServed, endServed);
  ErrorSummary times("apsides of 1900 to 2100", " s", 120), distances("their distances", " km", 5);
  ASSERT_EQ(found.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(found[i].isPerigee, rows[i].kind == "perigee") << rows[i].where;
    times.add(terrestrialSeconds(found[i].at) - number(rows[i]), rows[i].where);
    distances.add(found[i].distance - number(rows[i]), rows[i].where);
  }
  times.print();
  distances.print();
  EXPECT_GE(times.count(), 5300);
}

TEST(Apsides, HoldTheNearestMoonsOfTheCentury) {
  // Meeus, "Mathematical Astronomy Morsels", chapter 1; the second is widely published.
  EXPECT_NEAR(apsides(utc(1912, 1, 4), utc(1912, 1, 5)).at(0).distance, 356375, 1.5);
  EXPECT_NEAR(apsides(utc(2016, 11, 14), utc(2016, 11, 15)).at(0).distance, 356509, 1.5);
}

TEST(Apsides, DoNotDependOnTheIntervalAskedFor) {
  const auto all = apsides(utc(2001, 1, 1), utc(2003, 1, 1));
  std::vector<Apsis> joined;
  for (Instant from = utc(2001, 1, 1); from < utc(2003, 1, 1); from += Seconds(86400)) {
    for (const Apsis& apsis : apsides(from, from + Seconds(86400))) joined.push_back(apsis);
  }
  EXPECT_EQ(joined, all);
}

TEST(Seasons, OfTwoCenturiesAreThoseOfThePreciseEphemeris) {
  auto rows = rowsOf({"march", "june", "september", "december"});
  const std::map<std::string, Season> seasonOf{{"march", Season::marchEquinox},
                                               {"june", Season::juneSolstice},
                                               {"september", Season::septemberEquinox},
                                               {"december", Season::decemberSolstice}};
  const auto found = seasons(firstServed, endServed);
  ErrorSummary errors("seasons of 1900 to 2100", " s", 15);
  ASSERT_EQ(found.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(found[i].season, seasonOf.at(rows[i].kind)) << rows[i].where;
    errors.add(terrestrialSeconds(found[i].at) - number(rows[i]), rows[i].where);
  }
  errors.print();
  EXPECT_EQ(errors.count(), 804);
}

TEST(Seasons, FallInTheMinutesThatWerePublished) {
  // United States Naval Observatory, Earth's Seasons, universal time to the minute.
  const std::array published{utc(2023, 3, 20, 21, 24), utc(2023, 6, 21, 14, 58), utc(2023, 9, 23, 6, 50),
                             utc(2023, 12, 22, 3, 27), utc(2025, 3, 20, 9, 1),   utc(2025, 6, 21, 2, 42)};
  for (const Instant minute : published) {
    EXPECT_EQ(seasons(minute - Seconds(45), minute + Seconds(45)).size(), 1U) << unixSeconds(minute);
  }
}

TEST(PhasesAndApsidesAndSeasons, AreEmptyForWhatIsNoIntervalOfTheYearsCovered) {
  for (const double bad : {nan, infinity, -infinity}) {
    const Instant instant = instantFromUnixSeconds(bad);
    EXPECT_TRUE(phases(instant, endServed).empty() && phases(firstServed, instant).empty());
    EXPECT_TRUE(apsides(instant, endServed).empty() && apsides(firstServed, instant).empty());
    EXPECT_TRUE(seasons(instant, endServed).empty() && seasons(firstServed, instant).empty());
  }
  for (const auto& [from, to] :
       {std::pair(endServed, firstServed), std::pair(firstServed, firstServed),
        std::pair(utc(1850, 1, 1), firstServed), std::pair(endServed, utc(2150, 1, 1)),
        std::pair(instantFromUnixSeconds(-1e300), instantFromUnixSeconds(-1e299))}) {
    EXPECT_TRUE(phases(from, to).empty());
    EXPECT_TRUE(apsides(from, to).empty());
    EXPECT_TRUE(seasons(from, to).empty());
  }
}

TEST(PhasesAndApsidesAndSeasons, AreCutToTheYearsCovered) {
  const Instant before = instantFromUnixSeconds(-1e300), after = instantFromUnixSeconds(1e300);
  EXPECT_EQ(phases(before, after), phases(firstServed, endServed));
  EXPECT_EQ(apsides(before, after), apsides(firstServed, endServed));
  EXPECT_EQ(seasons(before, after), seasons(firstServed, endServed));
}

}  // namespace
}  // namespace velmora::almanac
