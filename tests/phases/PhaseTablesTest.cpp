#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iostream>
#include <map>

#include "Differences.h"
#include "Lunation.h"
#include "ShippedData.h"

namespace velmora {
namespace {

const std::vector<shipped::Event>& events() {
  static const std::vector<shipped::Event> all = shipped::phases();
  return all;
}

TEST(PhaseTables, EveryLineFollowsTheGrammar) { EXPECT_NO_THROW(shipped::phases()); }

TEST(PhaseTables, EachPhaseFalls507TimesIn41Years) {
  std::map<std::string, int> counts;
  for (const auto& event : events()) ++counts[event.code];
  EXPECT_EQ(counts, (std::map<std::string, int>{{"FM", 507}, {"FQ", 507}, {"LQ", 507}, {"NM", 507}}));
}

TEST(PhaseTables, PhasesFollowOneAnotherWithoutGap) {
  constexpr std::array order{"NM", "FQ", "FM", "LQ"};
  // January 2000 begins with the new moon of the 6th, December 2040 ends with the last quarter of the 26th.
  for (std::size_t i = 0; i < events().size(); ++i) {
    EXPECT_EQ(events()[i].code, order[i % order.size()]) << events()[i].source;
  }
}

TEST(PhaseTables, AQuarterOfALunationTakesSixAndAHalfToEightAndAHalfDays) {
  for (std::size_t i = 1; i < events().size(); ++i) {
    const double days = (events()[i].time - events()[i - 1].time).count() / 86400;
    EXPECT_GT(days, 6.5) << events()[i].source;
    EXPECT_LT(days, 8.5) << events()[i].source;
  }
}

TEST(PhaseTables, AgreeWithThePeriodicTermsOfTheLunation) {
  shipped::Differences differences;
  double k = 0;  // the new moon of 2000-01-06
  for (const auto& event : events()) {
    differences.add(event.time - meeus::utcFromTT(meeus::phaseInstant(k)), event.source);
    k += 0.25;
  }
  std::cout << "phases: " << differences.summary() << '\n';
  EXPECT_LE(differences.largest(), Seconds(90));
}

// By the Universal Time that eclipse canons extrapolate (Delta T of 81 s in 2035) the mean would be 12 s off.
TEST(PhaseTables, KeepTheLeapSecondsOf2017ToTheEnd) {
  const Instant lastDecade = std::chrono::sys_days(std::chrono::year(2031) / 1 / 1);
  Seconds sum(0);
  int count = 0;
  double k = 0;
  for (const auto& event : events()) {
    if (event.time >= lastDecade) {
      sum += event.time - meeus::utcFromTT(meeus::phaseInstant(k));
      ++count;
    }
    k += 0.25;
  }
  EXPECT_EQ(count, 494);
  EXPECT_LT(std::abs(sum.count() / count), 3);
}

}  // namespace
}  // namespace velmora
