#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include <velmora/astronomy/PositionData.h>

namespace velmora {
namespace {

struct HourCase {
  double hour;
  const char* long24;
  const char* short24;
  const char* long12;
  const char* short12;
};

void PrintTo(const HourCase& position, std::ostream* out) { *out << position.hour; }

class HourOfAPosition : public ::testing::TestWithParam<HourCase> {};

TEST_P(HourOfAPosition, IsWrittenInFourForms) {
  const HourCase& expected = GetParam();
  PositionData position;
  position.hour = expected.hour;
  EXPECT_EQ(position.formattedTimeText(true, false), expected.long24);
  EXPECT_EQ(position.formattedTimeText(true, true), expected.short24);
  EXPECT_EQ(position.formattedTimeText(false, false), expected.long12);
  EXPECT_EQ(position.formattedTimeText(false, true), expected.short12);
}

INSTANTIATE_TEST_SUITE_P(Hours, HourOfAPosition,
                         ::testing::Values(HourCase{0.0, "00:00", "00", "00:00 AM", "0 am"},
                                           HourCase{0.25, "00:15", "00", "00:15 AM", "0 am"},
                                           HourCase{7.0 + 5.0 / 60, "07:05", "07", "07:05 AM", "7 am"},
                                           HourCase{11.999, "12:00", "12", "12:00 PM", "12 pm"},
                                           HourCase{12.5, "12:30", "12", "12:30 PM", "12 pm"},
                                           HourCase{13.0, "13:00", "13", "01:00 PM", "1 pm"},
                                           HourCase{23.5, "23:30", "23", "11:30 PM", "11 pm"},
                                           HourCase{24.0, "24:00", "24", "12:00 PM", "12 pm"},
                                           HourCase{31.75, "31:45", "31", "19:45 PM", "19 pm"},
                                           HourCase{-3.5, "-4:30", "-4", "-4:30 AM", "-4 am"},
                                           HourCase{std::numeric_limits<double>::quiet_NaN(), "00:00", "00",
                                                    "00:00 AM", "0 am"}));

TEST(PositionData, AFreshRecordHasNoTexts) {
  const PositionData fresh;
  EXPECT_EQ(fresh.altitude, 0);
  EXPECT_EQ(fresh.azimuth, 0);
  EXPECT_EQ(fresh.hour, 0);
  EXPECT_EQ(fresh.altitudeText + fresh.azimuthText, "");
}

}  // namespace
}  // namespace velmora
