#include <app/text/PhaseText.h>

#include <array>

#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/resources/Bundle.h>

namespace velmora::app {
namespace {

/// In the order in which they follow one another from new moon on.
constexpr std::array<const char*, 8> glyphs = {"🌑", "🌒", "🌓", "🌔", "🌕", "🌖", "🌗", "🌘"};

std::size_t placeInLunation(std::int64_t phase) {
  switch (phase) {
    case kWaxingCrescent:
      return 1;
    case kFirstQuarter:
      return 2;
    case kWaxingGibbous:
      return 3;
    case kFullMoon:
      return 4;
    case kWaningGibbous:
      return 5;
    case kLastQuarter:
      return 6;
    case kWaningCrescent:
      return 7;
    default:
      return 0;
  }
}

}  // namespace

std::string phaseName(std::int64_t phase) {
  const auto name = MoonPhaseCalc::nameForPhase(phase);
  return name ? Bundle::main().localizedString(*name) : "";
}

std::string phaseGlyph(std::int64_t phase, bool fromTheSouth) {
  const std::size_t place = placeInLunation(phase);
  return glyphs[fromTheSouth ? (glyphs.size() - place) % glyphs.size() : place];
}

}  // namespace velmora::app
