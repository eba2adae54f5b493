#include <app/answers/RequestScope.h>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/service/MoonPhaseData.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using RequestScopeTest = AppTest;

std::int64_t timeFormat() { return SettingsModel::sharedInstance().timeFormat(); }

TEST_F(RequestScopeTest, TheProcessIsAsTheRequestWantsAndAsBeforeAfterwards) {
  Request request;
  request.now = instant("2030-01-01T00:00:00Z");
  request.locale = Locale("fi_FI");
  {
    const RequestScope scope(request);
    EXPECT_EQ(Clock::now(), *request.now);
    EXPECT_EQ(Locale::current().identifier(), "fi_FI");
    EXPECT_TRUE(scope.use24HourClock());
    EXPECT_EQ(timeFormat(), 1);
  }
  EXPECT_EQ(Clock::now(), instant("2024-06-20T12:00:00Z"));
  EXPECT_EQ(Locale::current().identifier(), "en_US");
  EXPECT_EQ(timeFormat(), 0);
}

TEST_F(RequestScopeTest, OneSwitchSetsTheSettingsAndTheLocalesHourCycle) {
  Request request;
  request.clock = Locale::HourCycle::h24;
  {
    const RequestScope scope(request);
    EXPECT_EQ(timeFormat(), 1);
    EXPECT_TRUE(Locale::current().uses24HourClock());
    EXPECT_EQ(Locale::current().identifier(), "en_US");
  }
  request.locale = Locale("fi_FI");
  request.clock = Locale::HourCycle::h12;
  const RequestScope scope(request);
  EXPECT_EQ(timeFormat(), 0);
  EXPECT_FALSE(Locale::current().uses24HourClock());
}

TEST_F(RequestScopeTest, TheServiceStartsAfreshInTheClockFormOfTheRequest) {
  Request request;
  request.clock = Locale::HourCycle::h24;
  {
    const RequestScope scope(request);
    EXPECT_TRUE(MoonPhaseData::sharedInstance().use24HrTimeFormat());
    MoonPhaseData::sharedInstance().SetSelectedLocation(GeoLocationData::DefaultLocation(), Clock::now());
  }
  request.clock = Locale::HourCycle::h12;
  const RequestScope scope(request);
  EXPECT_FALSE(MoonPhaseData::sharedInstance().use24HrTimeFormat());
  EXPECT_EQ(MoonPhaseData::sharedInstance().currentLocation(), nullptr);
  EXPECT_EQ(MoonPhaseData::sharedInstance().currentDate(), std::nullopt);
}

TEST_F(RequestScopeTest, AnAnswerLeavesTheProcessAsItWas) {
  answer({"--city", "Tokyo", "--24h", "--locale", "fi_FI", "--now", "2030-01-01T00:00:00Z"});
  EXPECT_EQ(TimeZone::defaultZone().name(), "UTC");
  EXPECT_EQ(Clock::now(), instant("2024-06-20T12:00:00Z"));
  EXPECT_EQ(Locale::current().identifier(), "en_US");
  EXPECT_EQ(timeFormat(), 0);
}

TEST_F(RequestScopeTest, ARefusedRequestLeavesTheProcessAlone) {
  EXPECT_EQ(runProgram({"--city", "nowhere at all", "--24h", "--locale", "fi_FI"}).status, 2);
  EXPECT_EQ(timeFormat(), 0);
  EXPECT_EQ(Locale::current().identifier(), "en_US");
  EXPECT_EQ(TimeZone::defaultZone().name(), "UTC");
}

}  // namespace
}  // namespace velmora::app
