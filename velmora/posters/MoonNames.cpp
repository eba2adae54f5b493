#include <velmora/posters/MoonNames.h>

#include <array>

#include <velmora/views/LocalizedText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using almanac::EclipseKind;

const char* ofTheSun(EclipseKind kind) {
  switch (kind) {
    case EclipseKind::total:
      return "Total Solar Eclipse";
    case EclipseKind::annular:
      return "Annular Solar Eclipse";
    case EclipseKind::hybrid:
      return "Hybrid Solar Eclipse";
    default:
      return "Partial Solar Eclipse";
  }
}

const char* ofTheMoon(EclipseKind kind) {
  switch (kind) {
    case EclipseKind::total:
      return "Total Lunar Eclipse";
    case EclipseKind::partial:
      return "Partial Lunar Eclipse";
    default:
      return "Penumbra Lunar Eclipse";
  }
}

}  // namespace

std::string phaseName(almanac::PrincipalPhase phase) {
  constexpr std::array names = {"New Moon", "First Quarter", "Full Moon", "Last Quarter"};
  return localizedText(names.at(static_cast<std::size_t>(phase)));
}

std::string moonName(const almanac::Illumination& moon, const almanac::Interval& interval) {
  const auto phases = almanac::phases(interval.start, interval.end);
  if (!phases.empty()) return phaseName(phases.front().phase);
  constexpr std::array names = {"Waxing Crescent", "Waxing Gibbous", "Waning Gibbous", "Waning Crescent"};
  return localizedText(names.at(static_cast<std::size_t>(moon.elongation / 90)));
}

std::string eclipseName(ephemeris::Body body, EclipseKind kind) {
  return localizedText(body == ephemeris::Body::sun ? ofTheSun(kind) : ofTheMoon(kind));
}

}  // namespace velmora
