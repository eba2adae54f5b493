#include <cctz/civil_time.h>
#include <cctz/time_zone.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <system_error>

#include <velmora/platform/time/ZoneDatabase.h>

namespace velmora {
namespace {

using Lookup = cctz::time_zone::civil_lookup;
using CctzInstant = cctz::time_point<cctz::seconds>;

// Zone rules repeat every 400 years; beyond this span the offsets at its edges hold.
constexpr double farthestSeconds = 1e12;

Seconds wholeSeconds(Seconds time) { return Seconds(std::floor(time.count())); }

CctzInstant toCctz(Seconds sinceEpoch) {
  const double seconds = sinceEpoch.count();
  const double inRange = seconds >= -farthestSeconds ? std::min(seconds, farthestSeconds) : -farthestSeconds;
  return CctzInstant(cctz::seconds(static_cast<std::int64_t>(inRange)));
}

Instant fromCctz(CctzInstant instant) {
  return instantFromUnixSeconds(static_cast<double>(instant.time_since_epoch().count()));
}

LocalLookup::Kind kindOf(const Lookup& found) {
  switch (found.kind) {
    case Lookup::SKIPPED:
      return LocalLookup::Kind::skipped;
    case Lookup::REPEATED:
      return LocalLookup::Kind::repeated;
    default:
      return LocalLookup::Kind::unique;
  }
}

class CctzZone final : public ZoneRules {
 public:
  explicit CctzZone(cctz::time_zone zone) : _zone(zone) {}

  std::int64_t secondsFromGMT(Instant instant) const override {
    return _zone.lookup(toCctz(wholeSeconds(instant.time_since_epoch()))).offset;
  }

  LocalLookup lookup(LocalTime reading) const override {
    const Seconds whole = wholeSeconds(reading.time_since_epoch());
    const Seconds fraction = reading.time_since_epoch() - whole;
    const cctz::civil_second civil = cctz::convert(toCctz(whole), cctz::utc_time_zone());
    const Lookup found = _zone.lookup(civil);
    const Instant before = fromCctz(found.pre) + fraction, after = fromCctz(found.post) + fraction;
    const Instant change = found.kind == Lookup::UNIQUE ? before : fromCctz(found.trans);
    return {kindOf(found), before, change, after};
  }

 private:
  cctz::time_zone _zone;
};

/// Zone identifiers are names below the database's folder; nothing else may be opened through them, and no
/// zone by two spellings of its file.
bool isIdentifier(std::string_view text) {
  const auto allowed = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' ||
           c == '_' || c == '-' || c == '+';
  };
  return !text.empty() && text.size() <= 64 && text.front() != '/' &&
         text.find("//") == std::string_view::npos && std::all_of(text.begin(), text.end(), allowed);
}

/// Whether the folder that cctz reads holds a file of that name.
bool hasFile(const std::string& identifier) {
  const char* const chosen = std::getenv("TZDIR");
  const std::filesystem::path folder(chosen && *chosen ? chosen : "/usr/share/zoneinfo");
  std::error_code error;
  return std::filesystem::is_regular_file(folder / identifier, error);
}

/// The zone as read from its file; none if there is none. cctz keeps each name that it could not load for
/// ever, so it is not asked for one without a file.
std::shared_ptr<const ZoneRules> loaded(const std::string& identifier) {
  cctz::time_zone zone;
  if (!hasFile(identifier) || !cctz::load_time_zone(identifier, &zone)) return nullptr;
  return std::make_shared<CctzZone>(zone);
}

constexpr const char* systemZoneLink = "/etc/localtime";
constexpr std::string_view zoneFolder = "zoneinfo/";

/// The identifier of the zone whose file that is; another text stays as it is.
std::string identifierOfPath(std::string_view path) {
  const auto folder = path.find(zoneFolder);
  return std::string(folder == std::string_view::npos ? path : path.substr(folder + zoneFolder.size()));
}

}  // namespace

std::shared_ptr<const ZoneRules> ZoneDatabase::find(std::string_view identifier) {
  if (!isIdentifier(identifier)) return nullptr;
  // Kept here as well, so that a zone read once is found without a look at its file.
  static std::mutex mutex;
  static std::map<std::string, std::shared_ptr<const ZoneRules>, std::less<>> found;
  const std::lock_guard lock(mutex);
  if (const auto known = found.find(identifier); known != found.end()) return known->second;
  const std::string name(identifier);
  auto zone = loaded(name);
  if (zone) found.emplace(name, zone);
  return zone;
}

std::string ZoneDatabase::systemZoneIdentifier() {
  if (const char* chosen = std::getenv("TZ")) {
    const std::string_view text(*chosen == ':' ? chosen + 1 : chosen);
    if (text != systemZoneLink) return identifierOfPath(text);
  }
  std::error_code error;
  const std::string target = std::filesystem::read_symlink(systemZoneLink, error).string();
  if (target.find(zoneFolder) != std::string::npos) return identifierOfPath(target);
  std::string configured;
  std::ifstream("/etc/timezone") >> configured;
  return configured;
}

}  // namespace velmora
