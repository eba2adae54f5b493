#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <mutex>

#include <velmora/platform/time/ZoneDatabase.h>
#include <velmora/platform/time/intl/IntlSupport.h>
#include <velmora/platform/time/intl/ZoneChanges.h>

// In zones.js.
extern "C" {
int velmora_intl_zone(const char* identifier);
double velmora_intl_zone_offset(int zone, double seconds);
double velmora_intl_zone_next_change(int zone, double seconds);
char* velmora_intl_system_zone();
}

namespace velmora {
namespace {

// Before the first changes of all zones their first offsets hold; far in the future rules go on as they are.
constexpr double earliest = -12'000'000'000.0;  // 1589
constexpr double latest = 1e12;

std::int64_t wholeSeconds(double seconds) {
  return static_cast<std::int64_t>(std::floor(seconds >= earliest ? std::min(seconds, latest) : earliest));
}

std::optional<std::int64_t> toldChange(double seconds) {
  if (std::isnan(seconds)) return std::nullopt;
  return std::isinf(seconds) ? std::numeric_limits<std::int64_t>::max() : static_cast<std::int64_t>(seconds);
}

ZoneQuestions questionsOf(int zone) {
  return {
      .offset =
          [zone](std::int64_t time) {
            return static_cast<std::int64_t>(velmora_intl_zone_offset(zone, static_cast<double>(time)));
          },
      .nextChange =
          [zone](std::int64_t time) {
            return toldChange(velmora_intl_zone_next_change(zone, static_cast<double>(time)));
          },
  };
}

class IntlZone final : public ZoneRules {
 public:
  explicit IntlZone(int zone) : _changes(questionsOf(zone)) {}

  std::int64_t secondsFromGMT(Instant instant) const override {
    return _changes.offset(wholeSeconds(unixSeconds(instant)));
  }

  LocalLookup lookup(LocalTime reading) const override {
    const double seconds = reading.time_since_epoch().count();
    const std::int64_t whole = wholeSeconds(seconds);
    const Seconds fraction(seconds - std::floor(seconds));
    const auto at = [](std::int64_t time) { return instantFromUnixSeconds(static_cast<double>(time)); };
    std::int64_t offset = _changes.offset(whole - widestOffset);
    for (const ZoneChange& change : _changes.between(whole - widestOffset, whole + widestOffset)) {
      if (whole < change.at + std::min(change.before, change.after)) break;
      if (whole < change.at + std::max(change.before, change.after)) {
        const bool isSkipped = change.before < change.after;
        return {isSkipped ? LocalLookup::Kind::skipped : LocalLookup::Kind::repeated,
                at(whole - change.before) + fraction, at(change.at), at(whole - change.after) + fraction};
      }
      offset = change.after;
    }
    const Instant only = at(whole - offset) + fraction;
    return {LocalLookup::Kind::unique, only, only, only};
  }

 private:
  static constexpr std::int64_t widestOffset = 26 * 3600;  // wider than any zone's, and than any change

  ZoneChanges _changes;
};

}  // namespace

std::shared_ptr<const ZoneRules> ZoneDatabase::find(std::string_view identifier) {
  if (identifier.find('\0') != identifier.npos) return nullptr;
  static std::mutex mutex;
  static std::map<std::string, std::shared_ptr<const ZoneRules>, std::less<>> found;
  const std::lock_guard lock(mutex);
  if (const auto known = found.find(identifier); known != found.end()) return known->second;
  const std::string name(identifier);
  const int zone = velmora_intl_zone(name.c_str());
  if (zone == 0) return nullptr;
  return found.emplace(name, std::make_shared<IntlZone>(zone)).first->second;
}

std::string ZoneDatabase::systemZoneIdentifier() { return takeText(velmora_intl_system_zone()); }

}  // namespace velmora
