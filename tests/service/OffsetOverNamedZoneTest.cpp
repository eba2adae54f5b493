#include <tests/service/ServiceTest.h>

namespace velmora {
namespace {

/// Tokyo, where the user then chose the fixed offset +05:30. Kept: days and hours stay those of the named
/// zone, and the offset moves the month's event times and the year's instants alone.
class OffsetOverNamedZone : public ServiceTest {
 protected:
  OffsetOverNamedZone() {
    resources.writeTable(2024,
                         {{"3", {"10 16:00 NM"}}});  // on the 11th in Tokyo, at 21:30 of the 10th by +05:30
    const Place place = tokyo();
    place->SetLocation(35.6762, 139.6503, "Tokyo", std::nullopt, 19800, true);
    select(place, 2024, 3, 15);
  }
  /// Sunrise a little before six by Tokyo's clock, half past two by the offset.
  static void expectTokyosEleventh(const RiseSetData& data) {
    EXPECT_NEAR(static_cast<double>(data.sunRiseMinutesFromMidnight), 5 * 60 + 57, 2);
    EXPECT_NEAR(static_cast<double>(data.sunSetMinutesFromMidnight), 17 * 60 + 45, 2);
  }

  const OwnResources resources;
};

TEST_F(OffsetOverNamedZone, MovesTheTimesOfAMonthsEventsAlone) {
  const auto event = service().currentMonthData().at(0);
  EXPECT_EQ(event->day, 11);
  EXPECT_EQ(event->time, "09:30 PM");
  EXPECT_EQ(event->localDate, utc(2024, 3, 10, 16));
  const auto item = service().GetRiseSetPhaseItemsForCurrentMonth()->at(11);
  EXPECT_EQ(item->phase, 3);
  EXPECT_EQ(item->weekDay, 2);
  EXPECT_EQ(item->timeText, "1:00\u202fAM");
  expectTokyosEleventh(*item->riseSetData);
}

TEST_F(OffsetOverNamedZone, MovesTheInstantsOfAYearsItemsAlone) {
  const auto item = service().GetRiseSetPhaseItemsForYear(2024).at(3).at(0);
  EXPECT_EQ(item->localDate, utc(2024, 3, 10, 21, 30));
  EXPECT_EQ(item->day, 11);
  EXPECT_EQ(item->weekDay, 2);
  EXPECT_EQ(item->timeText, "1:00\u202fAM");
  expectTokyosEleventh(*item->riseSetData);
}

TEST_F(OffsetOverNamedZone, LeavesRiseAndSetOfADay) {
  expectTokyosEleventh(service().GetRiseSetDataForDate(utc(2024, 3, 10, 16)));
}

}  // namespace
}  // namespace velmora
