#include <ostream>
#include <sstream>

#include <tests/threads/ManyThreads.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/foundation/SettingsModel.h>

namespace velmora {
namespace {

struct PlaceAndDay {
  const char* zone;
  double latitude, longitude;
  double unixSeconds;
};

std::vector<PlaceAndDay> placesAndDays() {
  constexpr PlaceAndDay places[] = {
      {"Europe/Kyiv", 50.45, 30.52, 0},           {"Pacific/Apia", -13.83, -171.77, 0},
      {"Australia/Lord_Howe", -31.55, 159.08, 0}, {"Asia/Kathmandu", 27.72, 85.32, 0},
      {"America/St_Johns", 47.56, -52.71, 0},     {"Europe/Oslo", 69.65, 18.96, 0},
      {"Antarctica/McMurdo", -77.85, 166.67, 0},  {"Pacific/Kiritimati", 1.87, -157.4, 0},
  };
  std::vector<PlaceAndDay> result;
  for (double seconds = 1'700'000'000; seconds < 1'730'000'000; seconds += 2'500'000) {
    for (PlaceAndDay place : places) {
      place.unixSeconds = seconds;
      result.push_back(place);
    }
  }
  return result;
}

std::ostream& operator<<(std::ostream& out, const EquatorialCoordinates& place) {
  return out << place.declination << ' ' << place.rightAscension << '\n';
}

std::ostream& operator<<(std::ostream& out, const PositionData& position) {
  return out << position.hour << ' ' << position.altitude << ' ' << position.azimuth << ' '
             << position.altitudeText << ' ' << position.azimuthText << ' '
             << position.formattedTimeText(true, false) << ' ' << position.formattedTimeText(false, true)
             << '\n';
}

std::ostream& operator<<(std::ostream& out, const std::vector<PositionData>& series) {
  for (const PositionData& position : series) out << position;
  return out;
}

std::ostream& operator<<(std::ostream& out, const RiseSetData& day) {
  return out << day.sunRiseText << ' ' << day.sunSetText << ' ' << day.moonRiseText << ' ' << day.moonSetText
             << ' ' << day.twilightBeginText << ' ' << day.twilightEndText << ' '
             << day.sunRiseMinutesFromMidnight << ' ' << day.sunSetMinutesFromMidnight << ' '
             << day.moonRiseMinutesFromMidnight << ' ' << day.moonSetMinutesFromMidnight << ' '
             << day.dayLengthMinutes << '\n';
}

std::string anglesAndSeries(const PlaceAndDay& question) {
  using Calc = RiseAndSetCalc;
  const double mjd = question.unixSeconds / 86'400 + 40'587;
  const double centuries = (mjd - 51'544.5) / 36'525;
  std::ostringstream text;
  text << std::hexfloat << Calc::_mjd(20, 6, 2024, 12) << Calc::_caldat(mjd)
       << Calc::_lmst(mjd, question.longitude) << Calc::_frac(mjd) << Calc::_iPart(mjd) << Calc::_range(mjd)
       << Calc::_round(mjd, 2) << Calc::_hrsmin(17.08) << Calc::GetDayCountForMonth(6) << Calc::FNRange(mjd)
       << Calc::FNatn2(question.latitude, question.longitude) << Calc::FNasin(question.latitude / 90)
       << Calc::FNsun(mjd - 51'544.5) << Calc::_minisun(centuries) << Calc::_minimoon(centuries)
       << Calc::_sin_alt(1, mjd, 6, question.longitude, 0.8, 0.6)
       << Calc::_find_moon_position(mjd, 6, question.longitude, 0.8, 0.6)
       << Calc::CalculateSunPosition(0.5, 0.8, 2024, 6, 20, 12, 2)
       << Calc::CalculateMoonPosition(0.5, 0.8, 2024, 6, 20, 12, 2);
  return text.str();
}

std::string daysAndPositions(const PlaceAndDay& question) {
  using Calc = RiseAndSetCalc;
  GeoLocationData place;
  place.SetLocation(question.latitude, question.longitude, "", question.zone, 0, false);
  const Instant date = instantFromUnixSeconds(question.unixSeconds);
  const std::int64_t offset = place.GetTimezoneIntervalFromGMT(date);
  std::ostringstream text;
  text << std::hexfloat << offset << ' ' << place.gmtIntervalForDate(date, Calendar(*place.timezone)) << ' '
       << place.locationText << ' ' << place.timezoneText << '\n';
  for (int twilight = 0; twilight <= 2; ++twilight) text << Calc::Compute(date, place, offset, twilight);
  text << Calc::ComputeSunPosition(date, place, offset) << Calc::ComputeMoonPosition(date, place, offset)
       << Calc::Get24HourSunPositionsForDate(date, place, offset)
       << Calc::Get24HourMoonPositionsForDate(date, place, offset)
       << Calc::EventsMatchingSunElevation(0, date, place, offset, true)
       << Calc::EventsMatchingMoonElevation(0, date, place, offset, true);
  return text.str();
}

TEST(ManyThreads, ComputeAnglesAndSeriesAsOneDoes) {
  test::expectAnswersOfOneThread(placesAndDays(), &anglesAndSeries);
}

TEST(ManyThreads, ComputeDaysAndPositionsAsOneDoes) {
  test::expectAnswersOfOneThread(placesAndDays(), &daysAndPositions);
}

TEST(ManyThreads, GetTheSameSettingsAndDefaultPlace) {
  std::vector<const SettingsModel*> settings(test::threadCount);
  std::vector<const GeoLocationData*> places(test::threadCount);
  test::runTogether(test::threadCount, [&](std::size_t thread) {
    settings[thread] = &SettingsModel::sharedInstance();
    places[thread] = GeoLocationData::DefaultLocation().get();
  });
  for (const SettingsModel* found : settings) EXPECT_EQ(found, &SettingsModel::sharedInstance());
  for (const GeoLocationData* found : places) EXPECT_EQ(found, GeoLocationData::DefaultLocation().get());
}

}  // namespace
}  // namespace velmora
