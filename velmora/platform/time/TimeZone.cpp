#include <velmora/platform/time/TimeZone.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <mutex>
#include <stdexcept>
#include <utility>

#include <velmora/platform/time/NumberText.h>
#include <velmora/platform/time/ZoneDatabase.h>

namespace velmora {
namespace {

constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t farthestNamedOffset = 18 * secondsPerHour;

class FixedOffset final : public ZoneRules {
 public:
  explicit FixedOffset(std::int64_t secondsFromGMT) : _secondsFromGMT(secondsFromGMT) {}

  std::int64_t secondsFromGMT(Instant) const override { return _secondsFromGMT; }

  LocalLookup lookup(LocalTime reading) const override {
    const Instant only(reading.time_since_epoch() - Seconds(static_cast<double>(_secondsFromGMT)));
    return {LocalLookup::Kind::unique, only, only, only};
  }

 private:
  std::int64_t _secondsFromGMT;
};

std::string nameOfOffset(std::int64_t offset) {
  if (offset == 0) return "GMT";
  const std::int64_t size = std::abs(std::max(offset, -std::numeric_limits<std::int64_t>::max()));
  std::string name = offset < 0 ? "GMT-" : "GMT+";
  name += integerText(size / secondsPerHour, 2) + ":" + integerText(size / 60 % 60, 2);
  if (size % 60 != 0) name += ":" + integerText(size % 60, 2);
  return name;
}

std::optional<std::int64_t> twoDigitField(std::string_view text, std::size_t position) {
  std::int64_t value = 0;
  const char* first = text.data() + position;
  const auto [end, error] = std::from_chars(first, first + 2, value);
  if (error != std::errc() || end != first + 2 || *first == '-') return std::nullopt;
  return value;
}

/// The offset that "GMT±hh:mm" or "GMT±hh:mm:ss" names; none for another text.
std::optional<std::int64_t> offsetOfName(std::string_view name) {
  constexpr std::string_view shortForm = "GMT+hh:mm", longForm = "GMT+hh:mm:ss";
  const bool withSeconds = name.size() == longForm.size();
  if (!name.starts_with("GMT") || (name.size() != shortForm.size() && !withSeconds)) return std::nullopt;
  if ((name[3] != '+' && name[3] != '-') || name[6] != ':' || (withSeconds && name[9] != ':'))
    return std::nullopt;

  const auto hours = twoDigitField(name, 4), minutes = twoDigitField(name, 7);
  const auto seconds = withSeconds ? twoDigitField(name, 10) : std::optional<std::int64_t>(0);
  if (!hours || !minutes || !seconds || *minutes > 59 || *seconds > 59) return std::nullopt;
  const std::int64_t size = *hours * secondsPerHour + *minutes * 60 + *seconds;
  if (size > farthestNamedOffset) return std::nullopt;
  return name[3] == '-' ? -size : size;
}

std::mutex defaultZoneMutex;

std::optional<TimeZone>& chosenDefault() {
  static std::optional<TimeZone> zone;
  return zone;
}

const TimeZone& systemZone() {
  static const TimeZone zone =
      TimeZone::named(ZoneDatabase::systemZoneIdentifier()).value_or(TimeZone::fixed(0));
  return zone;
}

std::optional<TimeZone> exchangeDefault(std::optional<TimeZone> zone) {
  const std::lock_guard lock(defaultZoneMutex);
  return std::exchange(chosenDefault(), std::move(zone));
}

}  // namespace

TimeZone::TimeZone(std::string name, std::shared_ptr<const ZoneRules> rules)
    : _name(std::make_shared<const std::string>(std::move(name))), _rules(std::move(rules)) {}

std::optional<TimeZone> TimeZone::named(std::string_view name) {
  if (name == "GMT" || name == "UTC") return TimeZone(std::string(name), std::make_shared<FixedOffset>(0));
  if (const auto offset = offsetOfName(name)) {
    return TimeZone(std::string(name), std::make_shared<FixedOffset>(*offset));
  }
  auto rules = ZoneDatabase::find(name);
  if (!rules) return std::nullopt;
  return TimeZone(std::string(name), std::move(rules));
}

TimeZone TimeZone::fixed(std::int64_t secondsFromGMT) {
  return TimeZone(nameOfOffset(secondsFromGMT), std::make_shared<FixedOffset>(secondsFromGMT));
}

TimeZone TimeZone::defaultZone() {
  {
    const std::lock_guard lock(defaultZoneMutex);
    if (chosenDefault()) return *chosenDefault();
  }
  return systemZone();
}

void TimeZone::setDefault(std::optional<TimeZone> zone) { exchangeDefault(std::move(zone)); }

ScopedDefaultTimeZone::ScopedDefaultTimeZone(TimeZone zone) : _former(exchangeDefault(std::move(zone))) {}

ScopedDefaultTimeZone::ScopedDefaultTimeZone(std::string_view name) {
  auto zone = TimeZone::named(name);
  if (!zone) throw std::invalid_argument("no time zone is called " + std::string(name));
  _former = exchangeDefault(std::move(zone));
}

ScopedDefaultTimeZone::~ScopedDefaultTimeZone() { exchangeDefault(std::move(_former)); }

}  // namespace velmora
