#include <app/answers/MoonGlance.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include <app/answers/Days.h>
#include <app/answers/PhaseYear.h>
#include <app/answers/SkyPositions.h>
#include <app/text/MoonDisc.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

constexpr std::chrono::days longestLunation{30};
const std::string gap = "   ";  // between the disc and what stands beside it

std::optional<Instant> firstOf(const std::vector<almanac::PhaseEvent>& events,
                               almanac::PrincipalPhase phase) {
  const auto found =
      std::find_if(events.begin(), events.end(), [phase](const auto& event) { return event.phase == phase; });
  return found == events.end() ? std::nullopt : std::optional(found->at);
}

Json instantJson(const std::optional<Instant>& instant) {
  return instant ? Json(instantText(*instant)) : Json(nullptr);
}

/// From the tables' record of the day. Where the tables end, from the almanac, which has no `fullFactor`.
Json phaseOfDayJson(const MoonDay& day, const Place& place) {
  if (!isCovered(day.date)) {
    return {{"phase", day.phase},
            {"phaseName", phaseName(day.phase)},
            {"fullFactor", nullptr},
            {"moonAge", day.age ? Json(*day.age) : Json(nullptr)}};
  }
  const auto month = PhaseYear(day.date.year(), place).days(day.date.month());
  const PhaseItem& record = *month.at(static_cast<unsigned>(day.date.day()));
  return {{"phase", record.phase},
          {"phaseName", phaseName(record.phase)},
          {"fullFactor", record.fullFactor},
          {"moonAge", record.moonAge}};
}

std::string litText(const almanac::Illumination& light) {
  return words("%1, %2", {percentText(light.fraction), tiltText(light)});
}

std::string ageText(std::optional<std::int64_t> age) {
  return age ? words("day %1 of the lunation", {std::to_string(*age)}) : words("not known");
}

std::string nextText(const std::optional<Instant>& instant, const Query& query) {
  return instant ? momentText(*instant, query) : words("after 2100");
}

std::string eclipseText(const std::optional<SeenEclipse>& eclipse, const Query& query) {
  if (!eclipse) return words("none seen from here");
  return words("%1, %2", {eclipseTitle(eclipse->eclipse), clockAt(bestMoment(*eclipse), query)});
}

bool comesFirst(const std::optional<Instant>& a, const std::optional<Instant>& b) {
  return a && (!b || *a < *b);
}

/// The name of the phase, and below it one fact per line.
std::vector<std::string> factLines(const MoonGlance& glance, const Query& query) {
  TextTable::Row newMoon{phaseName(kNewMoon), nextText(glance.newMoon, query)};
  TextTable::Row fullMoon{phaseName(kFullMoon), nextText(glance.fullMoon, query)};
  if (comesFirst(glance.fullMoon, glance.newMoon)) std::swap(newMoon, fullMoon);

  TextTable facts({words("Lit"), litText(glance.light)});
  facts.add({words("Age"), ageText(glance.day.age)});
  facts.add(newMoon);
  facts.add(fullMoon);
  facts.add({words("Eclipse"), eclipseText(glance.eclipse, query)});
  if (glance.eclipse) facts.add({"", seenText(*glance.eclipse)});
  std::istringstream text(heading(phaseName(glance.day.phase), query.boldHeadings) + "\n" +
                          facts.text(false));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

}  // namespace

MoonGlance moonGlance(const Query& query) {
  const CivilDate day = dayOf(query);
  const Instant present = presentOf(query);
  const auto next = almanac::phases(present, present + longestLunation);
  return {moonDays({day}, query.place.zone).at(0),
          *positionAt(present, almanac::Body::moon, query.place).light,
          firstOf(next, almanac::PrincipalPhase::newMoon), firstOf(next, almanac::PrincipalPhase::fullMoon),
          visibleEclipse(day, query)};
}

Json moonGlanceJson(const MoonGlance& glance, const Place& place) {
  Json json = phaseOfDayJson(glance.day, place);
  Json glanced{{"phase", json["phase"]},
               {"phaseName", json["phaseName"]},
               {"fullFactor", json["fullFactor"]},
               {"illumination", glance.light.fraction},
               {"moonAge", json["moonAge"]},
               {"nextNewMoon", instantJson(glance.newMoon)},
               {"nextFullMoon", instantJson(glance.fullMoon)},
               {"eclipse", eclipseJson(glance.eclipse)}};
  return glanced;
}

std::string moonGlanceText(const MoonGlance& glance, const Query& query) {
  const bool isSouthern = query.place.location.latitude < 0;
  const auto disc = moonDisc(glance.light.fraction, glance.light.isWaxing != isSouthern, query.boldHeadings);
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
