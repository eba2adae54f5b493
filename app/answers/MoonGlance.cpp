#include <app/answers/MoonGlance.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include <app/answers/Days.h>
#include <app/answers/Eclipses.h>
#include <app/answers/PhaseListing.h>
#include <app/text/ClockText.h>
#include <app/text/MoonDisc.h>
#include <app/text/PhaseText.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/phases/Phase.h>

namespace velmora::app {
namespace {

const std::string gap = "   ";  // between the disc and what stands beside it

std::optional<PhaseEvent> firstOf(const PhaseEvents& events, std::int64_t phase) {
  const auto found = std::find_if(events.begin(), events.end(),
                                  [phase](const PhaseEvent& event) { return event.phase == phase; });
  return found == events.end() ? std::nullopt : std::optional(*found);
}

PhaseItem phaseOfDay(CivilDate day, const Place& place) {
  const auto month = PhaseYear(day.year(), place).days(day.month());
  return *month.at(static_cast<unsigned>(day.day()));
}

Json instantJson(const std::optional<PhaseEvent>& event) {
  return event ? Json(instantText(event->instant)) : Json(nullptr);
}

std::string percentText(double fraction) { return std::to_string(std::lround(100 * fraction)) + "%"; }

std::string ageText(std::optional<std::int64_t> age) {
  return age ? "day " + std::to_string(*age) + " of the lunation"
             : "from before 2000, where the tables begin";
}

std::string eventText(const std::optional<PhaseEvent>& event, const Query& query) {
  return event ? phaseTime(*event, query) : "after 2040, where the tables end";
}

std::string eclipseText(const EclipseInfo* eclipse, const Query& query) {
  if (!eclipse) return "none visible";
  return eclipseTitle(*eclipse) + ", " + phaseClock(eclipse->datetime, query);
}

bool comesFirst(const std::optional<PhaseEvent>& a, const std::optional<PhaseEvent>& b) {
  return a && (!b || a->instant < b->instant);
}

/// The name of the phase, and under it a line a fact.
std::vector<std::string> factLines(const MoonGlance& glance, const Query& query) {
  TextTable::Row newMoon{phaseName(kNewMoon), eventText(glance.newMoon, query)};
  TextTable::Row fullMoon{phaseName(kFullMoon), eventText(glance.fullMoon, query)};
  if (comesFirst(glance.fullMoon, glance.newMoon)) std::swap(newMoon, fullMoon);

  const ShownPhase shown = shownPhase(glance.day, glance.illumination);
  TextTable facts({"Lit", percentText(glance.illumination.fraction)});
  facts.add({"Age", ageText(shown.age)});
  facts.add(newMoon);
  facts.add(fullMoon);
  facts.add({"Eclipse", eclipseText(glance.eclipse.get(), query)});
  std::istringstream text(heading(phaseName(shown.phase), query.boldHeadings) + "\n" + facts.text(false));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

}  // namespace

MoonGlance moonGlance(const Query& query) {
  const CivilDate day = coveredDay(query);
  const Instant present = presentOf(query);
  const PhaseEvents next = phaseEventsBetween(present, present + longestLunation, query.place);
  return {phaseOfDay(day, query.place), illuminationAt(present), firstOf(next, kNewMoon),
          firstOf(next, kFullMoon), visibleEclipse(day, query.place)};
}

Json moonGlanceJson(const MoonGlance& glance) {
  return {{"phase", glance.day.phase},
          {"phaseName", phaseName(glance.day.phase)},
          {"fullFactor", glance.day.fullFactor},
          {"illumination", glance.illumination.fraction},
          {"moonAge", glance.day.moonAge},
          {"nextNewMoon", instantJson(glance.newMoon)},
          {"nextFullMoon", instantJson(glance.fullMoon)},
          {"eclipse", eclipseJson(glance.eclipse.get())}};
}

std::string moonGlanceText(const MoonGlance& glance, const Query& query) {
  const bool isSouthern = query.place.location.latitude < 0;
  const auto disc =
      moonDisc(glance.illumination.fraction, glance.illumination.isWaxing != isSouthern, query.boldHeadings);
  const auto facts = factLines(glance, query);
  const std::size_t firstFact = (disc.size() - facts.size()) / 2;
  std::string text;
  for (std::size_t i = 0; i < disc.size(); ++i) {
    const bool hasFact = i >= firstFact && i - firstFact < facts.size();
    std::string line = disc[i] + (hasFact ? gap + facts[i - firstFact] : "");
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

}  // namespace velmora::app
