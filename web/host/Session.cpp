#include <web/host/Session.h>

#include <map>
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

/// The source with a memory for some months: views ask for each of their days in every drawing.
EclipseSource remembering(EclipseSource source, const Session& session) {
  struct Memory {
    std::int64_t generation = -1;
    std::map<std::pair<Instant, std::string>, std::shared_ptr<const EclipseInfo>> answers;
  };
  constexpr std::size_t most = 200;
  return [source = std::move(source), &session, memory = Memory()](Instant date, const TimeZone& zone,
                                                                   const GeoLocationData& location) mutable {
    if (memory.generation != session.generation() || memory.answers.size() > most) {
      memory = {.generation = session.generation(), .answers = {}};
    }
    const auto [answer, isNew] = memory.answers.try_emplace({date, zone.name()});
    if (isNew) answer->second = source(date, zone, location);
    return answer->second;
  };
}

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
  service().setEclipseSource(remembering(AlmanacRecords::eclipseSource(), *this));
  Announcements::setSink([this](const std::string& sentence) { _announcements.push_back(sentence); });
}

void Session::configure(const Settings& settings) {
  ++_generation;
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
}

bool Session::select(double latitude, double longitude, const std::string& name, const std::string& zone,
                     Date day) {
  auto location = std::make_shared<GeoLocationData>();
  location->SetLocation(latitude, longitude, name, zone, 0, false);
  if (!almanac::isValid({latitude, longitude, 0}) || !location->timezone || !isInTables(day)) return false;
  ++_generation;
  _location = std::move(location);
  _placeName = name;
  TimeZone::setDefault(_location->timezone);
  ProcessValues::resetAll();
  const Instant start =
      Calendar(*_location->timezone)
          .date({.year = number(day.year()), .month = number(day.month()), .day = number(day.day())});
  service().SetSelectedLocation(_location, start);
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
