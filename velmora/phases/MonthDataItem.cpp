#include <velmora/phases/MonthDataItem.h>

#include <utility>

#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/Phase.h>
#include <velmora/phases/TableLine.h>
#include <velmora/platform/resources/Bundle.h>

namespace velmora {

MonthDataItem::MonthDataItem(std::int64_t newPhase, std::int64_t newDay, std::string newTime,
                             Instant newLocalDate)
    : phase(newPhase),
      day(newDay),
      time(std::move(newTime)),
      localDate(newLocalDate),
      fullFactor(fullFactorForPrincipalPhase(newPhase)) {}

std::optional<std::string> MonthDataItem::phaseString() const {
  if (phase < kFullMoon || phase > kNewMoon) return std::nullopt;
  return Bundle::main().localizedString(*MoonPhaseCalc::nameForPhase(phase));
}

}  // namespace velmora
