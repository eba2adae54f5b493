#include <web/host/Session.h>

#include <utility>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Announcements.h>
#include <velmora/service/AlmanacRecords.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <web/host/Colors.h>

namespace velmora::web {
namespace {

MoonPhaseData& service() { return MoonPhaseData::sharedInstance(); }

std::int64_t number(std::chrono::month month) { return static_cast<unsigned>(month); }
std::int64_t number(std::chrono::day day) { return static_cast<unsigned>(day); }
std::int64_t number(std::chrono::year year) { return static_cast<int>(year); }

}  // namespace

bool isInTables(Date day) {
  return day.ok() && day.year() >= std::chrono::year(2000) && day.year() <= std::chrono::year(2040);
}

Session& Session::shared() {
  static Session session;
  return session;
}

Session::Session() {
  Bundle::setMain("/share/velmora/app");
  service().setRiseSetSource(AlmanacRecords::riseSetSource());
  service().setEclipseSource(AlmanacRecords::eclipseSource());
  Announcements::setSink([this](const std::string& sentence) { _announcements.push_back(sentence); });
}

void Session::configure(const Settings& settings) {
  _settings = settings;
  const auto cycle = settings.uses24Hours ? Locale::HourCycle::h24 : Locale::HourCycle::h12;
  Locale::setCurrent(Locale(settings.locale).withHourCycle(cycle));
  SettingsModel::sharedInstance().setTimeFormat(settings.uses24Hours ? 1 : 0);
  SettingsModel::setIsIPad(settings.isTablet);
  service().setUse24HrTimeFormat(settings.uses24Hours);
  useColors(settings.isLight);
  ProcessValues::resetAll();
  service().loadEventsFromFile();
  if (service().currentDate()) service().SetSelectedLocation(_location);
  ++_generation;
}

bool Session::select(double latitude, double longitude, const std::string& name, const std::string& zone,
                     Date day) {
  auto location = std::make_shared<GeoLocationData>();
  location->SetLocation(latitude, longitude, name, zone, 0, false);
  if (!almanac::isValid({latitude, longitude, 0}) || !location->timezone || !isInTables(day)) return false;
  _location = std::move(location);
  _placeName = name;
  TimeZone::setDefault(_location->timezone);
  ProcessValues::resetAll();
  const Instant start =
      Calendar(*_location->timezone)
          .date({.year = number(day.year()), .month = number(day.month()), .day = number(day.day())});
  service().SetSelectedLocation(_location, start);
  ++_generation;
  return true;
}

bool Session::selectDay(Date day) {
  if (!isInTables(day)) return false;
  service().changeSelectedDay(number(day.day()), number(day.month()), number(day.year()));
  return true;
}

Date Session::day() const {
  return Date(std::chrono::year(static_cast<int>(service().currentYear())),
              std::chrono::month(static_cast<unsigned>(service().currentMonth())),
              std::chrono::day(static_cast<unsigned>(service().currentDay())));
}

Date Session::dateAt(Instant instant) const {
  return Date(std::chrono::floor<std::chrono::days>(zone().localTime(instant)));
}

Date Session::today() const { return dateAt(Clock::now()); }

Instant Session::noon() const {
  const LocalTime noon(std::chrono::local_days(day()).time_since_epoch() + std::chrono::hours(12));
  return zone().lookup(noon).after;
}

}  // namespace velmora::web
